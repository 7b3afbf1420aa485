#!/bin/bash
# Tests the bar of the real program under sway: its place, its reserved space, its pixels at several scales, and its
# reaction to the settings.
#
#   strip_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"
requireTools Xvfb openbox import compare
batteryItem=4

# columnRuns PART: prints the colours of a column from top to bottom, such as "21xFFFFFF 1x000000".
columnRuns() {
    picture "$output" "$1" | convert ppm:- -depth 8 txt:- | sed -nE 's/.*#([0-9A-F]{6}).*/\1/p' | uniq -c |
        awk '{printf "%s%sx%s", separator, $1, $2; separator = " "}'
}
columnIs() { [[ $(columnRuns "$1") == "$2" ]]; }

# The battery's item, without the bar around it. It is the one item that hardly ever changes.
itemPicture() {
    convert "$1" -crop "$(pixels "${module_widths[batteryItem]}")x$(pixels 20)+$2+0" +repage \
        -bordercolor '#1E1E20' -border 1 -trim +repage "$3"
}
itemLeft() { echo $(($(pixels $(($(itemMiddle "$1") - left))) - $(pixels "${module_widths[$1]}") / 2)); }

# Stores how the item looks under X at the scale.
storeItemUnderX() {
    scale=$1 width=$((1280 / ${1%.*})) left=0
    [[ $1 != 1.5 ]] || width=853
    launch "$log" env -u WAYLAND_DISPLAY QT_SCALE_FACTOR="$1" "$orvelle" --desktop=x11
    waitUntil "the bar appears under X at scale $1" isShown Orvelle
    takePicture() {
        import -window root "$workDirectory/x.ppm" &&
            itemPicture "$workDirectory/x.ppm" "$(itemLeft "$batteryItem")" "$workDirectory/item-$1.ppm" &&
            [[ $(convert "$workDirectory/item-$1.ppm" -format %w info:) -gt $(pixels 10) ]]
    }
    waitUntil "its item is painted" takePicture "$1"
    kill "$orvellePid"
    wait "$orvellePid"
}

itemLooksAsUnderX() {
    picture "$output" >"$workDirectory/sway.ppm"
    itemPicture "$workDirectory/sway.ppm" "$(itemLeft "$batteryItem")" "$workDirectory/item.ppm"
    [[ $(compare -metric AE "$workDirectory/item.ppm" "$workDirectory/item-$scale.ppm" null: 2>&1) == 0 ]]
}

testPixels() {
    local thick
    onSway output "$output" scale "$1"
    onOutput "$output"
    expectBar
    thick=$(pixels 22)
    waitUntil "at scale $1 the bar ends with a line of one pixel" columnIs "1x$thick+5+0" \
        "$((thick - 1))x1E1E20 1x000000" || columnRuns "1x$((thick + 2))+5+0"
    waitUntil "the line is as wide as the output" colorsAre "$output" "1280x1+0+$((thick - 1))" 000000
    # At fractions newer versions of sway mix the edges of a window with what is beside it.
    [[ $1 == *.* ]] ||
        waitUntil "the other window fills the rest" colorsAre "$output" "1280x20+0+$thick" "$windowColor"
    keepPicture "strip-$1" "$output"
}

testCrispness() {
    waitUntil "at scale $1 an item has the same pixels as under X" itemLooksAsUnderX ||
        keepPicture "blurred-$1" "$output"
}

testVisibility() {
    storeVisibility false
    expectFreeSpace "$output" "0,0 1280x800"
    lookAway
    waitUntil "the other window fills the output when the last item goes" \
        colorsAre "$output" 1280x790+0+0 "$windowColor"
    storeVisibility true
    expectBar
}

storeVisibility true
start_x_server 1280x800 && start_window_manager || exit 1
for factor in 1 1.5 2; do storeItemUnderX "$factor"; done
stop_virtual_display
unset DISPLAY

startSway
onOutput HEADLESS-1
otherProgram=large showOtherWindow
startOrvelle
for factor in 2 1.5 1; do
    testPixels "$factor"
    testCrispness "$factor"
done
testVisibility
onSway output "$output" mode 1000x700
onOutput "$output"
expectBar
endOrvelle
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
