#!/bin/bash
# Tests how the real program ends with its windows open, and with its desktop.
#
#   ending_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xwininfo xdotool

log=$workDirectory/orvelle.log

barIsShown() { [[ -n $(xdotool search --onlyvisible --name '^Orvelle$' 2>/dev/null) ]]; }
menuIsShown() { [[ -n $(xdotool search --onlyvisible --name '^Orvelle menu$' 2>/dev/null) ]]; }
# A panel's window is 320 x 500 points.
panelIsShown() {
    local window
    for window in $(xdotool search --onlyvisible --class '^orvelle$' 2>/dev/null); do
        [[ $(geometry "$window") != *" 320x500" ]] || return 0
    done
    return 1
}

startOrvelle() {
    launch "$log" "$orvelle"
    waitUntil "the bar appears" barIsShown || cat "$log"
}
clickLastItem() { xdotool mousemove $((1280 - 8 - 30)) 11 click "$1"; }

start_x_server 1280x800 && start_window_manager || exit 1

startOrvelle
clickLastItem 1
waitUntil "a click opens the panel" panelIsShown
kill -TERM "$orvellePid"
expectEnd "SIGTERM ends the program with its panel open" 0

# A session that has ended left this behind.
export SESSION_MANAGER=local/nowhere:@/tmp/.ICE-unix/0
startOrvelle
clickLastItem 3
waitUntil "a right click opens the menu" menuIsShown
kill -INT "$orvellePid"
expectEnd "SIGINT ends the program with its menu open and no session manager" 0
unset SESSION_MANAGER

# Qt calls exit() when its connection breaks. Nothing is released then, and objects that only the QML heap refers to
# look like leaks.
export ASAN_OPTIONS=detect_leaks=0
startOrvelle
clickLastItem 1
waitUntil "a click opens the panel" panelIsShown
kill "$x_server_process"
wait "$x_server_process"
expectEnd "the end of the X server ends the program" 1
echo "$failures failures in $SECONDS seconds"
((failures == 0))
