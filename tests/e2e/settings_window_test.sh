#!/bin/bash
# Tests the settings window of the real program among other windows in a real X server.
#
#   settings_window_test.sh ORVELLE X11_CLIENT

orvelle=$1
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xwininfo xdotool wmctrl

settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
stateFile=$XDG_STATE_HOME/orvelle/state.conf
autostartFile=$XDG_CONFIG_HOME/autostart/orvelle.desktop

read_modules "$orvelle" || exit 1

startOrvelle() {
    QT_LOGGING_RULES="orvelle.sample.debug=true" launch "$workDirectory/log" "$orvelle"
    # Otherwise the second start may come first.
    waitUntil "the program runs" grep -q 'cycle 1' "$workDirectory/log" || exit 1
}
stopOrvelle() {
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
}
settingsWindow() { xdotool search --onlyvisible --name '^Orvelle Settings$' 2>/dev/null | tail -1; }
windowIsShown() { [[ -n $(settingsWindow) ]]; }
windowIsGone() { ! windowIsShown; }
hasTheKeyboard() { [[ $(xdotool getactivewindow 2>/dev/null) == "$(settingsWindow)" ]]; }
openWindow() {
    startAgain "$orvelle" 2>/dev/null
    waitUntil "the settings open" windowIsShown || cat "$workDirectory/log"
    waitUntil "the settings have the keyboard" hasTheKeyboard
}
place() { geometry "$(settingsWindow)"; }
placeIs() { [[ $(place) == "$1" ]]; }
sizeIsKept() { grep -q '^OrvelleSettings=.* 500 520"$' "$stateFile" 2>/dev/null; }

testFirstTime() {
    openWindow
    local left top width height
    IFS=', x' read -r left top width height < <(place)
    expectTitle "Orvelle Settings" "$(settingsWindow)"
    expectEqual "the window has its size" "460x640" "${width}x$height"
    ((left >= 400 && left <= 420)) || fail "the window is in the middle: $left"
    expectEqual "it can be closed and minimized" 2 \
        "$(property "$(settingsWindow)" _NET_WM_ALLOWED_ACTIONS | tr ',' '\n' | grep -cE '_(CLOSE|MINIMIZE)$')"
    [[ -n $(property "$(settingsWindow)" _NET_WM_ICON) ]] || fail "the window has an icon"
}

testClosing() {
    local key
    for key in Escape ctrl+w; do
        xdotool key "$key"
        waitUntil "$key closes the window" windowIsGone
        openWindow
    done
    wmctrl -i -c "$(settingsWindow)"
    waitUntil "its close button closes the window" windowIsGone
    kill -0 "$orvellePid" || fail "the program goes on"
    openWindow
}

# Drags with the mouse from a point of the window, 60 pixels down and to the right.
drag() {
    local left top
    IFS=', x' read -r left top _ < <(place)
    xdotool mousemove $((left + $1)) $((top + $2)) mousedown 1
    for step in 10 20 40 60; do
        xdotool mousemove $((left + $1 + step)) $((top + $2 + step))
        sleep 0.05
    done
    xdotool mouseup 1
}

testMovingByBackground() {
    local left top before
    IFS=', x' read -r left top _ < <(place)
    isMovedAlong() {
        local nowLeft nowTop
        IFS=', x' read -r nowLeft nowTop _ < <(place)
        ((nowLeft >= left + 40 && nowLeft <= left + 60 && nowTop >= top + 40 && nowTop <= top + 60))
    }
    drag 230 24
    waitUntil "the empty background moves the window" isMovedAlong || place
    before=$(place)
    drag 200 92
    waitUntil "a drag on a switch switches it" grep -q '=true' "$settingsFile"
    expectEqual "and does not move the window" "$before" "$(place)"
    waitUntil "the bar comes" isShown Orvelle
    storeVisibility false
    waitUntil "the bar goes again" isHidden Orvelle
    xdotool key Escape
    waitUntil "the window closes" windowIsGone
    openWindow
    waitUntil "and opens where it was moved to" placeIs "$before" || place
}

testMinimized() {
    xdotool windowminimize "$(settingsWindow)"
    waitUntil "the window is minimized" windowIsGone
    openWindow
}

testOtherDesktop() {
    wmctrl -n 2 && wmctrl -s 1
    onDesktop() { [[ $(property "$(settingsWindow)" _NET_WM_DESKTOP) == "$1" ]]; }
    waitUntil "the user goes to another desktop" windowIsGone
    openWindow
    waitUntil "the window comes along" onDesktop 1
    expectEqual "the user stays there" 1 "$(rootProperty _NET_CURRENT_DESKTOP)"
    wmctrl -s 0
    openWindow
}

testPlace() {
    local before after
    wmctrl -i -r "$(settingsWindow)" -e 0,150,90,500,520
    isMoved() { [[ $(place) == *" 500x520" ]]; }
    waitUntil "the window is moved" isMoved
    waitUntil "its place is remembered when it has come to rest" sizeIsKept || cat "$stateFile"
    before=$(place)
    for _ in 1 2 3; do
        xdotool key Escape
        waitUntil "the window closes" windowIsGone
        openWindow
    done
    waitUntil "it opens where it stood, $before" placeIs "$before" || place
    kill -KILL "$orvellePid"
    wait "$orvellePid" 2>/dev/null
    startOrvelle
    openWindow
    waitUntil "also after an unexpected end" placeIs "$before" || place
    stopOrvelle
    printf '[General]\nOrvelleSettings=99999 nonsense\n' >"$stateFile"
    startOrvelle
    openWindow
    after=$(place)
    expectEqual "nonsense is ignored" "460x640" "${after#* }"
    stopOrvelle
    printf '[General]\nOrvelleSettings=5000 4000 460 640\n' >"$stateFile"
    startOrvelle
    openWindow
    IFS=', x' read -r left top width height < <(place)
    ((left + width <= 1280 && top + height <= 800)) || fail "a place off the screen: $(place)"
}

testChanges() {
    xdotool key Tab Tab space
    waitUntil "the second switch is stored" grep -q '^showMemory=true' "$settingsFile"
    waitUntil "and shown in the bar" isShown Orvelle
    storeVisibility false
    waitUntil "hiding every module elsewhere takes the bar away" isHidden Orvelle
    # In backward order: the first switch, the quit button, and the last switch.
    xdotool key shift+Tab shift+Tab shift+Tab space
    waitUntil "the program will start at login" test -f "$autostartFile" || cat "$settingsFile"
    xdotool key space
    waitUntil "and no longer" test ! -e "$autostartFile"
}

storeVisibility false
start_x_server 1280x800 && start_window_manager || exit 1
startOrvelle
testFirstTime
testClosing
testMovingByBackground
testMinimized
testOtherDesktop
testPlace
testChanges
stopOrvelle
echo "$failures failures in $SECONDS seconds"
((failures == 0))
