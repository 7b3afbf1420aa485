#!/bin/bash
# Tests the bar of the real program in a real X server: its place, its reserved space, its reaction to changes of the
# desktop, and its end.
#
#   bar_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xwininfo xdotool xrandr xrdb wmctrl import convert

settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf

# startOrvelle [NAME=VALUE...]: sets orvellePid and bar, the id of the shown bar.
startOrvelle() {
    launch "$workDirectory/orvelle.log" env "$@" "$orvelle"
    waitUntil "the bar appears" barIsShown || cat "$workDirectory/orvelle.log"
}
barIsShown() {
    bar=$(xdotool search --onlyvisible --class '^orvelle$' 2>/dev/null | tail -1)
    [[ -n $bar ]]
}
barIsHidden() { ! barIsShown; }

endOrvelle() {
    kill -"$1" "$orvellePid"
    wait "$orvellePid"
    expectEqual "SIG$1 ends the program with status" 0 $?
}

barIsAt() { [[ $(geometry "$bar") == "$1" ]]; }
strutIs() { [[ $(property "$bar" _NET_WM_STRUT_PARTIAL) == "0, 0, $1, 0, 0, 0, 0, 0, $2, $3, 0, 0" ]]; }
workAreaIs() { [[ $(rootProperty _NET_WORKAREA) == "$1, "* ]]; }

# expectBar GEOMETRY STRUT_HEIGHT LAST_COLUMN [FIRST_COLUMN]
expectBar() {
    waitUntil "the bar is at $1" barIsAt "$1" || geometry "$bar"
    waitUntil "the bar reserves $2 pixels" strutIs "$2" "${4:-0}" "$3" ||
        property "$bar" _NET_WM_STRUT_PARTIAL
}

# Prints the first column of the bar that is not just background.
firstInkedColumn() {
    [[ -n $bar ]] || return # without an id, import would wait for a click
    import -window "$bar" "$workDirectory/bar.png" 2>/dev/null || return
    convert "$workDirectory/bar.png" -crop x20+0+0 +repage -trim -format '%X' info: | tr -d +
}
inkStartsBetween() {
    local column
    column=$(firstInkedColumn)
    [[ -n $column ]] && ((column >= $1 && column < $2))
}

# store KEY=VALUE...: rewrites the settings file like another program.
store() {
    mkdir -p "$(dirname "$settingsFile")"
    { echo "[General]"; printf '%s\n' "$@"; } >"$settingsFile"
}

windowIsActive() { [[ $(rootProperty _NET_ACTIVE_WINDOW) == "$window" ]]; }

testDock() {
    openOtherWindow "$client"
    wmctrl -i -a "$window"
    waitUntil "the window is active" windowIsActive || rootProperty _NET_ACTIVE_WINDOW
    startOrvelle
    expectEqual "the bar is a dock" _NET_WM_WINDOW_TYPE_DOCK "$(property "$bar" _NET_WM_WINDOW_TYPE)"
    expectEqual "the bar is on every desktop" 4294967295 "$(property "$bar" _NET_WM_DESKTOP)"
    local state
    for state in SKIP_TASKBAR SKIP_PAGER; do
        [[ $(property "$bar" _NET_WM_STATE) == *_NET_WM_STATE_$state* ]] || fail "the bar has state $state"
    done
    expectBar "0,0 1280x22" 22 1279
    waitUntil "the window manager reserves the bar's space" workAreaIs "0, 22, 1280, 778"
    expectEqual "the bar has not taken the focus" "$window" "$(rootProperty _NET_ACTIVE_WINDOW)"
    closeOtherWindow
}

testMaximizedWindow() {
    openOtherWindow "$client"
    wmctrl -i -r "$window" -b add,maximized_vert,maximized_horz
    isMaximizedBelowTheBar() {
        local top height
        read -r top height < <(geometry "$window" | sed 's/^[-0-9]*,\([-0-9]*\) [0-9]*x\([0-9]*\)/\1 \2/')
        ((height > 600 && top >= 22))
    }
    waitUntil "a maximised window stays below the bar" isMaximizedBelowTheBar || geometry "$window"
    closeOtherWindow
}

testVisibility() {
    waitUntil "the four items shown at first are painted" inkStartsBetween 987 1047
    store showMemory=false
    waitUntil "the CPU item moves to the right when memory is switched off" inkStartsBetween 1057 1117
    store showMemory=false showCPU=false showNetwork=false showBattery=false
    waitUntil "the bar disappears with the last item" barIsHidden
    waitUntil "the space is given back" workAreaIs "0, 0, 1280, 800"
    store showCPU=true
    waitUntil "the bar returns with the items" barIsShown
    expectBar "0,0 1280x22" 22 1279
    waitUntil "the items are painted again" inkStartsBetween 987 1047
    waitUntil "the space is reserved again" workAreaIs "0, 22, 1280, 778"
}

testPanelAbove() {
    "$client" panel 30 >"$workDirectory/panel" &
    local pid=$!
    ownedPids+=("$pid")
    expectBar "0,30 1280x22" 52 1279
    waitUntil "the space of both is reserved" workAreaIs "0, 52, 1280, 748"
    sleep 0.2 # a bar that competes with the panel for its place would move several times meanwhile
    expectBar "0,30 1280x22" 52 1279
    kill "$pid"
    expectBar "0,0 1280x22" 22 1279
}

testScreenSize() {
    xrandr --newmode 1024x768 63.50 1024 1072 1176 1328 768 771 775 798
    xrandr --addmode screen 1024x768
    xrandr -s 1024x768
    expectBar "0,0 1024x22" 22 1023
    waitUntil "the reserved space follows the screen" workAreaIs "0, 22, 1024, 746"
    xrandr -s 1280x800
    expectBar "0,0 1280x22" 22 1279
}

testPrimaryScreen() {
    xrandr --setmonitor '*right' 640/169x800/211+640+0 none >/dev/null
    xrandr --setmonitor left 640/169x800/211+0+0 screen >/dev/null
    expectBar "640,0 640x22" 22 1279 640
    xrandr --delmonitor left
    xrandr --delmonitor right
    expectBar "0,0 1280x22" 22 1279
}

# restartWindowManager [OPTION...]
restartWindowManager() {
    kill "$window_manager_process"
    wait "$window_manager_process"
    start_window_manager openbox --sm-disable "$@"
}

testWindowManagerRestart() {
    restartWindowManager
    expectBar "0,0 1280x22" 22 1279
    waitUntil "a new window manager reserves the space" workAreaIs "0, 22, 1280, 778"
}

# configureMargin HEIGHT: lets openbox keep that much free at the top, as desktops do for panels that are no X windows.
configureMargin() {
    echo '<openbox_config xmlns="http://openbox.org/3.4/rc"><margins><top>'"$1"'</top></margins></openbox_config>' \
        >"$workDirectory/openbox.xml"
}

testSpaceReservedWithoutAWindow() {
    configureMargin 40
    restartWindowManager --config-file "$workDirectory/openbox.xml"
    expectBar "0,40 1280x22" 62 1279
    waitUntil "the space of both is reserved" workAreaIs "0, 62, 1280, 738"
    configureMargin 70
    openbox --reconfigure
    expectBar "0,70 1280x22" 92 1279
    waitUntil "the space of both is reserved" workAreaIs "0, 92, 1280, 708"
    sleep 0.5 # a bar that takes its own space for that of others would move down again and again
    expectBar "0,70 1280x22" 92 1279
    restartWindowManager
    expectBar "0,0 1280x22" 22 1279
    waitUntil "only the bar's space is reserved" workAreaIs "0, 22, 1280, 778"
}

testSecondStart() {
    local message
    message=$(startAgain "$orvelle" 2>&1)
    expectEqual "a second start ends with status" 0 $?
    [[ $message == *"already running"* ]] || fail "a second start says that the program runs, not: $message"
    waitUntil "the first one's bar is still shown" barIsShown
}

testClosedByTheWindowManager() {
    local closed=$bar
    "$client" close "$closed"
    barWasReplaced() { barIsShown && [[ $bar != "$closed" ]]; }
    waitUntil "a bar that was closed returns" barWasReplaced
    expectBar "0,0 1280x22" 22 1279
}

# testScale HEIGHT NAME=VALUE...
testScale() {
    local height=$1
    shift
    startOrvelle "$@"
    expectBar "0,0 1280x$height" "$height" 1279
    endOrvelle TERM
}

testPanelPresentAtStart() {
    "$client" panel 25 >"$workDirectory/panel" &
    local pid=$!
    ownedPids+=("$pid")
    waitUntil "a panel reserves its space" workAreaIs "0, 25, 1280, 775"
    startOrvelle QT_SCALE_FACTOR=1.5
    # 25 pixels are 16.7 points. Qt places windows at whole points: 17 points, which are 26 pixels.
    expectBar "0,26 1280x33" 59 1279
    endOrvelle INT
    kill "$pid"
    waitUntil "the panel is gone" workAreaIs "0, 0, 1280, 800"
}

testWithoutWindowManager() {
    kill "$window_manager_process"
    wait "$window_manager_process"
    startOrvelle
    waitUntil "the bar stands at the top without a window manager" barIsAt "0,0 1280x22"
    start_window_manager
    waitUntil "the bar becomes a dock when a window manager starts" workAreaIs "0, 22, 1280, 778"
    waitUntil "the bar is still shown" barIsShown
    endOrvelle TERM
}

testWithoutDisplay() {
    local message status
    message=$(env -u DISPLAY "$orvelle" 2>&1)
    status=$?
    expectEqual "without a display the status is" 1 "$status"
    [[ $message == "Orvelle finds no desktop: "*"DISPLAY names no X display"* ]] ||
        fail "without a display the program says what it looked for, not: $message"
    message=$(DISPLAY=:9999 "$orvelle" 2>&1)
    status=$?
    expectEqual "with an unreachable display the status is" 1 "$status"
    [[ $message == *":9999"* ]] || fail "an unreachable display is named, not: $message"
    message=$("$orvelle" --desktop=x11 --loud 2>&1)
    expectEqual "with an unknown option the status is" 2 $?
    [[ $message == "orvelle: "*loud* && $message != *$'\n'* ]] || fail "one line names it, not: $message"
}

start_x_server 1280x800 && start_window_manager || exit 1
testDock
testMaximizedWindow
testVisibility
testPanelAbove
testScreenSize
testPrimaryScreen
testWindowManagerRestart
testSpaceReservedWithoutAWindow
testSecondStart
testClosedByTheWindowManager
endOrvelle TERM
testScale 22 QT_QPA_PLATFORM=wayland
testScale 33 QT_SCALE_FACTOR=1.5
testScale 44 QT_SCALE_FACTOR=2
echo "Xft.dpi: 144" | xrdb -merge
testScale 33
xrdb -remove
testPanelPresentAtStart
testWithoutWindowManager
testWithoutDisplay
echo "$failures failures in $SECONDS seconds"
((failures == 0))
