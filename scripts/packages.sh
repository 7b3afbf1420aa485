# Sourced by ./run and ./test: which Debian packages each needs, and how they are installed when missing.
# An entry "a|b" is a package that has two names in the supported releases; the first one known is taken.

build_packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev "qt6-svg-dev|libqt6svg6-dev" libfmt-dev libxcb1-dev bootstrap-icons
)
# What the program needs to draw text and to meet a display, where the desktop does not bring it already.
desktop_packages=(fonts-dejavu-core libxcb-cursor0)
# A display of our own, for a machine without one.
virtual_display_packages=(xvfb openbox imagemagick xauth x11-utils)
# `locales` brings localedef: numbers are tested under a locale with a decimal comma.
test_packages=(libgtest-dev gobjc++ xdotool x11-xserver-utils wmctrl locales)

is_installed() {
  dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null | grep -qx installed
}

# Prints the packages of the given list that are missing, one a line.
missing_packages() {
  local entry name chosen
  for entry in "$@"; do
    chosen=""
    for name in ${entry//|/ }; do
      if is_installed "$name"; then chosen=installed; break; fi
    done
    [ "$chosen" = installed ] || printf '%s\n' "$entry"
  done
}

# Of the names of one entry, the first that the package lists know.
known_name() {
  local name
  for name in ${1//|/ }; do
    if apt-cache show "$name" >/dev/null 2>&1; then printf '%s\n' "$name"; return; fi
  done
  printf '%s\n' "${1%%|*}"
}

# install_packages WHY PACKAGE...: installs what is missing and says so; does nothing when all is there.
install_packages() {
  local why=$1; shift
  local missing as_root=() names=() entry
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  if ! command -v apt-get >/dev/null; then
    echo "orvelle: please install these packages by your system's means: ${missing[*]}" >&2
    return 1
  fi
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "orvelle: run as root, or install sudo, to install: ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
    echo "orvelle: sudo may ask for your password, to install packages with apt"
  fi
  "${as_root[@]}" apt-get update -q >/dev/null || return 1
  for entry in "${missing[@]}"; do names+=("$(known_name "$entry")"); done
  echo "orvelle: installing ${names[*]} ($why)"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${names[@]}" >/dev/null
}
