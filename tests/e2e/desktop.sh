# An X server and a window manager of the test's own, and folders in the place of the user's. Sourced by the end-to-end
# tests.

source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/virtual_display.sh"
source "$(dirname "${BASH_SOURCE[0]}")/../../scripts/modules.sh"

readonly skipped=77
readonly patienceSeconds=${ORVELLE_PATIENCE:-60} # less of it helps whoever writes a test

# The leak checker of some compilers now and then stumbles over the thread-local storage of a thread that is just
# ending; without this it does not look there.
export ASAN_OPTIONS=intercept_tls_get_addr=0

workDirectory=$(mktemp -d)
export XDG_CONFIG_HOME=$workDirectory/config XDG_STATE_HOME=$workDirectory/state XDG_RUNTIME_DIR=$workDirectory
# Of the desktop that the test is started on, if any.
unset "${!QT_@}" WAYLAND_DISPLAY SESSION_MANAGER DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
export QT_FORCE_STDERR_LOGGING=1
ownedPids=()
failures=0

# Ends what the test started, and only that.
cleanUp() {
    local pid
    exec 2>/dev/null # the shell would announce each of them
    # Of the children that still run only: a number that was given back may be another's by now.
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

# waitUntil DESCRIPTION COMMAND...: polls; a failure is reported with the description and counted.
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

# storeVisibility true|false: the settings say it of every module, and nothing else.
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

# launch LOG COMMAND...: the program in the background, by that command; sets orvellePid. LOG gets what it complains of
# and holds nothing of an earlier program's when the function returns.
launch() {
    : >"$1"
    "${@:2}" 2>>"$1" &
    orvellePid=$!
    ownedPids+=("$orvellePid")
}

# awaitAnswer CLIENT: returns when the program has handled every key and click that came before.
awaitAnswer() { timeout "$patienceSeconds" "$1" ping "$(windowsTitled Orvelle | tail -1)" || fail "the bar answers"; }

# startAgain PROGRAM [ARGUMENT...]: it finds that it runs already, and ends. Where it does not find that it is ended.
startAgain() { timeout "$patienceSeconds" "$@"; }

# The numbers or names of a window property, separated by ", ".
property() { xprop -id "$1" -notype "$2" 2>/dev/null | sed -n 's/^[^=]* = //p'; }

# expectTitle TITLE WINDOW: what window managers and assistive programs call it, which is not what xdotool finds it by.
expectTitle() { expectEqual "a window is titled $1" "\"$1\"" "$(property "$2" _NET_WM_NAME)"; }

windowsTitled() { xdotool search --onlyvisible --name "^$1\$" 2>/dev/null; }
isShown() { [[ -n $(windowsTitled "$1") ]]; }
isHidden() { ! isShown "$1"; }

rootProperty() { xprop -root -notype "$1" 2>/dev/null | sed -n 's/^[^=#]*[=#] //p'; }

# X,Y WIDTHxHEIGHT in pixels of the root window.
geometry() {
    [[ -n $1 ]] || return # without an id xwininfo would wait for a click
    xwininfo -id "$1" 2>/dev/null | awk '/Absolute upper-left X/ {x = $NF} /Absolute upper-left Y/ {y = $NF}
        /^ *Width:/ {w = $NF} /^ *Height:/ {h = $NF} END {print x "," y " " w "x" h}'
}

# xfwm4 finds its settings by a session bus; sets xfwm4OnItsBus, the command that starts it.
startSessionBus() {
    dbus-daemon --session --nofork --print-address=3 3>"$workDirectory/bus" >/dev/null 2>&1 &
    ownedPids+=("$!")
    waitUntil "a session bus starts" test -s "$workDirectory/bus"
    # shellcheck disable=SC2034 # the tests that call this function use it
    xfwm4OnItsBus=(env NO_AT_BRIDGE=1 DBUS_SESSION_BUS_ADDRESS="$(<"$workDirectory/bus")" xfwm4)
}

# openOtherWindow CLIENT: sets window and windowPid once the window manager knows it. What happens to the window is told in
# the file "window".
openOtherWindow() {
    rm -f "$workDirectory/window" # of an earlier one
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
