#!/bin/bash
# The real program as an assistive program meets it: over an accessibility bus of the test's own.
#
#   accessibility_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xdotool dbus-daemon dbus-send
# The system's Python first, because packages install for that one.
python=""
for candidate in /usr/bin/python3 python3; do
    [[ -n $python ]] || ! "$candidate" -c 'import gi; gi.require_version("Atspi", "2.0")' 2>/dev/null ||
        python=$candidate
done
if [[ -z $python ]]; then
    echo "SKIPPED: no Python knows Atspi"
    exit "$skipped"
fi

unset ${!QT_@} WAYLAND_DISPLAY AT_SPI_BUS_ADDRESS
export XDG_CONFIG_HOME=$workDirectory/config XDG_RUNTIME_DIR=$workDirectory QT_FORCE_STDERR_LOGGING=1
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GSETTINGS_BACKEND=memory NO_AT_BRIDGE=1
log=$workDirectory/orvelle.log

# The session's bus starts the accessibility bus when that is first asked for; both end with it.
startSessionBus() {
    dbus-daemon --session --nofork --nosyslog --print-address=3 3>"$workDirectory/address" \
        2>"$workDirectory/bus.log" &
    sessionBusPid=$!
    ownedPids+=("$sessionBusPid")
    waitUntil "the session's bus starts" test -s "$workDirectory/address"
    DBUS_SESSION_BUS_ADDRESS=$(<"$workDirectory/address")
    export DBUS_SESSION_BUS_ADDRESS
}

programIsGone() { ! kill -0 "$orvellePid" 2>/dev/null; }

start_x_server 1280x800 && start_window_manager || exit 1
startSessionBus
if ! dbus-send --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress >/dev/null 2>&1; then
    echo "SKIPPED: there is no accessibility bus"
    exit "$skipped"
fi
mkdir -p "$XDG_CONFIG_HOME/orvelle"
printf '%s\n' '[General]' showDisk=true showSensors=true >"$XDG_CONFIG_HOME/orvelle/orvelle.conf"
"$orvelle" 2>"$log" &
orvellePid=$!
ownedPids+=("$orvellePid")

"$python" -W ignore::DeprecationWarning "$(dirname "$0")/assistive_program.py" || fail "the assistive program is content"
if waitUntil "\"Quit Orvelle\" ends the program" programIsGone; then
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
fi
((failures == 0)) || cat "$log"
kill "$sessionBusPid"
wait "$sessionBusPid"
echo "$failures failures in $SECONDS seconds"
((failures == 0))
