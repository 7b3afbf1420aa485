# Lists the Debian packages for each purpose and installs missing ones. Sourced by scripts/system.sh.
# An entry "a|b" is a package with two names in the supported releases; the first known name is used.
# shellcheck disable=SC2034 # the sourcing scripts use these lists

build_packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-base-private-dev qt6-declarative-dev qt6-declarative-dev-tools
  "qt6-svg-dev|libqt6svg6-dev" libfmt-dev bootstrap-icons
  libxcb1-dev libxcb-ewmh-dev libxcb-xinput-dev
  libwayland-dev wayland-protocols
)
# The program needs these to draw text and to use a display. A desktop may not provide them.
desktop_packages=(fonts-dejavu-core libxcb-cursor0 qt6-wayland x11-utils)
# The modules that the windows' QML imports when they open.
qml_packages=(
  qml6-module-qtquick qml6-module-qtquick-layouts qml6-module-qtquick-templates
  qml6-module-qtquick-window
  qml6-module-qtqml qml6-module-qtqml-workerscript
)
# A virtual display for a machine without one, and the tools that click on it and take pictures of it.
virtual_display_packages=(xvfb openbox imagemagick x11-utils x11-xserver-utils xdotool)
# `locales` contains the sources of the locale with a decimal comma that the tests of numbers use.
test_packages=(
  libgtest-dev gobjc++ xdotool wmctrl xfwm4 picom locales
  # An accessibility bus and a program that reads it.
  dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi
  # A session manager.
  libsm-dev libice-dev
  # A Wayland compositor without a screen, and the names of keys for a keyboard on it.
  sway libxkbcommon-dev wayland-protocols
  # It writes down what the program asks of the kernel.
  strace
  # A narrower font, for which the tests lay out the windows too.
  fonts-dejavu-extra
)
# Compositors for `./test desktops`: what they need to run without a screen, to be asked, and to show a Wayland window.
compositor_packages=(kwin-wayland gnome-shell xwayland python3-dbusmock libglib2.0-bin foot)
# What ./package writes packages with.
package_packages=(dpkg-dev file gzip xz-utils elfutils)
# Static checks; ./lint explains the versions.
lint_packages=(clang-format-19 clang-tidy-19 shellcheck pylint)

# Prints the installed packages among the given ones, one per line.
installed_packages() {
  dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p' || true
}

# Prints the entries of the given list without an installed name, one per line. One query serves all entries.
missing_packages() {
  local entry name installed found
  # shellcheck disable=SC2048,SC2086 # splits the names of an entry into words
  installed=" $(installed_packages ${*//|/ } | tr '\n' ' ') "
  for entry in "$@"; do
    found=""
    for name in ${entry//|/ }; do
      [[ $installed != *" $name "* ]] || found=yes
    done
    [ -n "$found" ] || printf '%s\n' "$entry"
  done
}

# Prints the first name of an entry that the package lists know.
known_name() {
  local name
  for name in ${1//|/ }; do
    if apt-cache show "$name" >/dev/null 2>&1; then printf '%s\n' "$name"; return; fi
  done
  printf '%s\n' "${1%%|*}"
}

# Without Debian packages: checks that the commands of the build exist.
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

# install_packages WHY PACKAGE...: installs missing packages and reports them; does nothing when none is missing. The
# output of apt goes to build/packages.log. A failure prints one line that names the missing packages.
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
  # A broken package source may not matter. The installation decides.
  "${as_root[@]}" apt-get update -q >"$log" 2>&1 || echo "orvelle: the package lists could not all be renewed" >&2
  for entry in "${missing[@]}"; do names+=("$(known_name "$entry")"); done
  # Syncing the disk after each of several hundred packages takes half of the time. One sync at the end is enough.
  if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends -o DPkg::Lock::Timeout=300 -o Dpkg::Options::=--force-unsafe-io \
    "${names[@]}" >>"$log" 2>&1; then
    echo "orvelle: apt could not install ${names[*]}: $(grep '^E: ' "$log" | tail -1); $log has all that it said" >&2
    return 1
  fi
  sync
}
