# An X server and a window manager of the test's own. Sourced by the end-to-end tests.

readonly skipped=77
readonly patienceSeconds=15

workDirectory=$(mktemp -d)
ownedPids=()
failures=0

# Ends what the test started, and only that.
cleanUp() {
    local pid
    disown -a # the shell would announce each of them
    for pid in "${ownedPids[@]}"; do
        kill -KILL "$pid" 2>/dev/null
    done
    wait 2>/dev/null
    rm -rf "$workDirectory"
}
trap cleanUp EXIT

requireTools() {
    local tool
    for tool in "$@"; do
        if ! command -v "$tool" >/dev/null; then
            echo "SKIPPED: $tool is not installed"
            exit "$skipped"
        fi
    done
}

# startServer WIDTHxHEIGHT: sets DISPLAY to a server on a number that the server itself found free.
startServer() {
    local numberFile=$workDirectory/display
    : >"$numberFile"
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$numberFile" 2>"$workDirectory/server.log" &
    serverPid=$!
    ownedPids+=("$serverPid")
    waitUntil "the X server starts" test -s "$numberFile" || exit 1
    DISPLAY=:$(<"$numberFile")
    export DISPLAY
}

startWindowManager() {
    openbox >"$workDirectory/openbox.log" 2>&1 &
    windowManagerPid=$!
    ownedPids+=("$windowManagerPid")
    waitUntil "the window manager starts" windowManagerRuns || exit 1
}

windowManagerRuns() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# waitUntil DESCRIPTION COMMAND...: polls; a failure is reported with the description and counted.
waitUntil() {
    local description=$1 deadline=$((SECONDS + patienceSeconds))
    shift
    until "$@"; do
        if ((SECONDS >= deadline)); then
            fail "$description"
            return 1
        fi
        sleep 0.05
    done
    echo "ok: $description"
}

fail() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}

# expectEqual DESCRIPTION EXPECTED ACTUAL
expectEqual() {
    if [[ $2 == "$3" ]]; then
        echo "ok: $1"
    else
        fail "$1: expected '$2', found '$3'"
    fi
}

# The numbers or names of a window property, separated by ", ".
property() { xprop -id "$1" -notype "$2" 2>/dev/null | sed -n 's/^[^=]* = //p'; }

rootProperty() { xprop -root -notype "$1" 2>/dev/null | sed -n 's/^[^=#]*[=#] //p'; }

# X,Y WIDTHxHEIGHT in pixels of the root window.
geometry() {
    [[ -n $1 ]] || return # without an id xwininfo would wait for a click
    xwininfo -id "$1" 2>/dev/null | awk '/Absolute upper-left X/ {x = $NF} /Absolute upper-left Y/ {y = $NF}
        /^ *Width:/ {w = $NF} /^ *Height:/ {h = $NF} END {print x "," y " " w "x" h}'
}
