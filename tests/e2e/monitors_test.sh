#!/bin/bash
# Tests the real program on several monitors, and on the second of two separate screens of one X server. The bar, the
# panels and the menu must stay together on one monitor.
#
#   monitors_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xwininfo xdotool xrandr

read_modules "$orvelle" || exit 1

# Converts points to pixels. All values here give whole pixels at these scales.
pixels() { awk -v points="$1" -v scale="$scale" 'BEGIN { printf "%d", points * scale }'; }

# startOrvelle SCALE
startOrvelle() {
    scale=$1
    launch "$workDirectory/orvelle.log" env QT_SCALE_FACTOR="$1" "$orvelle"
    waitUntil "the bar appears at scale $1" isShown Orvelle || cat "$workDirectory/orvelle.log"
}
endOrvelle() {
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
    expectEqual "it has nothing to complain of" "" \
        "$(grep -v 'setNetWmStateOnUnmappedWindow() called on mapped window' "$workDirectory/orvelle.log")"
}

windowTitled() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -1; }
isShown() { [[ -n $(windowTitled "$1") ]]; }
isHidden() { ! isShown "$1"; }
noPanelIsShown() { isHidden "Orvelle ($ORVELLE_MODULE_TITLES)"; }

# setMonitor NAME OUTPUT GEOMETRY: a pixel is about a quarter of a millimetre.
setMonitor() {
    local width height left top
    IFS='x+' read -r width height left top <<<"$3"
    xrandr --setmonitor "$1" "$width/$((width / 4))x$height/$((height / 4))+$left+$top" "$2" >/dev/null
}

# expectBar WIDTHxHEIGHT+LEFT+TOP: waits for the bar on this monitor. Later functions act on the same monitor.
expectBar() {
    IFS='x+' read -r monitorWidth monitorHeight monitorLeft monitorTop <<<"$1"
    barStands() {
        [[ $(geometry "$(windowTitled Orvelle)") == "$monitorLeft,$monitorTop ${monitorWidth}x$(pixels 22)" ]]
    }
    waitUntil "the bar is at the top of the monitor $1" barStands || geometry "$(windowTitled Orvelle)"
}

joinMonitors() {
    xrandr --delmonitor other
    xrandr --delmonitor main
    expectBar 2000x1200+0+0
}

# arrange PRIMARY OTHER: divides the one monitor into two. Qt 6.4 misses a monitor that is replaced by another one with
# the same name before Qt has checked, so a test joins the monitors between two arrangements.
arrange() {
    setMonitor '*main' none "$1"
    setMonitor other screen "$2"
    expectBar "$1"
}

itemMiddle() { echo $((monitorLeft + monitorWidth - $(pixels "${module_middles[$1]}"))); }
# clickAt X Y BUTTON: the place is in pixels of the screen.
clickAt() { xdotool mousemove --screen "$screenNumber" "$1" "$2" click "$3"; }
# clickItem NUMBER [BUTTON]
clickItem() { clickAt "$(itemMiddle "$1")" $((monitorTop + $(pixels 11))) "${2:-1}"; }

# isOnMonitor GEOMETRY: whether the place is on the monitor, below the bar.
isOnMonitor() {
    local left top width height
    IFS=', x' read -r left top width height <<<"$1"
    [[ -n $height ]] && ((left >= monitorLeft && left + width <= monitorLeft + monitorWidth)) &&
        ((top >= monitorTop + $(pixels 22) && top + height <= monitorTop + monitorHeight))
}

# standsUnder NUMBER MIDDLE_OR_LEFT TITLE: whether the window is centred or left-aligned under the item, if it has room.
standsUnder() {
    local place left width wanted first last
    place=$(geometry "$(windowTitled "$3")")
    isOnMonitor "$place" || return
    IFS=', x' read -r left _ width _ <<<"$place"
    wanted=$(itemMiddle "$1")
    [[ $2 == left ]] && wanted=$((wanted - $(pixels 25))) || wanted=$((wanted - width / 2))
    first=$((monitorLeft + $(pixels 4))) last=$((monitorLeft + monitorWidth - $(pixels 4) - width))
    ((wanted > last)) && wanted=$last
    ((wanted < first)) && wanted=$first
    (((left - wanted) ** 2 <= 9))
}

# Tests the items at both ends of the bar. On a narrow monitor they are nearest to the other monitor.
testUnderTheItems() {
    local item
    for item in 0 5; do
        clickItem "$item"
        waitUntil "the ${module_titles[item]} panel opens" isShown "Orvelle ${module_titles[item]}"
        waitUntil "it stands under its item, on that monitor" standsUnder "$item" middle "Orvelle ${module_titles[item]}" ||
            geometry "$(windowTitled "Orvelle ${module_titles[item]}")"
        clickItem "$item"
        waitUntil "it closes" noPanelIsShown
    done
    clickItem 5 3
    waitUntil "the menu opens" isShown 'Orvelle menu'
    waitUntil "it stands under its item, on that monitor" standsUnder 5 left 'Orvelle menu' ||
        geometry "$(windowTitled 'Orvelle menu')"
    clickAt $(((monitorLeft + monitorWidth + 100) % screenWidth)) 700 1 # empty, if possible on the other monitor
    waitUntil "a click beside it closes the menu" isHidden 'Orvelle menu'
}

testChangesOfArrangement() {
    arrange 500x1200+1500+0 1500x1200+0+0
    clickItem 0
    waitUntil "a panel opens" isShown 'Orvelle CPU'
    joinMonitors
    waitUntil "the panel closes when its monitor goes" noPanelIsShown
    testUnderTheItems
    clickItem 5 3
    waitUntil "the menu opens" isShown 'Orvelle menu'
    arrange 900x1000+1100+200 1100x1200+0+0
    waitUntil "the menu closes when another monitor becomes the primary one" isHidden 'Orvelle menu'
    testUnderTheItems
    joinMonitors
}

# An X server may have separate screens, between which no window can move.
testSeparateScreen() {
    stop_virtual_display
    start_x_server 800x600 -screen 1 1280x800x24
    DISPLAY+=.1
    start_window_manager || exit 1
    screenNumber=1 screenWidth=1280
    startOrvelle 1
    expectBar 1280x800+0+0
    spaceIsReserved() { [[ $(rootProperty _NET_WORKAREA) == "0, 22, 1280, 778"* ]]; }
    waitUntil "its space is reserved there" spaceIsReserved
    testUnderTheItems
    clickItem 5 3
    waitUntil "the menu opens" isShown 'Orvelle menu'
    expectEqual "the corners of its window are cut off" 1 \
        "$(xwininfo -shape -id "$(windowTitled 'Orvelle menu')" | grep -c 'Window shape extents')"
    xdotool key Escape
    waitUntil "the menu closes" isHidden 'Orvelle menu'
    "$client" owner _NET_WM_CM_S1 >"$workDirectory/compositor" &
    ownedPids+=("$!")
    waitUntil "the screen gets a compositor" test -s "$workDirectory/compositor"
    clickItem 5 3
    waitUntil "the menu opens" isShown 'Orvelle menu'
    expectEqual "with a compositor it paints its corners itself" 0 \
        "$(xwininfo -shape -id "$(windowTitled 'Orvelle menu')" | grep -c 'Window shape extents')"
    endOrvelle
}

storeVisibility true
screenNumber=0 screenWidth=2000
start_x_server 2000x1200 && start_window_manager || exit 1
for factor in 1 2; do
    startOrvelle "$factor"
    # On the narrow monitor most panels would extend past the edge.
    narrow=$(pixels 400)
    arrange "${narrow}x1200+$((2000 - narrow))+0" "$((2000 - narrow))x1200+0+0"
    testUnderTheItems
    joinMonitors
    arrange "${narrow}x1200+0+0" "$((2000 - narrow))x1200+${narrow}+0"
    testUnderTheItems
    joinMonitors
    [[ $factor != 1 ]] || testChangesOfArrangement
    endOrvelle
done
testSeparateScreen
echo "$failures failures in $SECONDS seconds"
((failures == 0))
