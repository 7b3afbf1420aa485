#!/usr/bin/env bash
# program.sh ORVELLE: what the running program costs, in about a minute, on a virtual display: from its start to
# its first painted bar, its memory, its wake-ups, its CPU time and its system calls with nothing open.
# Prints a Markdown table.
set -euo pipefail
orvelle=$1
source "$(dirname "$(readlink -f "$0")")/../scripts/virtual_display.sh"
settings=$(mktemp -d)
unset "${!QT_@}" WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$settings XDG_STATE_HOME=$settings
process=""
finish() {
  [ -z "$process" ] || end_program
  stop_virtual_display
  rm -rf "$settings"
}
trap finish EXIT

milliseconds() { date +%s%3N; }

# Starts the program and sets `process` and `started`, the milliseconds from the call to the first painted bar.
start_program() {
  local begin painted
  begin=$(milliseconds)
  XDG_CONFIG_HOME=$settings QT_FORCE_STDERR_LOGGING=1 QT_LOGGING_RULES="orvelle.start.debug=true" \
    QT_MESSAGE_PATTERN="%{time yyyy-MM-dd hh:mm:ss.zzz} %{message}" "$orvelle" 2>"$settings/log" &
  process=$!
  wait_until 20 grep -q 'first bar painted' "$settings/log"
  painted=$(date -d "$(sed -n 's/ first bar painted.*//p' "$settings/log")" +%s%3N)
  started=$((painted - begin))
}

end_program() {
  kill "$process" || true
  wait "$process" || true
  process=""
}

voluntary_switches() { cat "/proc/$process"/task/*/status | awk '/^voluntary/ {sum += $2} END {print sum}'; }
cpu_ticks() { awk '{print $14 + $15}' "/proc/$process/stat"; }
memory_kilobytes() { awk -v name="$1:" '$1 == name {print $2}' "/proc/$process/smaps_rollup"; }

start_x_server 1280x800
start_window_manager
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
switches=$(voluntary_switches)
ticks=$(cpu_ticks)
seconds=30
sleep $seconds
switches=$(($(voluntary_switches) - switches))
ticks=$(($(cpu_ticks) - ticks))

cat <<TABLE
| What | Measured | Budget |
| --- | --- | --- |
| start of the process to first painted bar, median of 7 | $median_start ms | 150 ms |
| resident memory, no panel opened | $(memory_kilobytes Rss) kB | 32768 kB |
| proportional set | $(memory_kilobytes Pss) kB | 28672 kB |
| voluntary context switches, all threads | $(awk "BEGIN {printf \"%.2f\", $switches / $seconds}") per second | 1 per second |
| CPU time | $(awk "BEGIN {printf \"%.2f\", $ticks / $seconds * 100 / $(getconf CLK_TCK)}") % of a core | |
TABLE
if command -v strace >/dev/null; then
  timeout 12 strace -f -c -U calls,name -o "$settings/calls" -p "$process" 2>/dev/null || true
  echo "| system calls in 12 s, four samples and redraws | $(awk '$NF == "total" {print $1}' "$settings/calls") | |"
fi
end_program
