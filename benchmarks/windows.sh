#!/usr/bin/env bash
# windows.sh ORVELLE: what the windows of the running program cost, in about five minutes, on a virtual display:
# how long each takes from the click to its first frame, the memory with a panel open, the CPU time of an open panel
# and of the program with everything closed, the latter beside polybar with the same modules. Prints a Markdown
# table.
set -euo pipefail
orvelle=$1
source "$(dirname "$(readlink -f "$0")")/../scripts/virtual_display.sh"
source "$(dirname "$(readlink -f "$0")")/../scripts/modules.sh"
settings=$(mktemp -d)
unset "${!QT_@}" WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$settings XDG_CONFIG_HOME=$settings XDG_STATE_HOME=$settings
process="" other=""
finish() {
  for started in $process $other; do kill "$started" 2>/dev/null || true; wait "$started" 2>/dev/null || true; done
  stop_virtual_display
  rm -rf "$settings"
}
trap finish EXIT

read_modules "$orvelle"
# click_item NUMBER [BUTTON]: from the left, while all are shown.
click_item() { xdotool mousemove $((1280 - module_middles[$1])) 11 click "${2:-1}"; }
memory_kilobytes() { awk -v name="$1:" '$1 == name {print $2}' "/proc/$process/smaps_rollup"; }
# CPU time of a process, nanoseconds.
cpu_nanoseconds() { cat "/proc/$1"/task/*/schedstat | awk '{sum += $1} END {printf "%d", sum}'; }
maximum() { sort -n | tail -1; }

# cpu_percent SECONDS PROCESS...: what each uses of a core in the same time, separated by blanks.
cpu_percent() {
  local seconds=$1 id before=()
  shift
  for id in "$@"; do before+=("$(cpu_nanoseconds "$id")"); done
  sleep "$seconds"
  for id in "$@"; do
    awk -v nanoseconds=$(($(cpu_nanoseconds "$id") - before[0])) -v seconds="$seconds" \
      'BEGIN {printf "%.3f ", nanoseconds / seconds / 1e7}'
    before=("${before[@]:1}")
  done
  echo
}

start_program() {
  mkdir -p "$settings/orvelle"
  printf '%s\n' '[General]' "$@" >"$settings/orvelle/orvelle.conf"
  QT_FORCE_STDERR_LOGGING=1 QT_LOGGING_RULES="orvelle.open.debug=true;orvelle.start.debug=true" \
    QT_MESSAGE_PATTERN="%{time process} %{message}" "$orvelle" 2>"$settings/log" &
  process=$!
  wait_until 20 grep -q 'first bar painted' "$settings/log"
  sleep 4
}
end_program() {
  kill "$process"
  wait "$process" || true
  process=""
}

# open_panels ROUNDS: opens and closes each panel in turn; the log then says how long each took.
open_panels() {
  local index
  for ((round = 0; round < $1; ++round)); do
    for index in "${!module_keys[@]}"; do
      click_item "$index"
      sleep 0.8
      xdotool key Escape
      sleep 0.3
    done
  done
}
# Milliseconds of the panels' openings, one a line.
opening_times() { sed -n 's/.*panel was painted \([0-9.]*\) ms.*/\1/p' "$settings/log"; }

# Milliseconds from being asked for the settings to their first frame, one opening a line.
settings_times() {
  awk '/settings were asked for/ {asked = $1} /settings window was painted/ {printf "%.0f\n", ($1 - asked) * 1000}' \
    "$settings/log"
}
open_settings() {
  click_item 0 3
  sleep 0.8
  xdotool key Down Return
  sleep 2
}

write_polybar_settings() {
  local interface
  interface=$(ip -o link 2>/dev/null | sed -n "s/^[0-9]*: \([^:@]*\).*/\1/p" | grep -vx lo | head -n 1 || true)
  cat >"$settings/polybar.ini" <<INI
[bar/main]
width = 100%
height = 22
font-0 = DejaVu Sans:size=9;2
modules-right = cpu memory network disk battery temperature
[module/cpu]
type = internal/cpu
interval = 3
format = <label> <ramp-coreload>
ramp-coreload-0 = _
ramp-coreload-1 = -
ramp-coreload-2 = =
label = %percentage%%
[module/memory]
type = internal/memory
interval = 3
label = %percentage_used%%
[module/network]
type = internal/network
interface = ${interface:-lo}
interval = 3
label-connected = %upspeed% %downspeed%
[module/disk]
type = internal/fs
mount-0 = /
interval = 3
[module/battery]
type = internal/battery
[module/temperature]
type = internal/temperature
interval = 3
INI
}

everything=("${module_settings[@]/%/=true}")
start_x_server 1280x800
start_window_manager

start_program "${everything[@]}"
click_item 0
sleep 3
first_rss=$(memory_kilobytes Rss)
panel_cpu=$(cpu_percent 30 "$process")
xdotool key Escape
sleep 0.5
open_panels 1
mapfile -t first_times < <(opening_times)
open_panels 5
later=$(opening_times | tail -n 30 | maximum)
all_rss=$(memory_kilobytes Rss)
open_settings
xdotool key Escape
sleep 0.5
for _ in 1 2 3; do open_settings; xdotool key Escape; sleep 0.5; done
mapfile -t settings_openings < <(settings_times)
settings_rss=$(memory_kilobytes Rss)
end_program

start_program "${everything[@]}"
other_percent="not installed"
if command -v polybar >/dev/null; then
  write_polybar_settings
  polybar --quiet --config="$settings/polybar.ini" main >/dev/null 2>&1 &
  other=$!
  sleep 5
  read -r own_percent other_percent < <(cpu_percent 60 "$process" "$other")
else
  own_percent=$(cpu_percent 60 "$process")
fi

cat <<TABLE
| What | Measured | Budget |
| --- | --- | --- |
| click to first frame, the first panel of the program | ${first_times[0]} ms | 120 ms |
| the first time of each other panel, at most | $(printf '%s\n' "${first_times[@]:2}" | maximum) ms | 120 ms |
| later openings, at most of 30 | $later ms | 25 ms |
| resident memory, one panel open | $first_rss kB | 57344 kB |
| resident memory, all six panels opened once | $all_rss kB | |
| CPU time with the CPU panel open, samples included | ${panel_cpu}% of a core | |
| settings window to first frame, the first time | ${settings_openings[0]} ms | 250 ms |
| later, at most of 3 | $(printf '%s\n' "${settings_openings[@]:1}" | maximum) ms | 60 ms |
| resident memory after the panels and the settings | $settings_rss kB | |
| CPU time with all six modules, everything closed | $own_percent% of a core | that of polybar |
| CPU time of polybar with the same modules, in the same minute | $other_percent% of a core | |
TABLE
