# What the program depends on that speaks over a message bus. Sourced by death.sh.
# shellcheck disable=SC2154,SC2034 # the files that death.sh sources share their variables

# startServices [NAME...]: a bus, and on it doubles of the desktop's services. Sets sessionBusPid and services.
startServices() {
    source "$here/../../e2e/accessibility_bus.sh"
    startAccessibilityBus || return
    (($# == 0)) || startOnBus "$@"
}
# startOnBus NAME...
startOnBus() {
    "$python" -B "$here/desktop_services.py" "$@" >"$workDirectory/services" 2>&1 &
    services=$!
    ownedPids+=("$services")
    waitUntil "the desktop's services start" grep -q ready "$workDirectory/services" || cat "$workDirectory/services"
}
wasAsked() { grep -q "$1" "$workDirectory/services"; }

# busProcess BUS NAME: the process that owns a name on the bus at this address.
busProcess() {
    dbus-send --bus="$1" --print-reply=literal --dest=org.freedesktop.DBus /org/freedesktop/DBus \
        org.freedesktop.DBus.GetConnectionUnixProcessID "string:$2" 2>/dev/null | awk '{print $NF}'
}

# startReader: a screen reader that reads the program over and over.
startReader() {
    "$python" -B -W ignore "$here/screen_reader.py" >"$workDirectory/reader" 2>&1 &
    ownedPids+=("$!")
}
readerReads() { grep -q read "$workDirectory/reader"; }

death_sessionBusKilled() {
    startX11 && startServices || return
    runProgram || return
    strike kill -KILL "$sessionBusPid"
    expectGoingOn
    openWindow panel
    endProgram
}

death_sessionBusKilledWhileRead() {
    startX11 && startServices || return
    runProgram || return
    startReader
    waitUntil "a screen reader reads" readerReads || cat "$workDirectory/reader"
    strike kill -KILL "$sessionBusPid"
    expectGoingOn
    endProgram
}

# accessibilityAddress: of the bus for assistive programs.
accessibilityAddress() {
    dbus-send --print-reply=literal --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress | xargs
}

death_accessibilityBusKilled() {
    startX11 && startServices || return
    runProgram || return
    startReader
    waitUntil "a screen reader reads" readerReads || cat "$workDirectory/reader"
    local bus
    bus=$(busProcess "$(accessibilityAddress)" org.freedesktop.DBus)
    [[ -n $bus ]] || return
    strike kill -KILL "$bus"
    expectGoingOn
    openWindow panel
    endProgram
}

death_accessibilityRegistryKilled() {
    startX11 && startServices || return
    runProgram || return
    startReader
    waitUntil "a screen reader reads" readerReads || cat "$workDirectory/reader"
    local registry
    registry=$(busProcess "$(accessibilityAddress)" org.a11y.atspi.Registry)
    [[ -n $registry ]] || return
    strike kill -KILL "$registry"
    expectGoingOn
    endProgram
}

death_systemBusKilled() {
    dbus-daemon --session --nofork --nosyslog --print-address=3 3>"$workDirectory/system" >/dev/null 2>&1 &
    local bus=$!
    ownedPids+=("$bus")
    waitUntil "a system bus starts" test -s "$workDirectory/system"
    DBUS_SYSTEM_BUS_ADDRESS=$(<"$workDirectory/system")
    export DBUS_SYSTEM_BUS_ADDRESS
    startX11 || return
    runProgram || return
    strike kill -KILL "$bus"
    expectGoingOn
    endProgram
}

death_trayKilled() {
    startX11 && startServices tray || return
    orvelleOptions=(--desktop=tray)
    runProgram || return
    waitUntil "the icon comes" wasAsked registered
    strike kill -KILL "$services"
    wait "$services" 2>/dev/null
    expectGoingOn
    : >"$workDirectory/services"
    startOnBus tray
    waitUntil "the icon comes to the next tray" wasAsked registered
    endProgram
}

death_sessionBusKilledInTray() {
    startX11 && startServices tray || return
    orvelleOptions=(--desktop=tray)
    runProgram || return
    waitUntil "the icon comes" wasAsked registered
    strike kill -KILL "$sessionBusPid"
    expectGoingOn
    [[ $moment == start ]] || expectMessages "waits for a tray: the session bus has ended"
    endProgram
}

death_sessionBusKilledWithPortal() {
    startWayland && startServices portal || return
    runProgram || return
    [[ $moment == start ]] || waitUntil "the portal is asked" wasAsked asked
    strike kill -KILL "$sessionBusPid"
    expectGoingOn
    endProgram
}

death_portalKilled() {
    startWayland && startServices portal || return
    runProgram || return
    strike kill -KILL "$services"
    expectGoingOn
    endProgram
}
