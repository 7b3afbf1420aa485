#!/bin/bash
# Tests the real program on a desktop that publishes a setting for motion and a font.
#
#   motion_test.sh ORVELLE SETTINGS_MANAGER

orvelle=$1
manager=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xdotool

export QT_LOGGING_RULES="orvelle.motion.debug=true;orvelle.fonts.debug=true"
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

# The manager's input stays open on descriptor 3. `say 0 FONT` makes it publish reduced motion and the font.
startManager() {
    mkfifo "$workDirectory/input"
    "$manager" <"$workDirectory/input" &
    managerPid=$!
    ownedPids+=("$managerPid")
    exec 3>"$workDirectory/input"
    rm "$workDirectory/input"
}
say() { echo "$1" "${2:-Sans 10}" >&3; }
endManager() {
    exec 3>&-
    wait "$managerPid"
}

# motionWas WORD...: whether the log since the start has exactly these words in this order.
motionWas() { [[ $(sed -n 's/.*motion is //p' "$log" | xargs) == "$*" ]]; }

# fontsWere FAMILY...: the same for fonts; repetitions of a font do not count.
fontsWere() { [[ $(sed -n 's/.*font is //p' "$log" | uniq) == "$(printf '%s\n' "$@")" ]]; }

start_x_server 640x480 && start_window_manager || exit 1

startOrvelle
waitUntil "without a word of the desktop everything moves" motionWas full
startManager
say 0
waitUntil "a manager that comes is heard" motionWas full reduced
say 1
waitUntil "a change is followed" motionWas full reduced full
ordinary=$(sed -n 's/.*font is //p' "$log" | head -1)
say 0 "DejaVu Serif Bold 11"
waitUntil "a change back is followed" motionWas full reduced full reduced
waitUntil "a font is followed" fontsWere "$ordinary" "DejaVu Serif"
endManager
waitUntil "a manager that went says nothing" motionWas full reduced full reduced full
waitUntil "without it the font is the ordinary one" fontsWere "$ordinary" "DejaVu Serif" "$ordinary"
startManager
say 0
waitUntil "the next manager is heard" motionWas full reduced full reduced full reduced
endOrvelle
startOrvelle
waitUntil "a manager that was there before is heard" motionWas reduced
waitUntil "and no font of it that is not there" fontsWere "$ordinary"
say 0 "DejaVu Sans Mono 9"
waitUntil "a font changes alone" fontsWere "$ordinary" "DejaVu Sans Mono"
say 1 "DejaVu Sans Mono 9"
waitUntil "motion changes alone" motionWas reduced full
say 1 "No Such Font 9"
waitUntil "a font that is not there is not taken" fontsWere "$ordinary" "DejaVu Sans Mono" "$ordinary"
endOrvelle
say 1 "DejaVu Serif 11"
startOrvelle
waitUntil "the font that was there before is taken" fontsWere "DejaVu Serif"
endOrvelle
endManager
echo "$failures failures in $SECONDS seconds"
((failures == 0))
