# Prepares a private X server and window manager, and private folders in place of the user's. Sourced by the end-to-end
# tests.

source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/virtual_display.sh"
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/modules.sh"

readonly skipped=77
readonly patienceSeconds=${ORVELLE_PATIENCE:-60} # a shorter time is convenient while writing a test

# The leak checker of some compilers sometimes fails on the thread-local storage of an ending thread. This option keeps
# it from looking there.
export ASAN_OPTIONS=intercept_tls_get_addr=0

workDirectory=$(mktemp -d)
export HOME=$workDirectory XDG_CACHE_HOME=$workDirectory/cache XDG_DATA_HOME=$workDirectory/data
export XDG_CONFIG_HOME=$workDirectory/config XDG_STATE_HOME=$workDirectory/state XDG_RUNTIME_DIR=$workDirectory/runtime
mkdir -m 700 "$XDG_RUNTIME_DIR"
# These belong to the desktop that starts the test.
unset "${!QT_@}" DISPLAY XAUTHORITY WAYLAND_DISPLAY SWAYSOCK SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
export QT_FORCE_STDERR_LOGGING=1
ownedPids=()
failures=0

# Ends only the processes that the test started.
cleanUp() {
    local pid
    exec 2>/dev/null # otherwise the shell announces each of them
    # Kills only children that still run, because another process may have reused the id of an ended one.
    for pid in $(jobs -rp); do
        [[ " ${ownedPids[*]} " != *" $pid "* ]] || kill -KILL "$pid"
    done
    stop_virtual_display
    wait
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

# findPython CODE NAME: sets python to one that runs the code, which imports what NAME says; skips the test without one.
# The system's comes first, because packages install for it.
findPython() {
    for python in /usr/bin/python3 python3; do
        ! "$python" -c "$1" 2>/dev/null || return 0
    done
    echo "SKIPPED: no Python knows $2"
    exit "$skipped"
}

# waitUntil DESCRIPTION COMMAND...: polls; reports and counts a failure.
waitUntil() {
    local description=$1 deadline=$((SECONDS + patienceSeconds))
    shift
    until "$@"; do
        if ((SECONDS >= deadline)); then
            fail "$description"
            return 1
        fi
        sleep 0.02
    done
    echo "ok: $description"
}

fail() {
    echo "FAILED: $1"
    failures=$((failures + 1))
}

# storeVisibility true|false: writes settings that show or hide every module, and contain nothing else.
storeVisibility() {
    local setting
    mkdir -p "$XDG_CONFIG_HOME/orvelle"
    {
        echo "[General]"
        for setting in "${module_settings[@]}"; do echo "$setting=$1"; done
    } >"$workDirectory/settings"
    mv "$workDirectory/settings" "$XDG_CONFIG_HOME/orvelle/orvelle.conf"
}

# expectEqual DESCRIPTION EXPECTED ACTUAL
expectEqual() {
    if [[ $2 == "$3" ]]; then
        echo "ok: $1"
    else
        fail "$1: expected '$2', found '$3'"
    fi
}

# launch LOG COMMAND...: runs the program by this command in the background; sets orvellePid and orvelleLog. LOG gets its
# complaints and is emptied first.
launch() {
    orvelleLog=$1
    : >"$orvelleLog"
    "${@:2}" 2>>"$orvelleLog" &
    orvellePid=$!
    ownedPids+=("$orvellePid")
}

programIsGone() { ! kill -0 "$orvellePid" 2>/dev/null; }

# expectEnd DESCRIPTION STATUS: expects that the program ends by itself and without findings of the sanitizers.
expectEnd() {
    local status
    waitUntil "$1" programIsGone || return
    wait "$orvellePid"
    status=$?
    expectEqual "$1 with status" "$2" "$status"
    expectEqual "$1 without a report of the sanitizers" "" "$(grep -E 'Sanitizer|runtime error' "$orvelleLog")"
    [[ $status == "$2" ]] || cat "$orvelleLog"
}

# awaitAnswer CLIENT: waits until the program has handled all earlier keys and clicks.
awaitAnswer() { timeout "$patienceSeconds" "$1" ping "$(windowsTitled Orvelle | tail -1)" || fail "the bar answers"; }

# startAgain PROGRAM [ARGUMENT...]: starts a second process, which must end by itself; otherwise a timeout ends it.
startAgain() { timeout "$patienceSeconds" "$@"; }

# ask STATUS OUTPUT ARGUMENT...: expects that another start of the program with the arguments ends by itself.
ask() {
    local output status
    # shellcheck disable=SC2154 # the tests set `orvelle`
    output=$(startAgain "$orvelle" "${@:3}" 2>&1)
    status=$?
    expectEqual "orvelle ${*:3} ends with status" "$1" "$status"
    expectEqual "and says" "$2" "$output"
}

# Prints the numbers or names of a window property, separated by ", ".
property() { xprop -id "$1" -notype "$2" 2>/dev/null | sed -n 's/^[^=]* = //p'; }

# expectTitle TITLE WINDOW: checks the title for window managers and assistive programs. xdotool searches another name.
expectTitle() { expectEqual "a window is titled $1" "\"$1\"" "$(property "$2" _NET_WM_NAME)"; }

windowsTitled() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null; }
isShown() { [[ -n $(windowsTitled "$1") ]]; }
isHidden() { ! isShown "$1"; }

rootProperty() { xprop -root -notype "$1" 2>/dev/null | sed -n 's/^[^=#]*[=#] //p'; }

# Prints X,Y WIDTHxHEIGHT in pixels of the root window.
geometry() {
    [[ -n $1 ]] || return # without an id, xwininfo would wait for a click
    xwininfo -id "$1" 2>/dev/null | awk '/Absolute upper-left X/ {x = $NF} /Absolute upper-left Y/ {y = $NF}
        /^ *Width:/ {w = $NF} /^ *Height:/ {h = $NF} END {print x "," y " " w "x" h}'
}

# Starts a session bus, which xfwm4 needs for its settings. Sets xfwm4OnItsBus, the command that starts xfwm4.
startSessionBus() {
    dbus-daemon --session --nofork --print-address=3 3>"$workDirectory/bus" >/dev/null 2>&1 &
    ownedPids+=("$!")
    waitUntil "a session bus starts" test -s "$workDirectory/bus"
    # shellcheck disable=SC2034 # the tests that call this function use it
    xfwm4OnItsBus=(env NO_AT_BRIDGE=1 DBUS_SESSION_BUS_ADDRESS="$(<"$workDirectory/bus")" xfwm4)
}

# openOtherWindow CLIENT: opens a window and waits until it is managed. Sets window and windowPid. The file "window"
# records the window's events.
openOtherWindow() {
    rm -f "$workDirectory/window" # of an earlier window
    "$1" window >"$workDirectory/window" &
    windowPid=$!
    ownedPids+=("$windowPid")
    waitUntil "another window opens" test -s "$workDirectory/window"
    window=$(head -1 "$workDirectory/window")
    windowIsManaged() { rootProperty _NET_CLIENT_LIST | grep -q "$window"; }
    waitUntil "the other window is managed" windowIsManaged
}

clickOtherWindow() {
    local left top
    IFS=', x' read -r left top _ < <(geometry "$window")
    xdotool mousemove $((left + 20)) $((top + 20)) click 1
}

otherWindowWasClicked() { grep -q pressed "$workDirectory/window"; }

closeOtherWindow() {
    kill "$windowPid"
    wait "$windowPid" 2>/dev/null
}
