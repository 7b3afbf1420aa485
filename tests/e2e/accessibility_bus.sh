# Adds a private session bus and accessibility bus to the display of desktop.sh. Sourced by the end-to-end tests.

# Another sourced file may have prepared the folders.
declare -F waitUntil >/dev/null || source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
requireTools dbus-daemon dbus-send

findPython 'import gi; gi.require_version("Atspi", "2.0")' Atspi
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GSETTINGS_BACKEND=memory NO_AT_BRIDGE=1

# The session bus starts the accessibility bus on demand. Both end with the session bus.
startAccessibilityBus() {
    dbus-daemon --session --nofork --nosyslog --print-address=3 3>"$workDirectory/address" \
        >"$workDirectory/bus.log" 2>&1 &
    sessionBusPid=$!
    ownedPids+=("$sessionBusPid")
    waitUntil "the session's bus starts" test -s "$workDirectory/address"
    DBUS_SESSION_BUS_ADDRESS=$(<"$workDirectory/address")
    export DBUS_SESSION_BUS_ADDRESS
    if ! dbus-send --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null 2>&1; then
        echo "SKIPPED: there is no accessibility bus"
        exit "$skipped"
    fi
}

stopAccessibilityBus() {
    kill "$sessionBusPid"
    wait "$sessionBusPid"
}

# assist SCRIPT ARGUMENT...: runs an assistive program; its failures count as one.
assist() {
    local script=$1
    shift
    "$python" -B -W ignore::DeprecationWarning "$(dirname "$0")/$script" "$@" || fail "$script is content"
}
