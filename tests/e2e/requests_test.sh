#!/bin/bash
# Tests what a start of the real program asks of the one that runs, in a real X server: --settings, --open, --quit.
#
#   requests_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xfwm4 dbus-daemon xprop xwininfo xdotool

log=$workDirectory/orvelle.log

keyboardIsIn() { [[ $(xdotool getwindowfocus 2>/dev/null) == "$1" ]]; }
keyboardIsInTitled() { keyboardIsIn "$(windowsTitled "$1" | tail -1)"; }
# Prints the id of the other window as xdotool writes it.
otherWindow() { printf '%d' "$window"; }

startOrvelle() {
    launch "$log" "$orvelle" "$@"
    waitUntil "the bar appears" isShown Orvelle || cat "$log"
}

expectKeyboardGoesBack() {
    waitUntil "Escape gives the keyboard back" keyboardIsIn "$(otherWindow)"
}

testPanels() {
    ask 0 "" --open memory
    waitUntil "the panel opens" isShown "Orvelle Memory"
    waitUntil "and has the keyboard" keyboardIsInTitled "Orvelle Memory"
    ask 0 "" --open memory
    awaitAnswer "$client"
    expectEqual "it stays open when it is asked for again" 1 "$(windowsTitled "Orvelle Memory" | wc -l)"
    ask 0 "" --open network
    waitUntil "another panel takes its place" isShown "Orvelle Network"
    waitUntil "which closes" isHidden "Orvelle Memory"
    waitUntil "the second one has the keyboard" keyboardIsInTitled "Orvelle Network"
    xdotool key Escape
    waitUntil "Escape closes it" isHidden "Orvelle Network"
    waitUntil "the bar has the keyboard, as after a key" keyboardIsInTitled Orvelle
    xdotool key Left Return
    waitUntil "at the panel's item, so that its neighbour opens next" isShown "Orvelle Memory"
    waitUntil "with the keyboard" keyboardIsInTitled "Orvelle Memory"
    xdotool key Escape
    waitUntil "which Escape closes" isHidden "Orvelle Memory"
    waitUntil "the bar has the keyboard again" keyboardIsInTitled Orvelle
    xdotool key Escape
    expectKeyboardGoesBack

    ask 0 "" --open cpu
    waitUntil "a panel opens from another program" keyboardIsInTitled "Orvelle CPU"
    xdotool key Escape
    waitUntil "Escape closes it" isHidden "Orvelle CPU"
    waitUntil "and goes to the bar" keyboardIsInTitled Orvelle
    xdotool key Escape
    expectKeyboardGoesBack
}

testSettings() {
    ask 0 "" --settings
    waitUntil "the settings open" isShown "Orvelle Settings"
    waitUntil "and have the keyboard" keyboardIsInTitled "Orvelle Settings"
    xdotool windowfocus --sync "$(otherWindow)"
    ask 0 "" --settings
    waitUntil "they come forward when they are asked for again" keyboardIsInTitled "Orvelle Settings"
    xdotool key Escape
    waitUntil "Escape closes them" isHidden "Orvelle Settings"
    expectKeyboardGoesBack
    ask 0 "" --open disk
    waitUntil "they open for a module that is not shown" keyboardIsInTitled "Orvelle Settings"
    expectEqual "no panel opens" "" "$(windowsTitled "Orvelle Disk")"
    xdotool key Escape
    waitUntil "Escape closes them" isHidden "Orvelle Settings"
}

# The program that is asked to end has ended when the question returns.
expectQuit() {
    ask 0 "" --quit
    expectEnd "the program ends" 0
    expectEqual "it has nothing to complain of" "" "$(<"$log")"
    ask 1 "Orvelle is not running on this desktop." --quit
}

testRequests() {
    ask 1 "Orvelle is not running on this desktop." --quit
    openOtherWindow "$client"
    xdotool windowfocus --sync "$(otherWindow)"
    startOrvelle
    testPanels
    testSettings
    ask 0 "Orvelle is already running on this desktop."
    waitUntil "a start without a wish moves the keyboard" keyboardIsInTitled Orvelle
    expectQuit

    startOrvelle --settings
    waitUntil "a first start opens the settings" isShown "Orvelle Settings"
    expectQuit
    startOrvelle --open cpu
    waitUntil "a first start opens a panel" isShown "Orvelle CPU"
    waitUntil "with the keyboard in it" keyboardIsInTitled "Orvelle CPU"
    expectQuit
    closeOtherWindow
}

# A program that does not answer keeps its place on the desktop.
testStoppedProgram() {
    startOrvelle
    kill -STOP "$orvellePid"
    ask 1 "Orvelle was asked to end, and still runs." --quit
    kill -CONT "$orvellePid"
    expectEnd "it ends when it can" 0
}

start_x_server 1280x800
start_window_manager || exit 1
testRequests
testStoppedProgram
stop_virtual_display

startSessionBus
start_x_server 1280x800
start_window_manager "${xfwm4OnItsBus[@]}" --compositor=off || exit 1
testRequests
echo "$failures failures in $SECONDS seconds"
((failures == 0))
