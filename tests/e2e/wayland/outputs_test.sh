#!/bin/bash
# Tests the real program under sway while outputs come, go and change. The bar, its panels and its menu must stay
# together on one output.
#
#   outputs_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"

# Qt, which shows the panels, hears of outputs on a connection of its own, and a panel closes when it does.
expectBarAndScreens() {
    expectBar
    sleep 0.5
}

outputsAre() { [[ $(swayState outputs) == "$1" ]]; }
awaitOutputs() { waitUntil "the outputs are: $1" outputsAre "$1" || swayState outputs; }
noBarOn() { isBare "$1" 100x20+0+0; }

# testPanels: opens a panel and the menu on the output that has the bar.
testPanels() {
    clickItem 0
    expectPanel 0 "the first panel opens on $output"
    clickItem 0
    waitUntil "it closes" nothingIsShown
    clickItem 5 3
    waitUntil "the menu opens on $output" menuIsOpen
    seat key Escape
    waitUntil "it closes" nothingIsShown
}

testSecondOutput() {
    plug
    awaitOutputs "WL-1 WL-2"
    waitUntil "a second output gets no bar" noBarOn WL-2
    expectBarAndScreens
    clickItem 1
    expectPanel 1 "a panel opens"
    seat click 1 1500 500
    waitUntil "a click on the second output closes the panel" nothingIsShown
}

testScaleOfOutput() {
    onSway output WL-1 scale 2
    onOutput WL-1
    expectBarAndScreens
    testPanels
    clickItem 2
    expectPanel 2 "a panel opens"
    onSway output WL-1 scale 1
    onOutput WL-1
    expectBarAndScreens
    waitUntil "a panel closes when the scale changes" nothingIsShown
    onSway output WL-1 mode 1100x640
    onOutput WL-1
    expectBarAndScreens
    testPanels
}

testLostOutput() {
    clickItem 2
    expectPanel 2 "a panel opens"
    unplug WL-1
    awaitOutputs "WL-2"
    onOutput WL-2
    expectBarAndScreens
    waitUntil "the panel is closed when its output goes" nothingIsShown
    testPanels
    unplug WL-2
    awaitOutputs ""
    sleep 0.3
    kill -0 "$orvellePid" || fail "the program goes on without an output"
    plug
    awaitOutputs "WL-3"
    onOutput WL-3
    expectBarAndScreens
    testPanels
}

storeVisibility true
startSwayWithCables 1
onOutput WL-1
startOrvelle
testPanels
testSecondOutput
testScaleOfOutput
testLostOutput
endOrvelle
stopSway
echo "$failures failures in $SECONDS seconds"
((failures == 0))
