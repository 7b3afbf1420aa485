#!/bin/bash
# Tests how the real program ends under sway: with its windows open, with its compositor, or because there is none. It
# also runs at most once, and never loads anything that draws with a GPU.
#
#   ending_test.sh ORVELLE WAYLAND_CLIENT

orvelle=$1
client=$2
source "$(dirname "$0")/bar_on_sway.sh"

settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf

milliseconds() { date +%s%3N; }

# expectNoDrivers WHEN: Qt links libraries that find the drivers. The drivers themselves would take 54 MB.
expectNoDrivers() {
    expectEqual "no driver of a GPU is loaded $1" "" \
        "$(grep -oE '[^/]*(libEGL_|libGLX_|libgbm|libdrm|libLLVM|libgallium|_dri\.so)[^/]*$' "/proc/$orvellePid/maps" |
            sort -u)"
}

testLibraries() {
    startOrvelle
    expectNoDrivers "at first"
    clickItem 0
    expectPanel 0 "a panel opens"
    clickItem 1 3
    waitUntil "the menu opens" menuIsOpen
    expectNoDrivers "with windows"
}

testSignals() {
    clickItem 1
    expectPanel 1 "a panel opens"
    endOrvelle
    waitUntil "nothing is left of it" isBare "$output" "$(part "$width" $((height - 10)) 0 0)"
    startOrvelle
    clickItem 1 3
    waitUntil "the menu opens" menuIsOpen
    kill -INT "$orvellePid"
    expectEnd "SIGINT ends the program with its menu open" 0
    expectEqual "it has nothing to complain of" "" "$(complaints)"
}

testSingleInstance() {
    local message
    startOrvelle
    message=$(startAgain "$orvelle" 2>&1)
    expectEqual "a second start ends with status" 0 $?
    [[ $message == *"already running"* ]] || fail "a second start says that the program runs, not: $message"
    kill -KILL "$orvellePid"
    wait "$orvellePid" 2>/dev/null
    startOrvelle
    kill -0 "$orvellePid" || fail "the program starts again after an unexpected end"
}

# The settings change shortly before.
testEndOfSway() {
    local start took status
    clickItem 0 3
    waitUntil "the menu opens" menuIsOpen
    seat key Down Return
    settingsAreShown() { [[ $(swayState focused) == "Orvelle Settings" ]]; }
    waitUntil "the settings open" settingsAreShown
    clickItem 1
    waitUntil "a panel opens beside them" isLastPanel 1
    seat key Escape
    waitUntil "and closes" settingsAreShown
    seat key Tab Tab space
    sleep 0.3 # newer versions of Qt drop the keys that came with the end of the connection
    kill -KILL "${swayPids[0]}"
    start=$(milliseconds)
    waitUntil "the end of sway ends the program" programIsGone
    took=$(($(milliseconds) - start))
    wait "$orvellePid"
    status=$?
    # From 6.5 on Qt ends the process with 255 when it notices before the bar does.
    ((status == 1 || status == 255)) || fail "with status 1, not $status"
    ((took < 1500)) || fail "it took $took ms"
    [[ -n $(complaints) ]] || fail "it says why it ends"
    expectEqual "it has no findings of the sanitizers" "" "$(grep -E 'Sanitizer|runtime error' "$log")"
    expectEqual "the change of the settings is on the disk" showMemory=false "$(grep '^showMemory=' "$settingsFile")"
}

testWithoutCompositor() {
    local message status
    message=$(WAYLAND_DISPLAY=wayland-99 timeout "$patienceSeconds" "$orvelle" --desktop=wayland 2>&1)
    status=$?
    expectEqual "without a compositor the status is" 1 "$status"
    [[ $message == *wayland-99* ]] || fail "an unreachable compositor is named, not: $message"
}

storeVisibility true
startSway
onOutput HEADLESS-1
testLibraries
testSignals
testSingleInstance
# Qt ends the program at once when its connection breaks. Nothing is released then.
kill -TERM "$orvellePid"
wait "$orvellePid"
export ASAN_OPTIONS+=:detect_leaks=0
startOrvelle
testEndOfSway
testWithoutCompositor
echo "$failures failures in $SECONDS seconds"
((failures == 0))
