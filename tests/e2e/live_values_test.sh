#!/bin/bash
# Tests that the panels of the real program show the work that the test gives to the machine.
#
#   live_values_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/accessibility_bus.sh"
requireTools Xvfb openbox xprop
namespaces=()

# startOrvelle [COMMAND...]: runs the program, through COMMAND if given.
startOrvelle() {
    launch "$workDirectory/orvelle.log" "$@" "$orvelle"
}
endOrvelle() {
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
}

endProcess() {
    kill "$1"
    wait "$1" 2>/dev/null
}

testBusyProcess() {
    cp "$(command -v yes)" "$workDirectory/orvelle-busy"
    "$workDirectory/orvelle-busy" >/dev/null &
    local busyPid=$!
    ownedPids+=("$busyPid")
    # On a busy machine the process may get only a small share of a processor.
    assist live_values.py CPU "a busy process is in the CPU panel's list" '^orvelle-busy ([1-9][0-9]*\.[0-9]|0\.[1-9])%$'
    endProcess "$busyPid"
}

writeWithoutEnd() {
    while dd if=/dev/zero of="$workDirectory/written" bs=1M count=8 oflag=dsync status=none; do :; done
}
testWriting() {
    # Writing to a file system in memory, or to a disk that the kernel does not count, shows nothing.
    local device
    device=$(df --output=source "$workDirectory" | tail -1)
    if [[ ! -e /sys/class/block/$(basename "$device") ]]; then
        echo "not tested: a file being written, because $workDirectory is on no block device"
        return
    fi
    writeWithoutEnd &
    local writerPid=$!
    ownedPids+=("$writerPid")
    assist live_values.py Disk "a file being written is in the disk panel" '^Write [0-9.]+ [MG]B/s$'
    endProcess "$writerPid"
}

# Sends from the other namespace to the program's namespace, where no receiver is needed.
sendWithoutEnd() {
    exec ip netns exec "$1" "$python" -c '
import socket, time
sender = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
while True:
    try:
        for _ in range(50):
            sender.sendto(bytes(1000), ("10.213.7.1", 9))
    except OSError:
        pass
    time.sleep(0.01)'
}
removeNamespaces() {
    local name
    for name in "${namespaces[@]}"; do ip netns delete "$name"; done
    cleanUp
}
testTraffic() {
    local here="orvelle-here-$$" there="orvelle-there-$$"
    if ! ip netns add "$here" 2>/dev/null; then
        echo "not tested: traffic between two network namespaces, because none can be made here"
        return
    fi
    trap removeNamespaces EXIT
    namespaces=("$here")
    ip netns add "$there" && namespaces+=("$there")
    ip link add veth-here netns "$here" type veth peer name veth-there netns "$there"
    ip -n "$here" address add 10.213.7.1/24 dev veth-here
    ip -n "$there" address add 10.213.7.2/24 dev veth-there
    ip -n "$here" link set veth-here up
    ip -n "$there" link set veth-there up
    sendWithoutEnd "$there" &
    local senderPid=$!
    ownedPids+=("$senderPid")
    startOrvelle ip netns exec "$here"
    assist live_values.py Network "traffic is in the network panel" '^Download [0-9.]+ MB/s$' \
        "and in the list of interfaces" '^veth-here ↓ [0-9.]+ MB/s'
    endOrvelle
    endProcess "$senderPid"
}

start_x_server 1280x800 && start_window_manager || exit 1
startAccessibilityBus
mkdir -p "$XDG_CONFIG_HOME/orvelle"
printf '%s\n' '[General]' showDisk=true updateInterval=1 >"$XDG_CONFIG_HOME/orvelle/orvelle.conf"
startOrvelle
testBusyProcess
testWriting
endOrvelle
testTraffic
((failures == 0)) || cat "$workDirectory/orvelle.log"
stopAccessibilityBus
echo "$failures failures in $SECONDS seconds"
((failures == 0))
