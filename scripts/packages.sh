# Sourced by scripts/system.sh: which Debian packages each needs, and how they are installed when missing.
# An entry "a|b" is a package that has two names in the supported releases; the first one known is taken.
# shellcheck disable=SC2034 # the lists are for those who source this file

build_packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools
  "qt6-svg-dev|libqt6svg6-dev" libfmt-dev bootstrap-icons
  libxcb1-dev libxcb-ewmh-dev libxcb-xinput-dev
)
# What the program needs to draw text and to meet a display, where the desktop does not bring it already.
desktop_packages=(fonts-dejavu-core libxcb-cursor0 x11-utils)
# The modules that the windows' QML imports when they are opened.
qml_packages=(
  qml6-module-qtquick qml6-module-qtquick-layouts qml6-module-qtquick-templates
  qml6-module-qtquick-window
  qml6-module-qtqml qml6-module-qtqml-workerscript
)
# A display of our own for a machine without one, and what clicks on it and takes pictures of it.
virtual_display_packages=(xvfb openbox imagemagick x11-utils x11-xserver-utils xdotool)
# `locales` brings the sources of the locale with a decimal comma under which numbers are tested.
test_packages=(
  libgtest-dev gobjc++ xdotool wmctrl xfwm4 picom locales
  # An accessibility bus and a program that reads it.
  dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi
  # A session manager.
  libsm-dev libice-dev
  # A narrower font, in which the windows are laid out too.
  fonts-dejavu-extra
)
# What looks for faults without running anything; ./lint says why these versions.
lint_packages=(clang-format-19 clang-tidy-19 shellcheck pylint)

# Prints those of the given packages that are installed, one a line.
installed_packages() {
  dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p' || true
}

# Prints the entries of the given list of which no name is installed, one a line. One query serves them all.
missing_packages() {
  local entry name installed found
  # shellcheck disable=SC2048,SC2086 # the names of an entry are to be split into words
  installed=" $(installed_packages ${*//|/ } | tr '\n' ' ') "
  for entry in "$@"; do
    found=""
    for name in ${entry//|/ }; do
      [[ $installed != *" $name "* ]] || found=yes
    done
    [ -n "$found" ] || printf '%s\n' "$entry"
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

# Where no Debian package can be asked for: what the build calls must be there, however it came.
require_commands() {
  local command missing=()
  for command in c++ cmake ninja pkg-config; do
    command -v "$command" >/dev/null || missing+=("$command")
  done
  if [ ${#missing[@]} -gt 0 ]; then
    echo "orvelle: missing ${missing[*]} ($1), and there is no apt here to install them" >&2
    return 1
  fi
}

# install_packages WHY PACKAGE...: installs what is missing and says so; does nothing when all is there. What apt says is
# kept in build/packages.log; a failure is one line that names what is missing.
install_packages() {
  local why=$1; shift
  local missing as_root=() names=() entry log=build/packages.log
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    require_commands "$why"
    return
  fi
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "orvelle: missing ${missing[*]} ($why); run as root, or install sudo, to install them" >&2
      return 1
    fi
    as_root=(sudo)
    echo "orvelle: sudo may ask for your password, to install packages with apt"
  fi
  echo "orvelle: installing ${missing[*]} ($why)"
  mkdir -p build
  # One broken source of packages need not matter: the installation decides.
  "${as_root[@]}" apt-get update -q >"$log" 2>&1 || echo "orvelle: the package lists could not all be renewed" >&2
  for entry in "${missing[@]}"; do names+=("$(known_name "$entry")"); done
  # Waiting for the disk after each of several hundred packages takes half of the time: once at the end is enough.
  if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 -o Dpkg::Options::=--force-unsafe-io \
    "${names[@]}" >>"$log" 2>&1; then
    echo "orvelle: apt could not install ${names[*]}: $(grep '^E: ' "$log" | tail -1); $log has all that it said" >&2
    return 1
  fi
  sync
}
