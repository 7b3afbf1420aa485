#!/bin/bash
# Tests the settings window of the real program under sway, where it is a window among others.
#
#   settings_window_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"

settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
title="Orvelle Settings"

windowIsShown() { [[ -n $(swayState window "$title") ]]; }
windowIsGone() { ! windowIsShown; }
hasTheKeyboard() { [[ $(swayState focused) == "$title" ]]; }
expectWindow() {
    waitUntil "$1" windowIsShown || cat "$log"
    waitUntil "the settings have the keyboard" hasTheKeyboard || swayState focused
}
openByMenu() {
    clickItem 0 3
    waitUntil "the menu opens" menuIsOpen
    seat key Down Return
    expectWindow "the menu opens the settings"
}
# The gear is in the right lower corner of a panel.
openByPanel() {
    local start top wide high
    clickItem 0
    expectPanel 0 "a panel opens"
    IFS=', x' read -r start top wide high < <(shownPlace)
    seat click 1 $((left + start + wide - 24)) $((22 + top + high - 21))
    expectWindow "the panel's button opens the settings"
}

testClosing() {
    local key
    for key in Escape ctrl+w; do
        openByMenu
        keepPicture settings "$output"
        seat key "$key"
        waitUntil "$key closes the window" windowIsGone
    done
    openByPanel
    onSway "[title=\"$title\"] kill"
    waitUntil "sway closes the window" windowIsGone
    kill -0 "$orvellePid" || fail "the program goes on"
    waitUntil "nothing else is open" nothingIsShown
}

testChanges() {
    openByMenu
    seat key Tab Tab space
    waitUntil "the second switch is stored" grep -q '^showMemory=false' "$settingsFile"
    seat key space
    waitUntil "and stored again" grep -q '^showMemory=true' "$settingsFile"
    storeVisibility false
    expectFreeSpace "$output" "0,0 1280x800"
    seat key Escape
    waitUntil "Escape closes the window" windowIsGone
    startAgain "$orvelle" 2>/dev/null
    expectWindow "another start opens the settings when there is no bar"
    seat key Tab Tab space
    expectBar
    seat key Escape
    waitUntil "Escape closes the window" windowIsGone
}

storeVisibility true
startSway
onOutput HEADLESS-1
startOrvelle
testClosing
testChanges
endOrvelle
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
