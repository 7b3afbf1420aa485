#!/usr/bin/env bash
# probe_program_test.sh PROBE: exit statuses and output of the real program.
set -uo pipefail
probe=$1
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
expect 2 'goes with no other option' --modules --step 1
expect 2 'usage:' --wrong
expect 2 'usage:' extra
expect 2 'usage:' --step 0
expect 2 'usage:' --step nan
expect 2 'usage:' --cycles 0
expect 2 'usage:' --cycles 3 --root "$directory/empty"
exit $((failures > 0))
