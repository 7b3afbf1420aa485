#!/bin/bash
# Tests the real program in a session: a logout, a cancelled logout, and the next login.
#
#   session_test.sh ORVELLE SESSION_MANAGER

orvelle=$1
manager=$2
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox xprop xwininfo xdotool wmctrl
read_modules "$orvelle" || exit 1

export ICEAUTHORITY=$workDirectory/authority
settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
stateFile=$XDG_STATE_HOME/orvelle/state.conf
log=$workDirectory/orvelle.log
session=$workDirectory/session

# store KEY=VALUE...: rewrites the settings file like another program.
store() {
    mkdir -p "$(dirname "$settingsFile")"
    { echo "[General]"; printf '%s\n' "$@"; } >"$settingsFile"
}

shownWindows() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null; }
isShown() { [[ -n $(shownWindows "$1") ]]; }
isHidden() { ! isShown "$1"; }
shownBars() { shownWindows Orvelle | wc -l; }

# Checks what the session manager has seen of the program, and how often.
timesSeen() { grep -c "^$1\$" "$session" 2>/dev/null; }
isSeen() { (($(timesSeen "$1") >= ${2:-1})); }
lastProperty() { sed -n "s/^property $1 //p" "$session" | tail -1; }

startSessionManager() {
    rm -f "$workDirectory/orders" "$session"
    mkfifo "$workDirectory/orders"
    "$manager" <"$workDirectory/orders" >"$session" 2>"$workDirectory/session.log" &
    managerPid=$!
    ownedPids+=("$managerPid")
    exec 7>"$workDirectory/orders"
    waitUntil "a session starts" test -s "$session"
    export SESSION_MANAGER
    SESSION_MANAGER=$(head -1 "$session")
}
endSessionManager() {
    exec 7>&-
    wait "$managerPid"
    expectEqual "the session manager ends with status" 0 $?
    [[ ! -s $workDirectory/session.log ]] || cat "$workDirectory/session.log"
}
order() { echo "$1" >&7; }

# startOrvelle [ARGUMENT...]
startOrvelle() {
    QT_LOGGING_RULES=orvelle.sample.debug=true launch "$log" "$orvelle" "$@" 7>&-
    waitUntil "the program runs" grep -q 'cycle 1' "$log" || cat "$log"
    waitUntil "it joins the session" isSeen registered
    waitUntil "it answers the session manager" isSeen saved
}

# expectEndOfSession DESCRIPTION: expects that the program ends by itself, with status 0 and without complaints.
expectEndOfSession() {
    expectEnd "$1" 0
    expectEqual "$1 without a complaint" "" "$(grep -v '^orvelle.sample: ' "$log")"
    waitUntil "and leaves the session" isSeen left
    expectEqual "$1 without a question" 0 "$(timesSeen interacts)"
}

clickLastItem() {
    waitUntil "the bar is shown" isShown Orvelle
    xdotool mousemove $((1280 - 8 - 30)) 11 click "$1"
}
settingsWindow() { shownWindows 'Orvelle Settings' | tail -1; }

openSettings() {
    clickLastItem 3
    waitUntil "the menu opens" isShown 'Orvelle menu'
    xdotool key ctrl+comma
    waitUntil "the settings open" isShown 'Orvelle Settings'
}

testLogout() {
    startSessionManager
    startOrvelle
    openSettings
    xdotool key Tab space
    waitUntil "a switch is changed" grep -q '^showCPU=false' "$settingsFile"
    order logout
    waitUntil "the program is ready for the logout" isSeen saved 2
    expectEqual "and waits until the session ends" "1 0" "$(shownBars) $(timesSeen left)"
    # Happens just before the end, so that only the end itself can store it.
    wmctrl -i -r "$(settingsWindow)" -e 0,150,90,500,520
    isMoved() { [[ $(geometry "$(settingsWindow)") == *" 500x520" ]]; }
    waitUntil "the settings window is moved" isMoved
    order die
    expectEndOfSession "the end of the session ends the program"
    expectEqual "a setting is kept" showCPU=false "$(grep '^showCPU=' "$settingsFile")"
    grep -q '^OrvelleSettings=.* 500 520"$' "$stateFile" || fail "the window's place is kept, not $(cat "$stateFile")"
    endSessionManager
    rm "$settingsFile" "$stateFile"
}

testCancelledLogout() {
    startSessionManager
    startOrvelle
    order logout
    waitUntil "the program is ready for the logout" isSeen saved 2
    order cancelled
    clickLastItem 1
    waitUntil "after a cancelled logout a click opens a panel" isShown "Orvelle ($ORVELLE_MODULE_TITLES)"
    local cycle
    cycle=$(sed -n 's/.*cycle //p' "$log" | tail -1)
    waitUntil "and sampling goes on" grep -q "cycle $((cycle + 1))" "$log"
    order logout
    waitUntil "the program is ready for a second logout" isSeen saved 3
    order die
    expectEndOfSession "the end of the session ends the program with its panel open"
    endSessionManager
}

# Only the setting decides whether the program starts at login, not a restored session.
testRestart() {
    local neverRestart=3 seen
    storeVisibility false
    startSessionManager
    startOrvelle -session 10d2a3c4_1600000000_500000
    expectEqual "the session manager is not to start the program" "$neverRestart" "$(lastProperty RestartStyleHint)"
    order logout
    waitUntil "the program is ready for the logout" isSeen saved 2
    expectEqual "also after a logout" "$neverRestart" "$(lastProperty RestartStyleHint)"
    order cancelled
    store showCPU=true
    waitUntil "the bar appears" isShown Orvelle
    expectEqual "there is a command all the same" "$orvelle" "$(lastProperty RestartCommand | sed 's/ -session .*//')"
    # An autostart entry and a restored session may start the program at the same time.
    seen=$(startAgain "$orvelle" -session 10d2a3c4_1600000000_500001 2>&1)
    expectEqual "a second start by the session manager ends with status" 0 $?
    [[ $seen == *"already running"* ]] || fail "a second start says that the program runs, not: $seen"
    expectEqual "there is one bar" 1 "$(shownBars)"
    order logout
    waitUntil "the program is ready for the logout" isSeen saved 3
    order die
    expectEndOfSession "the end of the session ends the program"
    endSessionManager
}

# As when it crashes, and the desktop goes on without it or starts another one.
testBrokenSession() {
    local before used
    startSessionManager
    startOrvelle
    clickLastItem 1
    waitUntil "a click opens a panel" isShown "Orvelle ($ORVELLE_MODULE_TITLES)"
    kill -KILL "$managerPid"
    waitUntil "the program says that the session manager broke off" \
        grep -q "^orvelle: the session manager has broken off" "$log"
    before=$(processorTicks)
    sleep 1
    used=$(($(processorTicks) - before))
    ((used < 50)) || fail "it rests, but uses $used hundredths of a second in one second"
    xdotool key Escape
    waitUntil "it goes on: Escape closes the panel" isHidden "Orvelle ($ORVELLE_MODULE_TITLES)"
    clickLastItem 1
    waitUntil "and a click opens it again" isShown "Orvelle ($ORVELLE_MODULE_TITLES)"
    kill -TERM "$orvellePid"
    expectEnd "it can be ended" 0
    exec 7>&-
}
processorTicks() { awk '{print $14 + $15}' "/proc/$orvellePid/stat"; }

start_x_server 1280x800 && start_window_manager || exit 1
testLogout
testCancelledLogout
testRestart
testBrokenSession
echo "$failures failures in $SECONDS seconds"
((failures == 0))
