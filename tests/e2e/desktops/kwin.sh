# Runs KWin's Wayland compositor without a screen. Sourced by the tests that use it.
source "$(dirname "${BASH_SOURCE[0]}")/session.sh"
requireTools kwin_wayland Xwayland dbus-daemon gdbus xprop xwininfo xdotool xrdb python3

# A capability of the installed file keeps a user without it from running it, but not from running a copy.
cp "$(command -v kwin_wayland)" "$workDirectory/kwin_wayland"
kwinLog=$workDirectory/kwin.log
kwinFolder=$(dirname "${BASH_SOURCE[0]}")

# onKWin SCALE [SCALE_OF_X11_PROGRAMS]
onKWin() {
    echo "KWin at scale $1, X11 programs at scale ${2:-1}"
    mkdir -p "$XDG_CONFIG_HOME"
    printf '[Xwayland]\nScale=%s\n' "${2:-1}" >"$XDG_CONFIG_HOME/kwinrc"
    rm -f "$workDirectory/display"
    # KWin starts this program when its X server is ready.
    # shellcheck disable=SC2016 # that program expands it
    printf '#!/bin/sh\necho "$DISPLAY" >"%s"\n' "$workDirectory/display" >"$workDirectory/started"
    chmod +x "$workDirectory/started"
    KWIN_COMPOSE=O2 KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 QT_LOGGING_RULES="js.debug=true;kwin_scripting.debug=true" \
        "$workDirectory/kwin_wayland" --virtual --xwayland --width 1280 --height 800 --scale "$1" --socket kwin \
        --no-lockscreen --no-global-shortcuts --no-kactivities "$workDirectory/started" >"$kwinLog" 2>&1 &
    kwinPid=$!
    ownedPids+=("$kwinPid")
    waitUntil "KWin starts" test -s "$workDirectory/display" || { cat "$kwinLog"; exit 1; }
    DISPLAY=$(<"$workDirectory/display")
    export DISPLAY WAYLAND_DISPLAY=kwin
    [[ -z $2 ]] || echo "Xft.dpi: $((96 * $2))" | xrdb -merge
    coproc pointer { exec "$kwinFolder/kwin_pointer.py"; }
    ownedPids+=("$pointer_PID")
    pointerAnswers || fail "KWin has a pointer"
}

endKWin() {
    eval "exec ${pointer[1]}>&-" # the end of its input ends the pointer
    wait "$pointer_PID"
    kill -TERM "$kwinPid"
    wait "$kwinPid"
}

pointerAnswers() { read -r -t "$patienceSeconds" -u "${pointer[0]}"; }
pressPointer() {
    echo "press $1 $2" >&"${pointer[1]}"
    pointerAnswers || fail "the pointer is pressed"
}

callKWin() { gdbus call --session --dest org.kde.KWin --object-path "$1" --method "$2" "${@:3}"; }

# KWin answers a script only in its log.
windowPlaces() {
    local answer=answer-${EPOCHREALTIME/[.,]/} script=$workDirectory/question.js number object
    sed "s/QUESTION/$answer/" "$kwinFolder/kwin_windows.js" >"$script"
    number=$(callKWin /Scripting org.kde.kwin.Scripting.loadScript "$script" "$answer" | tr -dc 0-9)
    for object in "/$number" "/Scripting/Script$number"; do # KWin 5 and 6
        ! callKWin "$object" org.kde.kwin.Script.run >/dev/null 2>&1 || break
    done
    wait_until 10 grep -q "$answer" "$kwinLog"
    callKWin "$object" org.kde.kwin.Script.stop >/dev/null
    sed -n "s/.*$answer //p" "$kwinLog" | tr '|' '\n'
}

startBus "session bus"
DBUS_SESSION_BUS_ADDRESS=$(<"$workDirectory/session bus")
export DBUS_SESSION_BUS_ADDRESS
