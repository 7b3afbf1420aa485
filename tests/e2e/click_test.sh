#!/bin/bash
# Tests clicks on the items of the real program in a real X server.
#
#   click_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xwininfo xdotool import convert
read_modules "$orvelle" || exit 1

windowIsShown() { [[ -n $(xdotool search --onlyvisible --name "$1" 2>/dev/null) ]]; }
menuIsShown() { windowIsShown '^Orvelle menu$'; }
menuIsHidden() { ! menuIsShown; }
menuHasTheKeyboard() { [[ $(xdotool getactivewindow 2>/dev/null) == "$(menuWindow)" ]]; }
menuWindow() { xdotool search --onlyvisible --name '^Orvelle menu$' | tail -1; }

# startOrvelle SCALE
startOrvelle() {
    launch "$workDirectory/orvelle.log" env QT_SCALE_FACTOR="$1" "$orvelle"
    scale=$1
    waitUntil "the bar appears" windowIsShown '^Orvelle$' || cat "$workDirectory/orvelle.log"
}

# clickAt BUTTON X Y: clicks at a point of a screen at the origin.
clickAt() { xdotool mousemove "$(pixels "$2")" "$(pixels "$3")" click "$1"; }
pixels() { awk -v points="$1" -v scale="$scale" 'BEGIN { printf "%d", points * scale }'; }

# Prints the middle of the last item, in points from the left.
lastItemMiddle() { awk -v scale="$scale" 'BEGIN { printf "%d", 1280 / scale - 8 - 30 }'; }

openMenu() {
    clickAt 3 "$(lastItemMiddle)" 11
    waitUntil "a right click opens the menu" menuIsShown
    waitUntil "the menu has the keyboard" menuHasTheKeyboard
}

menuIsInside() {
    local left top width height
    IFS=', x' read -r left top width height < <(geometry "$(menuWindow)")
    ((left >= 0 && left + width <= 1280 && top >= $(pixels 22) && top <= $(pixels 22) + 1 && height > 0))
}

panelWindow() { windowsTitled "Orvelle ($ORVELLE_MODULE_TITLES)" | tail -1; }
panelIsShown() { [[ -n $(panelWindow) ]]; }
panelIsHidden() { ! panelIsShown; }

# keepPicture NAME: saves a picture if ORVELLE_PICTURES names a folder.
keepPicture() { [[ -z $ORVELLE_PICTURES ]] || import -window root "$ORVELLE_PICTURES/$1.png"; }

testMenu() {
    openMenu
    waitUntil "the menu stands below the bar, on the screen" menuIsInside || geometry "$(menuWindow)"
    expectTitle "Orvelle menu" "$(menuWindow)"
    keepPicture "menu-$scale"
    xdotool key Escape
    waitUntil "Escape closes the menu" menuIsHidden
}

testLeftClick() {
    clickAt 1 "$(lastItemMiddle)" 11
    waitUntil "a left click opens the panel" panelIsShown
    expectTitle "Orvelle Battery" "$(panelWindow)"
    expectEqual "and no menu" "" "$(menuWindow 2>/dev/null)"
    clickAt 1 "$(lastItemMiddle)" 11
    waitUntil "a second one closes it" panelIsHidden
    expectEqual "and opens no menu" "" "$(menuWindow 2>/dev/null)"
}

testClicksOnTheItemOfAnOpenMenu() {
    openMenu
    clickAt 3 "$(lastItemMiddle)" 11
    waitUntil "a right click on its item closes the menu" menuIsHidden
    awaitAnswer "$client"
    expectEqual "and does not open it again" "" "$(menuWindow 2>/dev/null)"
    openMenu
    clickAt 1 "$(lastItemMiddle)" 11
    waitUntil "a left click on its item closes the menu" menuIsHidden
    waitUntil "and opens the panel" panelIsShown
    clickAt 3 "$(lastItemMiddle)" 11
    waitUntil "a right click closes the panel" panelIsHidden
    waitUntil "and opens the menu" menuIsShown
    local before
    before=$(geometry "$(menuWindow)")
    clickAt 3 $(($(lastItemMiddle) - 230)) 11
    menuIsElsewhere() { menuIsShown && [[ $(geometry "$(menuWindow)") != "$before" ]]; }
    waitUntil "a right click on another item opens the menu there" menuIsElsewhere
    clickAt 3 $(($(lastItemMiddle) - 230)) 11
    waitUntil "and a second one closes it" menuIsHidden
}

testClickElsewhere() {
    openOtherWindow "$client"
    openMenu
    clickOtherWindow
    waitUntil "a click on another window closes the menu" menuIsHidden
    waitUntil "and reaches that window" otherWindowWasClicked
    closeOtherWindow
}

testClickOnDesktop() {
    openMenu
    clickAt 2 300 "$(awk -v scale="$scale" 'BEGIN { printf "%d", 700 / scale }')"
    waitUntil "a click on the bare desktop closes the menu" menuIsHidden
    xdotool key Escape # the window manager may have opened its own menu
}

testClickOnBar() {
    openMenu
    clickAt 1 100 11
    waitUntil "a click on the empty bar closes the menu" menuIsHidden
}

testQuit() {
    openMenu
    xdotool key "$@"
    expectEnd "the keys $* in the menu end the program" 0
}

testQuitWithTheMouse() {
    openMenu
    local left top
    IFS=', x' read -r left top _ < <(geometry "$(menuWindow)")
    # The middle of the last entry lies below a margin of 5 points, another entry of 24 and a separator of 11.
    xdotool mousemove $((left + 30)) $((top + $(pixels 52))) click 1
    expectEnd "a click on the entry ends the program" 0
}

start_x_server 1280x800 && start_window_manager || exit 1
startOrvelle 1
testMenu
testLeftClick
testClicksOnTheItemOfAnOpenMenu
testClickElsewhere
testClickOnDesktop
testClickOnBar
testQuit ctrl+q
startOrvelle 1.5
testMenu
testQuit Down Down Return
startOrvelle 2
testMenu
testQuitWithTheMouse
echo "$failures failures in $SECONDS seconds"
((failures == 0))
