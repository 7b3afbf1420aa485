#!/usr/bin/env bash
# windows.sh ORVELLE: what the windows of the running program cost, in about four minutes, on a virtual display: how long
# each takes from the click to its first frame, the memory with a panel open, and the CPU time of an open panel. Prints a
# Markdown table.
set -euo pipefail
orvelle=$1
source "$(dirname "$(readlink -f "$0")")/on_virtual_display.sh"
program=""
finish() {
  [ -z "$program" ] || { kill "$program" 2>/dev/null || true; wait "$program" 2>/dev/null || true; }
  stop_virtual_display
  rm -rf "$settings"
}
trap finish EXIT

export QT_MESSAGE_PATTERN="%{time process} %{message}" # the seconds since its start
read_modules "$orvelle"
# click_item NUMBER [BUTTON]: from the left, while all are shown.
click_item() { xdotool mousemove $((1280 - module_middles[$1])) 11 click "${2:-1}"; }
press_escape() { xdotool key Escape; }

# start_program SETTING...
start_program() {
  write_settings "$@"
  "$orvelle" 2>"$log" &
  program=$!
  wait_until 20 grep -q 'first bar painted' "$log"
  sleep 4
}
end_program() {
  kill "$program"
  wait "$program" || true
  program=""
}

# Milliseconds from being asked for the settings to their first frame, one opening a line.
settings_times() {
  awk '/settings were asked for/ {asked = $1} /settings window was painted/ {printf "%.0f\n", ($1 - asked) * 1000}' \
    "$log"
}
open_settings() {
  click_item 0 3
  sleep 0.8
  xdotool key Down Return
  sleep 2
}

everything=("${module_settings[@]/%/=true}")
start_x_server 1280x800
start_window_manager

start_program "${everything[@]}"
click_item 0
sleep 3
add_row "resident memory, one panel open" "$(memory_kilobytes Rss) kB" "57344 kB"
read -r open_percent < <(cpu_percent 60 "$program")
add_row "CPU time with the CPU panel open, for each 3 s, the sample included" \
  "$(awk -v percent="$open_percent" 'BEGIN {printf "%.1f", percent * 30}') ms" "10 ms"
press_escape
sleep 0.5
add_opening_rows
for _ in 1 2 3 4; do open_settings; press_escape; sleep 0.5; done
mapfile -t settings_openings < <(settings_times)
add_row "settings window to first frame, the first time" "${settings_openings[0]} ms" "250 ms"
add_row "later, at most of 3" "$(printf '%s\n' "${settings_openings[@]:1}" | maximum) ms" "60 ms"
add_row "resident memory after the panels and the settings" "$(memory_kilobytes Rss) kB" ""
end_program
print_table
