#!/bin/bash
# finish_bundle.sh MACDEPLOYQT BUNDLE QML_FOLDER LIBRARY_FOLDER...: makes an application bundle start on a Mac that has
# nothing but the system. It copies Qt and other libraries into it, states the oldest system that all of them run on,
# checks what they refer to, and signs the result.
#
# ORVELLE_SIGNING_IDENTITY is the name of a "Developer ID Application" certificate in the keychain. Without it each part
# gets an ad hoc signature: a processor of Apple starts nothing that has none, and other Macs ask their user.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/machine_code.sh"
macdeployqt=$1 bundle=$2 qml=$3; shift 3

copy_libraries() {
  local folder arguments=("$bundle" "-qmldir=$qml")
  # A library of Homebrew names others by @rpath, and macdeployqt does not look in Homebrew's folder by itself.
  for folder in "$@"; do arguments+=("-libpath=$folder"); done
  "$macdeployqt" "${arguments[@]}" # its status is 0 even when a library is missing
}

# The newest of the systems that the parts were built for. Homebrew builds its libraries for the system that it runs on.
state_oldest_system() {
  local file oldest list=$bundle/Contents/Info.plist
  oldest=$({ plutil -extract LSMinimumSystemVersion raw -o - "$list"
    machine_code "$bundle" | while IFS= read -r file; do oldest_system "$file"; done
  } | sort -t. -k1,1n -k2,2n -k3,3n | tail -1)
  plutil -replace LSMinimumSystemVersion -string "$oldest" "$list"
  echo "finish_bundle: the bundle runs on macOS $oldest and newer"
}

sign() {
  local identity=${ORVELLE_SIGNING_IDENTITY:-} file options=()
  if [ -n "$identity" ]; then
    options=(--options runtime --timestamp) # what notarising asks for
  else
    identity=-
    echo "finish_bundle: ORVELLE_SIGNING_IDENTITY is not set, so the signature names nobody"
  fi
  # A signature covers those of the parts inside.
  while IFS= read -r file; do
    codesign --force --sign "$identity" ${options[@]+"${options[@]}"} "$file"
  done < <(machine_code "$bundle" && printf '%s\n' "$bundle")
  codesign --verify --deep --strict "$bundle"
}

copy_libraries "$@"
state_oldest_system
"$here/check_bundle.sh" "$bundle"
sign
