#!/usr/bin/env bash
# probe_following_test.sh PROBE: follows machines as scripts and status bars do.
set -uo pipefail
probe=$1
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
failures=0
complain() { echo "$1" >&2; failures=$((failures + 1)); }

status_of() { # status_of ARGUMENT...: leaves the status, the output and the errors of the probe
  "$probe" "$@" >"$directory/output" 2>"$directory/errors"
  status=$?
}
expect_refused() { # expect_refused PATTERN ARGUMENT...
  local pattern=$1; shift
  status_of "$@"
  { [ $status -eq 2 ] && [ ! -s "$directory/output" ] && [ "$(wc -l <"$directory/errors")" -eq 1 ] &&
    grep -q -- "$pattern" "$directory/errors"; } || complain "orvelle-probe $*: status $status, $(cat "$directory/errors")"
}

mkdir -p "$directory/one/proc" "$directory/two/proc"
echo "cpu0 100 0 100 800" >"$directory/one/proc/stat"
echo "cpu0 150 0 100 850" >"$directory/two/proc/stat"

# A recording ends by itself.
status_of --follow --fields cpu.totalUsage,memory.info --root "$directory/one" --root "$directory/two"
{ [ $status -eq 0 ] && [ "$(wc -l <"$directory/output")" -eq 2 ] && [ ! -s "$directory/errors" ]; } || complain "a recording is two lines"
tail -n 1 "$directory/output" | grep -q '^{"cpu.totalUsage":0.5,"memory.info":{.*"used":0.*}}$' ||
  complain "the values: $(cat "$directory/output")"
status_of --follow --root "$directory/one"
grep -q '^{"battery":{.*"updateCycleCount":1}$' "$directory/output" || complain "every value is told unless some are named"

# The lines of this machine come while it runs, and end with their reader.
mkfifo "$directory/lines"
"$probe" --follow --fields updateCycleCount --interval 0.2 >"$directory/lines" 2>"$directory/errors" &
program=$!
exec 3<"$directory/lines"
for cycle in 2 3 4; do
  { read -r -t 20 line <&3 && [ "$line" = "{\"updateCycleCount\":$cycle}" ]; } || complain "line of cycle $cycle: ${line-}"
done
exec 3<&-
{ wait $program && [ ! -s "$directory/errors" ]; } || complain "the end of the reader is no failure: $(cat "$directory/errors")"

# The reader's end is seen while the program waits for the next sample.
"$probe" --plain --interval 600 >"$directory/lines" 2>"$directory/errors" &
program=$!
exec 3<"$directory/lines"
read -r -t 20 line <&3 || complain "no first line"
exec 3<&-
for _ in $(seq 100); do kill -0 $program 2>/dev/null || break; sleep 0.05; done
kill -9 $program 2>/dev/null && complain "the program outlives its reader"
wait $program

status_of --waybar --root "$directory/one" --root "$directory/two" --fields cpu,memory
tail -n 1 "$directory/output" |
  grep -q '^{"class":"warning","full_text":"CPU 50%  MEM 0.0%","percentage":50,"text":"CPU 50%  MEM 0.0%","tooltip":"CPU 50%.*}$' ||
  complain "a line for Waybar: $(cat "$directory/output")"
status_of --plain --root "$directory/one" --root "$directory/two" --fields memory,cpu
[ "$(tail -n 1 "$directory/output")" = "MEM 0.0%  CPU 50%" ] || complain "a plain line: $(cat "$directory/output")"

# The modules are those that the user shows. The settings stay as they are.
export XDG_CONFIG_HOME=$directory/config
status_of --plain --root "$directory/one"
grep -q '^CPU .*  MEM .*  ↓0.0B ↑0.0B  AC$' "$directory/output" || complain "the default modules: $(cat "$directory/output")"
[ ! -e "$directory/config" ] || complain "settings were written"
mkdir -p "$directory/config/orvelle"
printf '[General]\nshowCPU=false\nshowNetwork=no\nshowSensors=true\nshowBattery=perhaps\n' >"$directory/config/orvelle/orvelle.conf"
: >"$directory/config/orvelle/.orvelle.conf.last" # as a power cut may leave it
cp -a "$directory/config/orvelle" "$directory/before"
status_of --plain --root "$directory/one"
grep -q '^MEM .*  AC  --°C$' "$directory/output" || complain "the user's modules: $(cat "$directory/output")"
head -c 3000000 /dev/zero >"$directory/config/orvelle/orvelle.conf" # damaged beyond reading
cp -a "$directory/config/orvelle/orvelle.conf" "$directory/before"
status_of --plain --root "$directory/one"
grep -q '^CPU .*  AC$' "$directory/output" || complain "damaged settings are the defaults: $(cat "$directory/output")"
diff -r "$directory/before" "$directory/config/orvelle" || complain "the settings have changed"

expect_refused '"cpu.none"' --follow --fields cpu.none
expect_refused '"gpu"' --waybar --fields cpu,gpu
expect_refused '\-\-fields' --follow --fields ,
expect_refused '\-\-interval' --follow --interval 0
expect_refused '\-\-interval' --waybar --interval forever
expect_refused 'does not go with' --follow --waybar
expect_refused '\-\-interval goes with' --interval 3
expect_refused '\-\-step does not go with --follow' --follow --step 1
status_of --follow --root "$directory/missing"
{ [ $status -eq 1 ] && [ "$(wc -l <"$directory/errors")" -eq 1 ]; } || complain "a missing folder: status $status"
if [ -e /dev/full ]; then
  timeout 20 "$probe" --follow --interval 0.2 >/dev/full 2>"$directory/errors"
  { [ $? -eq 1 ] && [ "$(wc -l <"$directory/errors")" -eq 1 ]; } || complain "a full disk: $(cat "$directory/errors")"
fi
timeout 20 "$probe" --waybar >&- 2>"$directory/errors"
{ [ $? -eq 1 ] && [ "$(wc -l <"$directory/errors")" -eq 1 ]; } || complain "a closed output: $(cat "$directory/errors")"
exit $((failures > 0))
