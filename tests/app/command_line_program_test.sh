#!/usr/bin/env bash
# command_line_program_test.sh ORVELLE VERSION: what the real program answers on its command line where there is no
# display: exit statuses and output.
set -uo pipefail
orvelle=$1
version=$2
unset "${!QT_@}" DISPLAY WAYLAND_DISPLAY XDG_RUNTIME_DIR DBUS_SESSION_BUS_ADDRESS
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
output=$directory/output errors=$directory/errors
failures=0

# matches FILE PATTERN: whether a line of the file does; without a pattern, whether the file is empty.
matches() { if [ -z "$2" ]; then [ ! -s "$1" ]; else grep -q -- "$2" "$1"; fi; }

judge() { # judge WHAT STATUS WANTED_STATUS OUTPUT_PATTERN ERROR_PATTERN: errors must be a single line
  if [ "$2" -ne "$3" ] || ! matches "$output" "$4" || ! matches "$errors" "$5" || [ "$(wc -l <"$errors")" -gt 1 ]; then
    echo "$1: status $2 (wanted $3)" >&2
    cat "$output" "$errors" >&2
    failures=$((failures + 1))
  fi
}

expect() { # expect STATUS OUTPUT_PATTERN ERROR_PATTERN ARGUMENT...
  "$orvelle" "${@:4}" >"$output" 2>"$errors"
  judge "orvelle ${*:4}" $? "$1" "$2" "$3"
}

for option in --help -h; do expect 0 '^Usage: orvelle ' '' $option; done
for option in --version -v; do expect 0 "^orvelle $version\$" '' $option; done
expect 0 '--open MODULE' '' --help --settings
expect 2 '' "^orvelle: Unknown option 'loud'" --loud
expect 2 '' "^orvelle: Unexpected argument 'now'" now
expect 2 '' "^orvelle: Unknown module 'moon'; it is one of: cpu, " --open moon
expect 2 '' "^orvelle: Missing value after '--open'" --open
expect 2 '' "^orvelle: Unknown desktop 'moon'; it is one of: " --desktop=moon
expect 2 '' '^orvelle: Only one of ' --settings --quit
for option in --settings --open=cpu --quit; do expect 1 '' '^Orvelle finds no desktop: ' $option; done

: >"$output"
if [ -c /dev/full ]; then
  "$orvelle" --help >/dev/full 2>"$errors"
  judge "a full disk" $? 1 '' '^orvelle: No space left'
fi
"$orvelle" --version >&- 2>"$errors"
judge "a closed output" $? 1 '' '^orvelle: Bad file'
exit $((failures > 0))
