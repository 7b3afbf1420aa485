#!/bin/bash
# Tests what the real program asks of the kernel while it is used under sway: see ../system_calls_test.sh.
#
#   system_calls_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"
source "$(dirname "$0")/../traced.sh"

settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
ask() { startAgain "$orvelle" "$@" 2>/dev/null; }
settingsHaveKeyboard() { [[ $(swayState focused) == "Orvelle Settings" ]]; }

storeVisibility true
startSway
onOutput HEADLESS-1
QT_LOGGING_RULES=orvelle.open.debug=true launchTraced "$log" "$orvelle"
expectBar || { cat "$log"; exit 1; }
for index in "${!module_keys[@]}"; do
    ask --open "${module_keys[index]}"
    waitUntil "the ${module_titles[index]} panel opens" isLastPanel "$index"
done
seat key Escape
waitUntil "the last panel closes" nothingIsShown
clickItem 0 3
waitUntil "the menu opens" menuIsOpen
seat key Escape
waitUntil "the menu closes" nothingIsShown
ask --settings
waitUntil "the settings open" settingsHaveKeyboard
seat key Tab Tab space
waitUntil "a switch is stored" grep -q '^showMemory=false' "$settingsFile"
ask
ask --quit
expectEnd "the program ends" 0
expectAllowedCalls "a tour under sway"
grep -q 'connect(.*wayland' "$trace" || fail "the trace shows the compositor"
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
