#!/bin/bash
# Tests clicks on the bar of the real program under sway, and on everything beside it.
#
#   click_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"

testEachPanel() {
    local index
    for index in "${!module_keys[@]}"; do
        clickItem "$index"
        expectPanel "$index" "a click opens the ${module_titles[index]} panel under its item, and closes the one before"
        keepPicture "panel-${module_keys[index]}" "$output"
    done
    clickItem 5
    waitUntil "a second click closes it" nothingIsShown
}

testMenu() {
    clickItem 3 3
    waitUntil "a right click opens the menu" menuIsOpen
    keepPicture menu "$output"
    clickItem 3 3
    waitUntil "a second one closes it" nothingIsShown
    clickItem 3 3
    waitUntil "a right click opens the menu" menuIsOpen
    clickItem 1
    expectPanel 1 "a left click on another item closes the menu and opens its panel"
    clickItem 1 3
    waitUntil "a right click closes the panel and opens the menu" menuIsOpen
    seat click 1 100 11
    waitUntil "a click on the empty bar closes the menu" nothingIsShown
}

# closes DESCRIPTION COMMAND...: opens a panel and the menu, which the command must close.
closes() {
    local description=$1
    shift
    clickItem 1
    expectPanel 1 "a panel opens"
    "$@"
    waitUntil "$description closes it" nothingIsShown
    clickItem 1 3
    waitUntil "the menu opens" menuIsOpen
    "$@"
    waitUntil "$description closes it" nothingIsShown
}

testClosing() {
    closes "Escape" seat key Escape
    closes "a click on the empty bar" seat click 1 100 11
    closes "a click on the bare desktop" seat click 1 300 700
    closes "a middle click there" seat click 2 300 700
}

testOtherWindow() {
    local button
    showWindowBelowBar
    for button in 1 3; do
        clickItem 0 "$button"
        waitUntil "a click on the item opens something" popupIsShown
        waitUntil "which has the keyboard" otherWindowHasNoKeyboard
        seat key Escape
        waitUntil "Escape closes it" onlyWindowIsShown
        waitUntil "and gives the keyboard back" otherWindowHasKeyboard
        clickItem 0 "$button"
        waitUntil "a click on the item opens it again" popupIsShown
        waitUntil "with the keyboard" otherWindowHasNoKeyboard
        clickOtherWindow
        waitUntil "a click on another window closes it" onlyWindowIsShown
        waitUntil "and gives the keyboard to that window" otherWindowHasKeyboard
        clickOtherWindow
        waitUntil "the next click reaches that window" grep -q pressed "$workDirectory/window"
        echo keyboard >"$workDirectory/window"
    done
    clickItem 0
    waitUntil "a panel opens" popupIsShown
    clickItem 0
    waitUntil "a click on its item closes it" onlyWindowIsShown
    waitUntil "and gives the keyboard back" otherWindowHasKeyboard
    expectEqual "no key was typed into the window" "" "$(grep '^key ' "$workDirectory/window")"
    kill "$windowPid"
    wait "$windowPid" 2>/dev/null
    waitUntil "the window is gone" nothingIsShown
}

testManyClicks() {
    clickItem 3 1 400 200
    clickItem 0
    expectPanel 0 "200 clicks a second leave the program at work"
    clickItem 0
    waitUntil "the panel closes" nothingIsShown
}

testQuit() {
    clickItem 2 3
    waitUntil "the menu opens" menuIsOpen
    seat key ctrl+q
    expectEnd "the key of the menu's entry ends the program" 0
    expectEqual "it has nothing to complain of" "" "$(complaints)"
    startOrvelle
    clickItem 0 3
    waitUntil "the menu opens" menuIsOpen
    # The middle of the last entry lies below a margin of 5 points, another entry of 24 and a separator of 11.
    seat click 1 $((left + $(shownPlace | cut -d , -f 1) + 30)) $((22 + $(shownPlace | sed -E 's/.*,(.*) .*/\1/') + 52))
    expectEnd "a click on the entry ends the program" 0
    expectEqual "it has nothing to complain of" "" "$(complaints)"
}

storeVisibility true
startSway
onOutput HEADLESS-1
startOrvelle
testEachPanel
testMenu
testClosing
testOtherWindow
testManyClicks
testQuit
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
