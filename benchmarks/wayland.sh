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
source "$(dirname "$(readlink -f "$0")")/running_program.sh"

start_program() {
  local begin
  begin=$(milliseconds)
  launch "$log" "$orvelle"
  program=$orvellePid
  await_first_bar "$begin"
}
end_program() {
  kill "$program"
  wait "$program" || fail "the program ends with status $?"
}
click_item() { clickItem "$1"; }
press_escape() { seat key Escape; }

startSway
onOutput HEADLESS-1
add_start_rows 60
end_program

storeVisibility true
start_program
sleep 4
click_item 0
sleep 3
add_row "resident memory, one panel open" "$(memory_kilobytes Rss) kB" "57344 kB"
press_escape
sleep 0.5
add_opening_rows
sleep 5
add_idle_rows 60 "six modules, panels opened and closed before"
end_program
stopSway

print_table >&"$table"
# shellcheck disable=SC2154 # the sourced file counts them
((failures == 0))
