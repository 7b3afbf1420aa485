#!/usr/bin/env bash
# snapshot_program_test.sh SNAPSHOT VERSION: exit statuses and files of the real program, without any display.
set -uo pipefail
snapshot=$1 version=$2
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
failures=0

complain() { echo "$1" >&2; failures=$((failures + 1)); }

expect() { # expect STATUS PATTERN ARGUMENT...
  local status=$1 pattern=$2 output; shift 2
  output=$("$snapshot" "$@" 2>&1); local actual=$?
  if [ $actual -ne "$status" ] || ! grep -q -- "$pattern" <<<"$output"; then
    complain "orvelle-snapshot $*: status $actual (wanted $status), output: $output"
  fi
}

expect_pictures() { # expect_pictures DIRECTORY SCALE
  local name
  for name in bar-charts mini-bars line-graphs sparklines ring-charts segment-rings temperature-gauges menu-bar-items menu-bar-items-light \
    themes settings panel-cpu panel-memory panel-network panel-disk panel-battery panel-sensor; do
    head -c 4 "$1/$name@$2.png" | grep -q PNG || complain "$1/$name@$2.png is missing or no picture"
  done
}

mkdir "$directory/empty"
expect 0 '' "$directory/replayed" --scale 1.5 --root "$directory/empty" --root "$directory/empty"
expect_pictures "$directory/replayed" 1.5
expect 0 '' "$directory/pastel" --theme pastel --root "$directory/empty" --root "$directory/empty"
expect 0 '' "$directory/midnight" --root "$directory/empty" --root "$directory/empty"
expect 0 '' "$directory/here"
expect_pictures "$directory/here" 1
for name in menu-bar-items panel-cpu settings; do
  cmp -s "$directory/midnight/$name@1.png" "$directory/pastel/$name@1.png" && complain "$name looks the same in two themes"
done
expect 1 'Cannot read the directory' "$directory/none" --root "$directory/missing"
[ ! -e "$directory/none" ] || complain "a directory was made though there is nothing to paint"
expect 1 'Cannot make the directory' /dev/null/pictures --root "$directory/empty"
expect 0 "^orvelle-snapshot $version\$" --version
for option in root example scale theme help version; do expect 0 "^  .*--$option" --help; done
expect 0 'FOLDER' -h
expect 2 'One folder'
expect 2 'One folder' one two
expect 2 '\-\-scale' "$directory/none" --scale 0
expect 2 'No theme' "$directory/none" --theme pink
expect 2 "'wrong'" "$directory/none" --wrong
[ "$("$snapshot" --wrong 2>&1 | wc -l)" -eq 1 ] || complain "a wrong option is worth one line"
exit $((failures > 0))
