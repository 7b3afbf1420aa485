# Prepares a private session of a Wayland compositor without a screen, and tests the program there as an X11 client.
# Sourced by the test of each compositor, which defines these functions:
#
#   windowPlaces           prints a line "window X,Y WIDTHxHEIGHT TITLE" for each window and a line
#                          "area X,Y WIDTHxHEIGHT" for the work area, in points, as the compositor knows them
#   pressPointer X Y       presses the left button of the compositor's pointer there, in points
#
# It sets orvelle and client to the paths of both programs first.
# shellcheck disable=SC2154 # they, and the arrays of scripts/modules.sh
source "$(dirname "${BASH_SOURCE[0]}")/../desktop.sh"

export NO_AT_BRIDGE=1
unset XDG_SESSION_ID XDG_SESSION_TYPE XDG_CURRENT_DESKTOP

# Compositors expect the folder of the X servers' sockets, which a machine without a display may lack.
[[ -d /tmp/.X11-unix ]] || mkdir -m 1777 /tmp/.X11-unix

# startBus NAME: starts a private message bus, whose address is in the file of that name.
startBus() {
    dbus-daemon --session --nofork --print-address=3 3>"$workDirectory/$1" >/dev/null 2>&1 &
    ownedPids+=("$!")
    waitUntil "the $1 starts" test -s "$workDirectory/$1"
}

# endProcess NAME PID: ends a process of this session that must end cleanly.
endProcess() {
    kill -TERM "$2"
    wait "$2"
    expectEqual "$1 ends with status" 0 $?
}

# placeOf TITLE: prints X,Y WIDTHxHEIGHT of the window in points.
placeOf() { windowPlaces | sed -n "s/^window \(.*\) $1\$/\1/p"; }
windowIsAt() { [[ $(placeOf "$1") == "$2" ]]; }
workAreaBeginsAt() { [[ $(windowPlaces | sed -n 's/^area [0-9]*,\([0-9]*\) .*/\1/p') == "$1" ]]; }

# expectBarAt TOP: checks the bar's place and its space, in points.
expectBarAt() {
    barTop=$1
    waitUntil "the bar is $1 points below the edge" windowIsAt Orvelle "0,$1 1280x22" || windowPlaces
    waitUntil "the compositor reserves its space" workAreaBeginsAt "$(($1 + 22))" || windowPlaces
}

# startOrvelle TOP: starts the program, whose bar must appear at this place.
startOrvelle() {
    launch "$workDirectory/orvelle.log" "$orvelle" --desktop=x11
    waitUntil "the bar appears" isShown Orvelle || cat "$workDirectory/orvelle.log"
    expectBarAt "$1"
}

endOrvelle() {
    endProcess "the program" "$orvellePid"
    expectEqual "it has nothing to complain of" "" "$(<"$workDirectory/orvelle.log")"
}

lastModule() { echo "${module_titles[-1]}"; }
panel() { windowsTitled "Orvelle $(lastModule)" | tail -1; }
panelIsOpen() { isShown "Orvelle $(lastModule)"; }
panelIsClosed() { isHidden "Orvelle $(lastModule)"; }
panelIsOpaque() { [[ $(property "$(panel)" _NET_WM_WINDOW_OPACITY) == 4294967295 ]]; }
pressItem() { pressPointer $((1280 - module_middles[-1])) $((barTop + 11)); }

openPanel() {
    pressItem
    waitUntil "a press on an item opens its panel" panelIsOpen || cat "$workDirectory/orvelle.log"
}

# The panel is 320 points wide and kept 4 points away from the bar and the edge of the screen.
testPanel() {
    openPanel
    waitUntil "it stands below the bar" windowIsAt "Orvelle $(lastModule)" "956,$((barTop + 26)) 320x500" ||
        windowPlaces
    waitUntil "it becomes opaque" panelIsOpaque
    pressItem
    waitUntil "a second press closes it" panelIsClosed
}

desktopIsCovered() { windowIsAt "" "0,0 1280x800"; }

testPressOnTheDesktop() {
    openPanel
    waitUntil "an invisible window hears presses on the desktop" desktopIsCovered || windowPlaces
    waitUntil "the panel becomes opaque" panelIsOpaque
    pressPointer 40 760
    waitUntil "a press on the bare desktop closes it" panelIsClosed
}

testPressInAnotherX11Window() {
    local x y
    openOtherWindow "$client"
    xdotool set_window --name "another window" "$window"
    otherWindowIsPlaced() { [[ -n $(placeOf "another window") ]]; }
    waitUntil "it has a place" otherWindowIsPlaced
    openPanel
    IFS=', ' read -r x y _ < <(placeOf "another window")
    pressPointer $((x + 100)) $((y + 100))
    waitUntil "a press in another X11 window closes it" panelIsClosed
    waitUntil "and reaches that window" otherWindowWasClicked
    closeOtherWindow
}

finish() {
    echo "$failures failures in $SECONDS seconds"
    ((failures == 0))
}
