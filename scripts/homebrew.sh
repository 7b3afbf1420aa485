# Sourced on macOS to replace the Debian parts: packages come from Homebrew, and there is always a display.
# This file must work in bash 3.2, the version of macOS.
# shellcheck disable=SC2034 # the sourcing scripts use these variables

build_packages=(cmake ninja fmt)
# One package contains all of Qt.
desktop_packages=(qt)
qml_packages=(qt)
virtual_display_packages=(qt)
test_packages=(googletest)

program=build/release/bin/Orvelle.app/Contents/MacOS/Orvelle
has_display() { true; }

# install_packages WHY PACKAGE...: installs missing packages and reports them; does nothing when none is missing.
install_packages() {
  local why=$1; shift
  local missing=() package
  command -v brew >/dev/null || { echo "orvelle: install Homebrew first, to install: $* ($why)" >&2; return 1; }
  for package in $(printf '%s\n' "$@" | sort -u); do
    brew list --versions "$package" >/dev/null 2>&1 || missing+=("$package")
  done
  if [ ${#missing[@]} -gt 0 ]; then
    echo "orvelle: installing ${missing[*]} ($why)"
    brew install --quiet "${missing[@]}"
  fi
  CMAKE_PREFIX_PATH=$(brew --prefix)
  export CMAKE_PREFIX_PATH
}
