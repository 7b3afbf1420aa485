#!/usr/bin/env bash
# wayland.sh ORVELLE WAYLAND_CLIENT: what the running program and its panels cost under a headless sway, in about four
# minutes: its start, its memory, its wake-ups, and how long a panel takes from the click to its first frame. Prints a
# Markdown table.
orvelle=$1
# shellcheck disable=SC2034 # the sourced file uses it
client=$2
exec {table}>&1 1>&2 # what the tests' functions say is no part of the table
# shellcheck source=tests/e2e/wayland/bar_on_sway.sh
source "$(dirname "$(readlink -f "$0")")/../tests/e2e/wayland/bar_on_sway.sh"

milliseconds() { date +%s%3N; }
# One line for each thread: its id and its voluntary context switches.
voluntary_switches() { cat "/proc/$orvellePid"/task/*/status | awk '/^Pid:/ {id = $2} /^voluntary/ {print id, $2}' | sort; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$orvellePid/stat"; }
memory_kilobytes() { awk -v name="$1:" '$1 == name {print $2}' "/proc/$orvellePid/smaps_rollup"; }
maximum() { sort -n | tail -1; }
opening_times() { sed -n 's/.*panel was painted \([0-9.]*\) ms.*/\1/p' "$log"; }

# Starts the program and sets `started`, the milliseconds from the call to the first painted bar.
start_program() {
  local begin painted
  begin=$(milliseconds)
  launch "$log" env QT_LOGGING_RULES="orvelle.open.debug=true;orvelle.start.debug=true" \
    QT_MESSAGE_PATTERN="%{time yyyy-MM-dd hh:mm:ss.zzz} %{message}" "$orvelle"
  wait_until 20 grep -q 'first bar painted' "$log" || { cat "$log"; exit 1; }
  painted=$(date -d "$(sed -n 's/ first bar painted.*//p' "$log")" +%s%3N)
  started=$((painted - begin))
}

end_program() {
  kill "$orvellePid"
  wait "$orvellePid" || fail "the program ends with status $?"
}

# measure_idle SECONDS: sets `switches` and `percent`, the wake-ups per second and the CPU time of all threads.
measure_idle() {
  local before_switches before_ticks
  before_switches=$(voluntary_switches)
  before_ticks=$(cpu_ticks)
  sleep "$1"
  # A thread that has ended meanwhile counts for nothing.
  switches=$(join <(echo "$before_switches") <(voluntary_switches) | awk -v seconds="$1" \
    '{sum += $3 - $2} END {printf "%.2f", sum / seconds}')
  percent=$(awk -v ticks=$(($(cpu_ticks) - before_ticks)) -v seconds="$1" -v hertz="$(getconf CLK_TCK)" \
    'BEGIN {printf "%.2f", ticks / seconds * 100 / hertz}')
}

# open_panels ROUNDS: opens and closes each panel in turn; the log then says how long each took.
open_panels() {
  local round index
  for ((round = 0; round < $1; ++round)); do
    for index in "${!module_keys[@]}"; do
      clickItem "$index"
      sleep 0.8
      seat key Escape
      sleep 0.3
    done
  done
}

startSway
onOutput HEADLESS-1
starts=()
for _ in 1 2 3 4 5 6 7; do
  start_program
  starts+=("$started")
  end_program
  sleep 0.5
done
median_start=$(printf '%s\n' "${starts[@]}" | sort -n | sed -n 4p)

start_program
sleep 10
measure_idle 60
idle_switches=$switches idle_percent=$percent
closed_rss=$(memory_kilobytes Rss) closed_pss=$(memory_kilobytes Pss)
end_program

storeVisibility true
start_program
sleep 4
clickItem 0
sleep 3
first_rss=$(memory_kilobytes Rss)
seat key Escape
sleep 0.5
open_panels 1
mapfile -t first_times < <(opening_times)
open_panels 5
later=$(opening_times | tail -n 30 | maximum)
all_rss=$(memory_kilobytes Rss)
sleep 5
measure_idle 60
end_program
stopSway

cat >&"$table" <<TABLE
| What | Measured | Budget |
| --- | --- | --- |
| start of the process to first painted bar, median of 7 | $median_start ms | 150 ms |
| resident memory, no panel opened | $closed_rss kB | 32768 kB |
| proportional set | $closed_pss kB | 28672 kB |
| voluntary context switches, all threads, nothing open | $idle_switches per second | 1 per second |
| CPU time, nothing open | $idle_percent % of a core | |
| click to first frame, the first panel of the program | ${first_times[0]} ms | 120 ms |
| the first time of each other panel, at most | $(printf '%s\n' "${first_times[@]:2}" | maximum) ms | 120 ms |
| later openings, at most of 30 | $later ms | 25 ms |
| resident memory, one panel open | $first_rss kB | 57344 kB |
| resident memory, all six panels opened six times | $all_rss kB | 57344 kB |
| voluntary context switches, six modules, panels opened and closed before | $switches per second | 1 per second |
| CPU time of the same | $percent % of a core | |
TABLE
# shellcheck disable=SC2154 # the sourced file counts them
((failures == 0))
