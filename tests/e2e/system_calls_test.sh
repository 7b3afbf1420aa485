#!/bin/bash
# Tests what the real program asks of the kernel while all of it is used in a real X server: it starts no program,
# reaches nothing but the desktop, and writes nothing but its own files.
#
#   system_calls_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/desktop.sh"
requireTools Xvfb openbox dbus-daemon xdotool
source "$(dirname "$0")/traced.sh"
findPython 'from gi.repository import Gio' Gio

log=$workDirectory/orvelle.log
settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
autostartFile=$XDG_CONFIG_HOME/autostart/orvelle.desktop
read_modules "$orvelle" || exit 1

usePanels() {
    local index
    for index in "${!module_keys[@]}"; do
        ask 0 "" --open "${module_keys[index]}"
        waitUntil "the ${module_titles[index]} panel opens" isShown "Orvelle ${module_titles[index]}"
    done
    xdotool key Escape
    waitUntil "the last panel closes" isHidden "Orvelle ${module_titles[index]}"
}

useMenu() {
    xdotool mousemove $((1280 - module_middles[0])) 11 click 3
    waitUntil "the menu opens" isShown "Orvelle menu"
    xdotool key Escape
    waitUntil "and closes" isHidden "Orvelle menu"
}

useSettings() {
    ask 0 "" --settings
    waitUntil "the settings open" isShown "Orvelle Settings"
    xdotool key Tab Tab space
    waitUntil "a switch is stored" grep -q '^showMemory=false' "$settingsFile"
    # In backward order: the first switch, the quit button, and the last switch.
    xdotool key shift+Tab shift+Tab shift+Tab space
    waitUntil "the program will start at login" test -f "$autostartFile"
    xdotool key space
    waitUntil "and no longer" test ! -e "$autostartFile"
    xdotool key Escape
    waitUntil "the settings close" isHidden "Orvelle Settings"
}

tour() {
    storeVisibility true
    launchTraced "$log" "$orvelle"
    waitUntil "the bar appears" isShown Orvelle || cat "$log"
    usePanels
    useMenu
    useSettings
    ask 0 "Orvelle is already running on this desktop."
    storeVisibility false
    waitUntil "the bar goes with the last item" isHidden Orvelle
    ask 0 "" --quit
    expectEnd "the program ends" 0
    expectAllowedCalls "$1"
}

# What the trace must show, lest it be of something else.
expectSeen() { grep -q "$2" "$trace" || fail "the trace shows $1"; }

start_x_server 1280x800 && start_window_manager || exit 1
# libdbus would start a bus.
tour "a tour without a session bus"

startSessionBus
DBUS_SESSION_BUS_ADDRESS=$(<"$workDirectory/bus")
export DBUS_SESSION_BUS_ADDRESS
tour "a tour"
expectSeen "the start" '^[0-9]* *execve('
expectSeen "the settings' lock" 'orvelle.conf.lock.*O_CREAT'
expectSeen "the autostart entry" 'autostart/orvelle.desktop'
expectSeen "the list of interfaces" 'AF_NETLINK'
expectSeen "the session bus" 'connect(.*dbus'
storeVisibility true
"$python" -B "$(dirname "$0")/tray_host.py" >"$workDirectory/tray" 2>&1 &
ownedPids+=("$!")
waitUntil "a tray appears" grep -qs '^tray' "$workDirectory/tray" || cat "$workDirectory/tray"
launchTraced "$log" "$orvelle" --desktop=tray
waitUntil "the tray shows the icon" grep -q '^icon ' "$workDirectory/tray" || cat "$log" "$workDirectory/tray"
"$orvelle" --desktop=tray --open cpu
waitUntil "a panel opens from the tray" isShown "Orvelle CPU" || cat "$log"
"$orvelle" --desktop=tray --quit
expectEnd "the program ends" 0
expectAllowedCalls "a program in the tray"
runtimeFolder=$XDG_RUNTIME_DIR
unset XDG_RUNTIME_DIR
launchTraced "$log" "$orvelle" --open cpu
waitUntil "a panel opens without a runtime folder" isShown "Orvelle CPU"
startAgain "$orvelle" --quit
expectEnd "the program ends" 0
expectAllowedCalls "a program without a runtime folder"
export XDG_RUNTIME_DIR=$runtimeFolder
launchTraced "$log" "$orvelle" --quit
expectEnd "asking a program that does not run to end" 1
expectAllowedCalls "it"
echo "$failures failures in $SECONDS seconds"
((failures == 0))
