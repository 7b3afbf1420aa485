#!/bin/bash
# Tests what a start of the real program asks of the one that runs under sway: --settings, --open, --quit.
#
#   requests_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"

panelIsShown() { popupIsShown && isLastPanel "$1"; }
settingsHaveKeyboard() { [[ $(swayState focused) == "Orvelle Settings" ]]; }

testPanels() {
    ask 0 "" --open memory
    waitUntil "the panel opens" panelIsShown 1
    waitUntil "and takes the keyboard from the other window" otherWindowHasNoKeyboard
    ask 0 "" --open memory
    ask 0 "" --open network
    waitUntil "another panel takes its place" panelIsShown 2
    expectEqual "each has opened once" 2 "$(grep -c 'panel was painted' "$log")"
    seat key Escape
    waitUntil "Escape closes it" onlyWindowIsShown
    expectEqual "the bar has the keyboard, as after a key" "no keyboard" "$(grep keyboard "$workDirectory/window" | tail -1)"
    seat key Left Return
    waitUntil "at the panel's item, so that its neighbour opens next" panelIsShown 1
    seat key Escape
    waitUntil "which Escape closes" onlyWindowIsShown
    seat key Escape
    waitUntil "Escape gives the keyboard back" otherWindowHasKeyboard
}

testSettings() {
    ask 0 "" --settings
    waitUntil "the settings open with the keyboard" settingsHaveKeyboard
    seat key Escape
    waitUntil "Escape closes them" onlyWindowIsShown
    waitUntil "and gives the keyboard back" otherWindowHasKeyboard
}

# The program that is asked to end has ended when the question returns.
expectQuit() {
    ask 0 "" --quit
    expectEnd "the program ends" 0
    expectEqual "it has nothing to complain of" "" "$(complaints)"
    ask 1 "Orvelle is not running on this desktop." --quit
}

storeVisibility true
startSway
onOutput HEADLESS-1
ask 1 "Orvelle is not running on this desktop." --quit
startOrvelle
showWindowBelowBar
testPanels
testSettings
expectQuit
startOrvelle --settings
waitUntil "a first start opens the settings" settingsHaveKeyboard
expectQuit
startOrvelle --open cpu
waitUntil "a first start opens a panel" panelIsShown 0
seat key Escape
waitUntil "Escape closes it" onlyWindowIsShown
expectQuit
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
