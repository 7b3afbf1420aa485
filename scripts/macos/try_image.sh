#!/bin/bash
# try_image.sh IMAGE PICTURES: tries the program in a disk image while the libraries of Homebrew are out of reach, as on the
# Mac of a user. For machines that are thrown away afterwards: it moves Homebrew's folder for a while.
set -euo pipefail
image=$1 pictures=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
place=$(mktemp -d)
homebrew=$(brew --prefix)
leave() {
  [ ! -d "$homebrew.away" ] || sudo mv "$homebrew.away" "$homebrew"
  hdiutil detach -quiet "$place/image" || true
}
trap leave EXIT
mkdir "$place/image"
hdiutil attach -quiet -nobrowse -readonly -mountpoint "$place/image" "$image"
cp -R "$place/image/Orvelle.app" "$place/"
codesign --verify --deep --strict "$place/Orvelle.app"
# What a user is told without a signing identity; not a failure.
spctl --assess --verbose "$place/Orvelle.app" || true
sudo mv "$homebrew" "$homebrew.away"
"$here/try_program.sh" "$place/Orvelle.app" "$pictures"
