#!/bin/bash
# Tests the real program as an X11 client of GNOME Shell, whose panel is no X window.
#
#   gnome_test.sh ORVELLE X11_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/session.sh"
requireTools gnome-shell Xwayland dbus-daemon gdbus foot xprop xwininfo xdotool
# The module is installed for the system's own Python, which need not be the first one.
python=/usr/bin/python3
"$python" -c 'import dbusmock' 2>/dev/null || { echo "SKIPPED: python3-dbusmock is not installed"; exit "$skipped"; }

shellLog=$workDirectory/shell.log

# evaluate CODE: runs JavaScript in the shell. Prints the result, and fails if the code does.
evaluate() {
    local answer
    answer=$(gdbus call --session --dest org.gnome.Shell --object-path /org/gnome/Shell \
        --method org.gnome.Shell.Eval "$1" 2>/dev/null)
    [[ $answer == "(true, '"*"')" ]] || return
    answer=${answer#"(true, '"}
    echo "${answer%"')"}"
}

shellHasStarted() { [[ $(evaluate 'Main.layoutManager._startingUp') == false ]]; }
overviewIsHidden() { [[ $(evaluate 'Main.overview.hide(); Main.overview.visible') == false ]]; }

startGnome() {
    startBus "system bus"
    startBus "session bus"
    DBUS_SYSTEM_BUS_ADDRESS=$(<"$workDirectory/system bus")
    DBUS_SESSION_BUS_ADDRESS=$(<"$workDirectory/session bus")
    export DBUS_SYSTEM_BUS_ADDRESS DBUS_SESSION_BUS_ADDRESS
    # The shell does not start without a service for logins.
    "$python" -m dbusmock --system --template logind >/dev/null 2>&1 &
    ownedPids+=("$!")
    loginServiceRuns() { gdbus introspect --system --dest org.freedesktop.login1 --object-path / >/dev/null 2>&1; }
    waitUntil "a service for logins starts" loginServiceRuns
    GSETTINGS_BACKEND=memory XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=GNOME \
        gnome-shell --headless --virtual-monitor 1280x800 --unsafe-mode --wayland-display gnome >"$shellLog" 2>&1 &
    shellPid=$!
    ownedPids+=("$shellPid")
    waitUntil "GNOME Shell starts" shellHasStarted || { cat "$shellLog"; exit 1; }
    waitUntil "the overview is hidden" overviewIsHidden
    DISPLAY=$(sed -n 's/.*public X11 display \(:[0-9]*\).*/\1/p' "$shellLog" | head -1)
    XAUTHORITY=$(find "$XDG_RUNTIME_DIR" -name '.mutter-Xwaylandauth*' | head -1)
    export DISPLAY XAUTHORITY WAYLAND_DISPLAY=gnome
    evaluate 'global.pointer = imports.gi.Clutter.get_default_backend().get_default_seat()
        .create_virtual_device(imports.gi.Clutter.InputDeviceType.POINTER_DEVICE); 0' >/dev/null
}

pressPointer() {
    local task
    for task in "absolute_motion(now, $1, $2)" "button(now, 1, 1)" "button(now, 1, 0)"; do
        evaluate "const now = imports.gi.GLib.get_monotonic_time(); global.pointer.notify_$task; 0" >/dev/null ||
            fail "the pointer is pressed"
    done
}

# shellcheck disable=SC2016 # the code is JavaScript
windowPlaces() {
    evaluate 'const place = it => `${it.x},${it.y} ${it.width}x${it.height}`;
        ["area " + place(Main.layoutManager.getWorkAreaForMonitor(0)),
            ...global.get_window_actors().map(actor => actor.meta_window)
                .map(it => `window ${place(it.get_frame_rect())} ${it.title ?? ""}`)].join("|")' |
        sed 's/^"\(.*\)"$/\1/' | tr '|' '\n'
}

# keepPicture NAME: saves a picture of the whole desktop if ORVELLE_PICTURES names a folder.
keepPicture() {
    [[ -z $ORVELLE_PICTURES ]] ||
        gdbus call --session --dest org.gnome.Shell.Screenshot --object-path /org/gnome/Shell/Screenshot \
            --method org.gnome.Shell.Screenshot.Screenshot false false "$ORVELLE_PICTURES/$1.png" >/dev/null
}

testPressInAWaylandWindow() {
    local x y footPid
    foot --title "a terminal" sleep 1000 >/dev/null 2>&1 &
    footPid=$!
    ownedPids+=("$footPid")
    terminalIsPlaced() { [[ -n $(placeOf "a terminal") ]]; }
    waitUntil "a Wayland window opens" terminalIsPlaced
    openPanel
    keepPicture gnome-panel
    IFS=', ' read -r x y _ < <(placeOf "a terminal")
    pressPointer $((x + 100)) $((y + 100))
    waitUntil "a press in a Wayland window closes it" panelIsClosed
    kill "$footPid"
    wait "$footPid" 2>/dev/null
}

# resizePanel HEIGHT: as a change of the font or an extension does.
resizePanel() { evaluate "Main.panel.height = $1; 0" >/dev/null || fail "the shell's panel changes its height"; }

testPanelOfTheShell() {
    local height=$barTop
    resizePanel 64
    expectBarAt 64
    sleep 0.5 # a bar that competes with the shell's panel for its place would move several times meanwhile
    expectBarAt 64
    testPanel
    storeVisibility false
    waitUntil "the bar goes with its items" isHidden Orvelle
    waitUntil "and its space with it" workAreaBeginsAt 64
    resizePanel "$height"
    storeVisibility true
    waitUntil "the bar comes back" isShown Orvelle
    expectBarAt "$height"
}

read_modules "$orvelle" || exit 1
storeVisibility true
startGnome
startOrvelle 32
testPanel
testPressOnTheDesktop
testPressInAnotherX11Window
testPressInAWaylandWindow
testPanelOfTheShell
endOrvelle
kill -TERM "$shellPid"
wait "$shellPid"
finish
