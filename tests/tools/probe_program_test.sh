#!/usr/bin/env bash
# probe_program_test.sh PROBE VERSION: exit statuses and output of the real program.
set -uo pipefail
probe=$1 version=$2
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
failures=0

expect() { # expect STATUS PATTERN ARGUMENT...
  local status=$1 pattern=$2 output; shift 2
  output=$("$probe" "$@" 2>&1); local actual=$?
  if [ $actual -ne "$status" ] || ! grep -q -- "$pattern" <<<"$output"; then
    echo "orvelle-probe $*: status $actual (wanted $status), output: $output" >&2
    failures=$((failures + 1))
  fi
}

mkdir "$directory/empty"
expect 0 '"updateCycleCount": 1' --root "$directory/empty"
expect 0 '"updateCycleCount": 2' --step 0.05
expect 1 'Cannot read the directory' --root "$directory/missing"
expect 1 'Cannot read the directory' --root /dev/null
expect 0 $'^cpu\t60\tshowCPU\ttrue\tCPU$' --modules
expect 0 $'^sensor\t50\tshowSensors\tfalse\tSensors$' --modules
expect 0 "^orvelle-probe $version\$" --version
expect 0 "^orvelle-probe $version\$" -v
for option in root step cycles modules report follow waybar plain interval fields help version; do
  expect 0 "^  .*--$option" --help
done
expect 0 'Usage:' -h

expect_refused() { # expect_refused PATTERN ARGUMENT...: one line that has the pattern on stderr, nothing on stdout
  local pattern=$1 output errors; shift
  output=$("$probe" "$@" 2>"$directory/errors"); local actual=$?
  errors=$(cat "$directory/errors")
  if [ $actual -ne 2 ] || [ -n "$output" ] || [ "$(wc -l <"$directory/errors")" -ne 1 ] ||
    ! grep -q -- "^orvelle-probe: .*$pattern" <<<"$errors"; then
    echo "orvelle-probe $*: status $actual, output: $output, errors: $errors" >&2
    failures=$((failures + 1))
  fi
}

expect_refused 'does not go with --modules' --modules --step 1
expect_refused "'wrong'" --wrong
expect_refused "'wrong line'" $'--wrong\nline'
expect_refused 'Unexpected' extra
expect_refused '\-\-step' --step 0
expect_refused '\-\-step' --step nan
expect_refused '\-\-cycles' --cycles 0
expect_refused '\-\-cycles' --cycles 3 --root "$directory/empty"

# What cannot be written.
if [ -e /dev/full ]; then
  for mode in --modules "--step 0.05"; do
    # shellcheck disable=SC2086 # the mode may be two words
    "$probe" $mode >/dev/full 2>"$directory/errors"
    { [ $? -eq 1 ] && [ "$(wc -l <"$directory/errors")" -eq 1 ]; } ||
      { echo "a full disk is not told of: $mode" >&2; failures=$((failures + 1)); }
  done
fi
"$probe" --modules >&- 2>"$directory/errors"
{ [ $? -eq 1 ] && grep -q 'closed' "$directory/errors"; } || { echo "a closed output is not told of" >&2; failures=$((failures + 1)); }
exit $((failures > 0))
