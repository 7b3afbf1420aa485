#!/bin/bash
# Tests the real program on KWin's layer shell, where it is a Wayland client.
#
#   kwin_layers_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/kwin.sh"

isAt() { windowPlaces | grep -q "^window $1 "; }
isNotAt() { ! isAt "$1"; }
bar="0,0 1280x22"
panel="956,26 320x500" # 4 points away from the bar and the edge of the screen
pressItem() { pressPointer $((1280 - module_middles[-1])) 11; }

openPanel() {
    pressItem
    waitUntil "a press on an item opens its panel below the bar" isAt "$panel" || windowPlaces
}

# testLayers SCALE
testLayers() {
    onKWin "$1"
    launch "$workDirectory/orvelle.log" env -u DISPLAY "$orvelle" --desktop=wayland
    waitUntil "the bar stands at the top" isAt "$bar" || cat "$workDirectory/orvelle.log"
    waitUntil "KWin reserves its space" workAreaBeginsAt 22
    openPanel
    pressItem
    waitUntil "a second press closes it" isNotAt "$panel"
    openPanel
    pressPointer 40 760
    waitUntil "a press on the bare desktop closes it" isNotAt "$panel"
    openPanel
    pressPointer 40 11
    waitUntil "a press on the empty bar closes it" isNotAt "$panel"
    endProcess "the program" "$orvellePid"
    expectEqual "it has nothing to complain of" "" "$(<"$workDirectory/orvelle.log")"
    waitUntil "its space is given back" workAreaBeginsAt 0
    endKWin
}

read_modules "$orvelle" || exit 1
storeVisibility true
testLayers 1
testLayers 1.5
testLayers 2
finish
