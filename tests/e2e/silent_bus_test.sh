#!/bin/bash
# Tests the real program in a session whose message bus takes connections and never answers.
#
#   silent_bus_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xdotool python3
read_modules "$orvelle" || exit 1
log=$workDirectory/orvelle.log
bus=$workDirectory/bus

start_x_server 1280x800 && start_window_manager || exit 1
python3 -BSE -c 'import signal, socket, sys
bus = socket.socket(socket.AF_UNIX)
bus.bind(sys.argv[1])
bus.listen(8)
signal.pause()' "$bus" &
ownedPids+=("$!")
waitUntil "a bus takes connections" test -S "$bus"

DBUS_SESSION_BUS_ADDRESS=unix:path=$bus launch "$log" "$orvelle"
waitUntil "the bar appears" isShown Orvelle
xdotool mousemove $((1280 - 8 - 30)) 11 click 1
waitUntil "a click opens a panel" isShown "Orvelle ($ORVELLE_MODULE_TITLES)"
kill -TERM "$orvellePid"
expectEnd "SIGTERM ends the program" 0
expectEqual "it says what is missing" "orvelle: the session's message bus does not answer, so it is not used" "$(<"$log")"
echo "$failures failures in $SECONDS seconds"
((failures == 0))
