#!/usr/bin/env bash
# tour.sh PROGRAM PICTURES: shows the program on a virtual display, for machines without one. It runs the real
# program for two update cycles, saves pictures of what a user would see and prints what each module sampled.
set -euo pipefail
program=$1
pictures=$2
source "$(dirname "$(readlink -f "$0")")/virtual_display.sh"

settings=$(mktemp -d)
log=$settings/log
# Nothing of the caller's desktop: neither the Qt choices nor the folders.
unset ${!QT_@} WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$settings XDG_CONFIG_HOME=$settings XDG_CACHE_HOME=$settings QT_FORCE_STDERR_LOGGING=1
program_process=""
finish() {
  [ -z "$program_process" ] || kill "$program_process" 2>/dev/null || true
  [ -z "$program_process" ] || wait "$program_process" 2>/dev/null || true
  stop_virtual_display
  rm -rf "$settings"
}
trap finish EXIT

echo "No display here: showing Orvelle on a virtual one."
mkdir -p "$pictures"
start_x_server 1280x800
start_window_manager
# A plain desktop behind the bar, so that its edge can be seen.
xsetroot -solid '#3a4a5c'

QT_LOGGING_RULES="orvelle.sample.debug=true" "$program" 2>"$log" &
program_process=$!

sampled_or_ended() { grep -q 'cycle 2' "$log" || ! kill -0 "$program_process"; }
wait_until 30 sampled_or_ended || true
if ! grep -q 'cycle 2' "$log"; then
  echo "The program did not sample twice within 30 seconds; it said:" >&2
  cat "$log" >&2
  exit 1
fi
sleep 0.5 # the picture follows the sample

picture() {
  import -window root "$@"
  echo "picture: $(readlink -f "${!#}")"
}
picture "$pictures/desktop.png"
picture -crop 1280x22+0+0 +repage "$pictures/bar.png"
[ "$(identify -format %k "$pictures/bar.png")" -gt 1 ] || { echo "The picture of the bar is empty" >&2; exit 1; }
grep 'cycle 2' "$log"

kill -TERM "$program_process"
status=0
wait "$program_process" || status=$?
program_process=""
[ "$status" -eq 0 ] || { echo "The program ended with status $status" >&2; exit 1; }
