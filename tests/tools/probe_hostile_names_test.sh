#!/usr/bin/env bash
# probe_hostile_names_test.sh PROBE FIXTURES: asks what is told of a machine whose names were chosen to do harm.
set -uo pipefail
probe=$1 fixtures=$2
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
failures=0
complain() { echo "$1" >&2; failures=$((failures + 1)); }
hostile_machine() { python3 -BSE "$(dirname "$0")/hostile_machine.py" "$@"; }

machine=$directory/machine
hostile_machine make "$fixtures/laptop/1" "$machine" || complain "no machine"
roots=(--root "$machine" --root "$machine")
"$probe" --waybar --fields cpu,memory,network,disk,battery,sensor "${roots[@]}" >"$directory/waybar" || complain "no lines"
hostile_machine judge "$directory/waybar" >&2 || complain "the lines for status bars are not harmless"
"$probe" --plain "${roots[@]}" >"$directory/plain" || complain "no plain lines"
"$probe" "${roots[@]}" >"$directory/values" || complain "no values"
"$probe" --follow "${roots[@]}" >"$directory/follow" || complain "no followed values"
for output in plain values follow waybar; do
  [ -s "$directory/$output" ] || complain "$output is empty"
  # A terminal obeys control characters, of the second range too.
  LC_ALL=C grep -nP '[\x00-\x08\x0b-\x1f\x7f]|\xc2[\x80-\x9f]' "$directory/$output" >&2 && complain "$output has control characters"
  iconv -f UTF-8 -t UTF-8 "$directory/$output" >/dev/null || complain "$output is not UTF-8"
done
grep -q '<b>bold</b>' "$directory/values" || complain "a name is not told as it is"
[ $failures -eq 0 ]
