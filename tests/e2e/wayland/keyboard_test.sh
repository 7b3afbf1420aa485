#!/bin/bash
# Tests the real program under sway with the keyboard alone. A second start moves the keyboard to the items. Keys open
# and close their panels and menu. Escape returns the keyboard to the window that had it.
#
#   keyboard_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"

panelIsShown() { popupIsShown && isLastPanel "$1"; }

startOnceMore() {
    local message status
    message=$(startAgain "$orvelle" 2>&1)
    status=$?
    expectEqual "another start ends with status" 0 "$status"
    [[ $status == 0 ]] || echo "$message"
    [[ $message == *"already running"* ]] || fail "another start says that the program runs, not: $message"
    waitUntil "and takes the keyboard from the other window" otherWindowHasNoKeyboard
}

testKeys() {
    startOnceMore
    expectEqual "no window opens" "$windowPlace" "$(shownPlace)"
    keepPicture keyboard "$output"
    seat key Right Return
    waitUntil "keys open the panel of the second item" panelIsShown 1
    seat key Escape
    waitUntil "Escape closes it" onlyWindowIsShown
    expectEqual "the bar has the keyboard again" "no keyboard" "$(grep keyboard "$workDirectory/window" | tail -1)"
    seat key Right Down
    waitUntil "so that the next panel can be opened" panelIsShown 2
    seat key Escape
    waitUntil "Escape closes that one too" onlyWindowIsShown
    seat key shift+F10
    waitUntil "keys open the menu" popupIsShown
    seat key Escape
    waitUntil "Escape closes the menu" onlyWindowIsShown
    seat key Escape
    waitUntil "Escape gives the keyboard back" otherWindowHasKeyboard
    seat key F9
    waitUntil "keys reach the other window again" grep -q 'key F9' "$workDirectory/window"
    expectEqual "and no other ones did" 1 "$(grep -c '^key ' "$workDirectory/window")"
}

testManyStarts() {
    for _ in 1 2 3; do
        startOnceMore
        seat key Escape
        waitUntil "Escape gives it back at once" otherWindowHasKeyboard
    done
    startOnceMore
    clickOtherWindow
    waitUntil "a click on the other window gives it back too" otherWindowHasKeyboard
}

testQuitWithKeys() {
    startOnceMore
    seat key shift+F10
    waitUntil "keys open the menu" popupIsShown
    seat key Down Down Return
    expectEnd "and quit" 0
    expectEqual "the program has nothing to complain of" "" "$(complaints)"
    waitUntil "the other window has the keyboard" otherWindowHasKeyboard
}

storeVisibility true
startSway
onOutput HEADLESS-1
startOrvelle
showWindowBelowBar
endOrvelle
startOrvelle
waitUntil "the other window keeps the keyboard" otherWindowHasKeyboard
testKeys
testManyStarts
testQuitWithKeys
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
