#!/usr/bin/env bash
# program.sh ORVELLE: what the running program costs, in about a minute, on a virtual display: from its start to
# its first painted bar, its memory, its wake-ups, its CPU time and its system calls with nothing open.
# Prints a Markdown table.
set -euo pipefail
orvelle=$1
source "$(dirname "$(readlink -f "$0")")/on_virtual_display.sh"
program=""
finish() {
  [ -z "$program" ] || end_program
  stop_virtual_display
  rm -rf "$settings"
}
trap finish EXIT

start_program() {
  local begin
  begin=$(milliseconds)
  "$orvelle" 2>"$log" &
  program=$!
  await_first_bar "$begin"
}
end_program() {
  kill "$program" || true
  wait "$program" || true
  program=""
}

start_x_server 1280x800
start_window_manager
add_start_rows 30
if command -v strace >/dev/null; then
  timeout 12 strace -f -c -U calls,name -o "$settings/calls" -p "$program" 2>/dev/null || true
  add_row "system calls in 12 s, four samples and redraws" "$(awk '$NF == "total" {print $1}' "$settings/calls")" ""
fi
end_program
print_table
