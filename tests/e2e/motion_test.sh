#!/bin/bash
# The real program on a desktop that says whether things may move.
#
#   motion_test.sh ORVELLE SETTINGS_MANAGER

orvelle=$1
manager=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xdotool

export QT_LOGGING_RULES="orvelle.motion.debug=true"
log=$workDirectory/orvelle.log

startOrvelle() {
    launch "$log" "$orvelle"
    waitUntil "the program starts" grep -q "motion is" "$log"
}
endOrvelle() {
    kill "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
}

# Its input stays open on descriptor 3; `say 0` has it publish that nothing may move.
startManager() {
    mkfifo "$workDirectory/input"
    "$manager" <"$workDirectory/input" &
    managerPid=$!
    ownedPids+=("$managerPid")
    exec 3>"$workDirectory/input"
    rm "$workDirectory/input"
}
say() { echo "$1" >&3; }
endManager() {
    exec 3>&-
    wait "$managerPid"
}

# motionWas WORD...: what has been logged since the start, in order.
motionWas() { [[ $(sed -n 's/.*motion is //p' "$log" | xargs) == "$*" ]]; }

start_x_server 640x480 && start_window_manager || exit 1

startOrvelle
waitUntil "without a word of the desktop everything moves" motionWas full
startManager
say 0
waitUntil "a manager that comes is heard" motionWas full reduced
say 1
waitUntil "a change is followed" motionWas full reduced full
say 0
waitUntil "a change back is followed" motionWas full reduced full reduced
endManager
waitUntil "a manager that went says nothing" motionWas full reduced full reduced full
startManager
say 0
waitUntil "the next manager is heard" motionWas full reduced full reduced full reduced
endOrvelle
startOrvelle
waitUntil "a manager that was there before is heard" motionWas reduced
endOrvelle
endManager
echo "$failures failures in $SECONDS seconds"
((failures == 0))
