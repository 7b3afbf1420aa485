#!/usr/bin/env bash
# tour.sh PROGRAM PICTURES: shows the program on a virtual display, for machines without one. It runs the real program,
# opens every panel and the settings window as a user would, saves a picture of each, and prints the samples of each
# module.
set -euo pipefail
program=$1
pictures=$2
source "$(dirname "$(readlink -f "$0")")/virtual_display.sh"
source "$(dirname "$(readlink -f "$0")")/modules.sh"

settings=$(mktemp -d)
log=$settings/log
# Isolates the program from the caller's desktop: from its Qt settings and its folders.
unset "${!QT_@}" WAYLAND_DISPLAY
export XDG_RUNTIME_DIR=$settings XDG_CONFIG_HOME=$settings XDG_CACHE_HOME=$settings XDG_STATE_HOME=$settings
export QT_FORCE_STDERR_LOGGING=1

read_modules "$program"
mkdir "$settings/orvelle"
{ echo '[General]' && printf '%s=true\n' "${module_settings[@]}"; } >"$settings/orvelle/orvelle.conf"
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
# A plain desktop makes the bar's edge visible.
xsetroot -solid '#3a4a5c'

QT_LOGGING_RULES="orvelle.sample.debug=true" "$program" 2>"$log" &
program_process=$!

# Processes are sampled in the first and the fourth cycle; their usage is known only after the fourth.
sampled_or_ended() { grep -q 'cycle 4' "$log" || ! kill -0 "$program_process"; }
wait_until 30 sampled_or_ended || true
if ! grep -q 'cycle 4' "$log"; then
  echo "The program did not sample four times within 30 seconds; it said:" >&2
  cat "$log" >&2
  exit 1
fi
sleep 0.5 # the picture follows the sample

# picture FILE WINDOW [OPTION...]
picture() {
  local file=$pictures/$1.png window=$2; shift 2
  import -window "$window" "$@" "$file"
  [ "$(identify -format %k "$file")" -gt 1 ] || { echo "The picture $file is empty" >&2; exit 1; }
  echo "picture: $(readlink -f "$file")"
}

# wait_for_window NAME: sets `window` to the id of the window "Orvelle NAME" and waits until it is at rest.
wait_for_window() {
  window=""
  find_window() { window=$(xdotool search --onlyvisible --name "^Orvelle $1\$" | tail -1) && [ -n "$window" ]; }
  if ! wait_until 10 find_window "$1"; then
    echo "The window \"Orvelle $1\" did not open within 10 seconds; the program said:" >&2
    grep -v 'orvelle.sample' "$log" >&2 || true
    exit 1
  fi
  sleep 0.8 # it fades in, and its charts rise
}

picture desktop root
picture bar root -crop 1280x22+0+0 +repage
for index in "${!module_keys[@]}"; do
  xdotool mousemove $((1280 - module_middles[index])) 11 click 1
  wait_for_window "${module_titles[index]}"
  picture "panel-${module_keys[index]}" "$window"
done
# The gear at the end of a panel opens the settings.
xdotool mousemove --window "$window" 294 478 click 1
wait_for_window Settings
picture settings "$window"
grep 'cycle 4' "$log"

kill -TERM "$program_process"
status=0
wait "$program_process" || status=$?
program_process=""
[ "$status" -eq 0 ] || { echo "The program ended with status $status" >&2; exit 1; }
