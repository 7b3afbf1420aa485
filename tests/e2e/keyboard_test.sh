#!/bin/bash
# Tests the real program in a real X server with the keyboard alone. A second start moves the focus to the items. Keys
# open and close their panels and menu. Escape returns the focus to the window that had it.
#
#   keyboard_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xfwm4 dbus-daemon xprop xwininfo xdotool import

keyboardIsIn() { [[ $(xdotool getwindowfocus 2>/dev/null) == "$1" ]]; }
keyboardIsInTitled() { keyboardIsIn "$(windowsTitled "$1" | tail -1)"; }
# Prints the id of the other window as xdotool writes it.
otherWindow() { printf '%d' "$window"; }

expectAnotherStart() {
    startAgain "$orvelle" 2>/dev/null
    expectEqual "$1" 0 $?
}

testKeys() {
    openOtherWindow "$client"
    xdotool windowfocus --sync "$(otherWindow)"
    launch "$workDirectory/orvelle.log" "$orvelle"
    waitUntil "the bar appears" isShown Orvelle
    expectEqual "the other window keeps the keyboard" "$(otherWindow)" "$(xdotool getwindowfocus)"

    expectAnotherStart "a second start ends with status"
    waitUntil "and moves the keyboard to the bar" keyboardIsInTitled Orvelle
    [[ -z $ORVELLE_PICTURES ]] || import -window root "$ORVELLE_PICTURES/keyboard.png"
    xdotool key Right Return
    waitUntil "keys open the panel of the second item" isShown "Orvelle Memory"
    waitUntil "which has the keyboard" keyboardIsInTitled "Orvelle Memory"
    xdotool key Escape
    waitUntil "Escape closes it" isHidden "Orvelle Memory"
    waitUntil "and the bar has the keyboard again" keyboardIsInTitled Orvelle
    xdotool key Right Down
    waitUntil "so that the next panel can be opened" isShown "Orvelle Network"
    waitUntil "which has the keyboard" keyboardIsInTitled "Orvelle Network"
    xdotool key Escape
    waitUntil "Escape closes that one too" isHidden "Orvelle Network"
    waitUntil "and the bar has the keyboard" keyboardIsInTitled Orvelle
    xdotool key shift+F10
    waitUntil "keys open the menu" isShown "Orvelle menu"
    waitUntil "which has the keyboard" keyboardIsInTitled "Orvelle menu"
    xdotool key Escape
    waitUntil "Escape closes the menu" isHidden "Orvelle menu"
    waitUntil "and the bar has the keyboard" keyboardIsInTitled Orvelle
    xdotool key Escape
    waitUntil "Escape gives the keyboard back" keyboardIsIn "$(otherWindow)"

    # Qt reports a lost focus to the bar with a delay. The bar may have the focus again by then.
    for _ in 1 2 3 4 5; do
        expectAnotherStart "another start ends with status"
        waitUntil "and moves the keyboard to the bar" keyboardIsInTitled Orvelle
        xdotool key Escape
        waitUntil "Escape gives it back at once" keyboardIsIn "$(otherWindow)"
    done

    expectAnotherStart "one more start ends with status"
    waitUntil "and moves the keyboard to the bar" keyboardIsInTitled Orvelle
    closeOtherWindow
    xdotool key Escape
    keyboardIsElsewhere() { ! keyboardIsInTitled Orvelle; }
    waitUntil "the bar gives it back even when that window has gone" keyboardIsElsewhere

    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
    expectEqual "it has nothing to complain of" "" "$(<"$workDirectory/orvelle.log")"
}

start_x_server 1280x800
start_window_manager || exit 1
testKeys
stop_virtual_display

startSessionBus
start_x_server 1280x800
start_window_manager "${xfwm4OnItsBus[@]}" --compositor=off || exit 1
testKeys
echo "$failures failures in $SECONDS seconds"
((failures == 0))
