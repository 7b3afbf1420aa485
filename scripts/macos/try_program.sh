#!/bin/bash
# try_program.sh BUNDLE PICTURES: tries Orvelle.app on a Mac as a user would, and keeps pictures of what is to be seen. It
# starts the program, opens each panel, the menu and the settings, starts it once more, looks for lost memory and ends it.
# It clicks through the accessibility of the system, which may refuse it; then it says so and does the rest. It ends with
# status 1 when something was not as it should be.
set -uo pipefail
bundle=$1 pictures=$2
program=$bundle/Contents/MacOS/Orvelle
patience=${ORVELLE_PATIENCE:-60}
mkdir -p "$pictures"
log=$pictures/log.txt
failures=0

tell() { printf '%s: %s\n' "$1" "$2" | tee -a "$pictures/results.txt"; }
# expect DESCRIPTION COMMAND...: tries the command until it succeeds or the time is over.
expect() {
  local description=$1 deadline=$((SECONDS + patience)); shift
  until "$@"; do
    if ((SECONDS >= deadline)); then
      tell FAILED "$description"
      failures=$((failures + 1))
      return 1
    fi
    sleep 0.2
  done
  tell ok "$description"
}
# differs NAME NAME: whether two pictures are not the same. Animations and clocks make differences too, so that only the
# opposite proves something.
differs() { ! cmp -s "$pictures/$1.png" "$pictures/$2.png"; }
picture() { screencapture -x "$pictures/$1.png"; }

# items COMMAND: runs one command of AppleScript with `them`, the program's items in the menu bar from left to right.
items() {
  osascript <<EOF 2>>"$pictures/refusals.txt"
tell application "System Events" to tell (first process whose unix id is $process)
  set them to {}
  repeat with theBar in menu bars
    set them to them & (menu bar items of theBar)
  end repeat
  $1
end tell
EOF
}
press_key() { osascript -e "tell application \"System Events\" to key code $1" 2>>"$pictures/refusals.txt"; }
readonly escape=53

open_panels() {
  local place
  for ((place = 1; place <= count; ++place)); do
    items "click item $place of them" >/dev/null
    sleep 1.5 # it fades in, and its charts rise
    picture "panel-$place"
    expect "item $place opens something" differs desktop "panel-$place"
    press_key $escape
    sleep 1
    picture "closed-$place"
  done
}

open_settings() {
  items 'perform action "AXShowMenu" of item 1 of them' >/dev/null &
  local menu=$!
  sleep 1.5
  picture menu
  press_key 125 && press_key 36 # down to the first entry, and Return
  wait "$menu"
  expect "the menu opens the settings" has_window "Orvelle Settings"
  sleep 1
  picture settings
  osascript -e 'tell application "System Events" to keystroke "w" using command down' 2>>"$pictures/refusals.txt"
  expect "Command-W closes them" has_no_window
  picture settings-closed
}
# The program's windows that accessibility knows; panels are not among them.
windows() { items 'return name of windows' 2>/dev/null; }
has_window() { [[ $(windows) == *"$1"* ]]; }
has_no_window() { [[ $(windows) != *Orvelle* ]]; }

QT_FORCE_STDERR_LOGGING=1 QT_LOGGING_RULES="orvelle.start.debug=true;orvelle.sample.debug=true" "$program" 2>"$log" &
process=$!
is_gone() { ! kill -0 "$process" 2>/dev/null; }
trap 'kill "$process" 2>/dev/null' EXIT
expect "the first bar is painted" grep -q "first bar painted" "$log"
expect "the monitors sample" grep -q "cycle 4" "$log"
picture desktop
lsappinfo info -only ApplicationType "$process" >"$pictures/kind.txt" 2>&1
expect "it is no program of the Dock" grep -q UIElement "$pictures/kind.txt"

count=$(items "return count of them")
if [ -n "$count" ]; then
  # What VoiceOver reads. The first module of the table stands on the left.
  items 'set texts to {}
  repeat with theItem in them
    set end of texts to description of theItem
  end repeat
  return texts' >"$pictures/items.txt"
  tell "items from left to right" "$(cat "$pictures/items.txt")"
  expect "the CPU stands on the left" grep -qi "^CPU" "$pictures/items.txt"
  open_panels
  open_settings
else
  tell "not allowed here" "clicks by accessibility: $(tail -1 "$pictures/refusals.txt")"
fi

"$program" 2>>"$log" # tells the first process, and ends
expect "a second start leaves the first one alone" kill -0 "$process"
leaks "$process" >"$pictures/leaks.txt" 2>&1
tell "lost memory" "$(grep -E 'leaks for' "$pictures/leaks.txt" | tail -1)"
kill -TERM "$process"
expect "it ends when it is told to" is_gone || kill -KILL "$process"
wait "$process"
status=$?
expect "its status is 0, not $status" [ "$status" -eq 0 ]
exit $((failures > 0))
