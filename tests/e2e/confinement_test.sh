#!/bin/bash
# Tests that the kernel refuses to the running program what it has given up, in all its threads, before and after its
# windows have been loaded.
#
#   confinement_test.sh ORVELLE FORBIDDEN_CALLS

orvelle=$1
library=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox dbus-daemon xdotool
log=$workDirectory/orvelle.log

if ! grep -q '^Seccomp:' /proc/self/status; then
    echo "SKIPPED: this kernel has no filter for system calls"
    exit "$skipped"
fi
# The library comes before that of the sanitizers.
ASAN_OPTIONS+=:verify_asan_link_order=0

answersAre() { (($(grep -c '^asked$' "$log") == $1)); }
# expectRefusals COUNT: asks for the COUNT-th time.
expectRefusals() {
    kill -USR2 "$orvellePid"
    waitUntil "the library has asked" answersAre "$1"
    expectEqual "everything is refused" "" "$(grep ' allowed$' "$log")"
    expectEqual "of what was asked for" $((7 * $1)) "$(grep -c ' refused$' "$log")"
    expectEqual "in every thread" "NoNewPrivs: 1 Seccomp: 2" \
        "$(cat /proc/"$orvellePid"/task/*/status | grep -E '^(NoNewPrivs|Seccomp):' | tr '\t' ' ' | sort -u | xargs)"
}

start_x_server 1280x800 && start_window_manager || exit 1
startSessionBus
DBUS_SESSION_BUS_ADDRESS=$(<"$workDirectory/bus")
export DBUS_SESSION_BUS_ADDRESS
launch "$log" env LD_PRELOAD="$library" "$orvelle"
waitUntil "the bar appears" isShown Orvelle || cat "$log"
expectRefusals 1
startAgain "$orvelle" --open cpu
waitUntil "a panel opens" isShown "Orvelle CPU"
startAgain "$orvelle" --settings
waitUntil "the settings open" isShown "Orvelle Settings"
expectRefusals 2
startAgain "$orvelle" --quit
expectEnd "the program ends" 0

# Through ssh the display is elsewhere.
DISPLAY=localhost$DISPLAY launch "$log" env LD_PRELOAD="$library" "$orvelle"
expectEnd "a display that cannot be reached ends it" 1
expectEqual "which it names" 1 "$(grep -c "localhost$DISPLAY" "$log")"
echo "$failures failures in $SECONDS seconds"
((failures == 0))
