#!/bin/bash
# Tests that the real program continues, and tells the user, when it cannot save its settings.
#
#   settings_faults_test.sh ORVELLE

orvelle=$1
source "$(dirname "$0")/accessibility_bus.sh"
requireTools Xvfb openbox xprop

# prepare NAME: makes a separate place for settings.
prepare() {
    export XDG_CONFIG_HOME=$workDirectory/$1
    settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
    mkdir -p "$(dirname "$settingsFile")"
}
# expectNotice REASON
expectNotice() {
    launch "$workDirectory/log" "$orvelle"
    assist settings_faults.py "$1"
    kill -TERM "$orvellePid"
    wait "$orvellePid"
    expectEqual "the program ends with status" 0 $?
}

testFolder() {
    prepare folder
    mkdir "$settingsFile"
    expectNotice "is a folder"
    [[ -d $settingsFile ]] || fail "the folder is still there"
}
testBrokenLink() {
    prepare link
    ln -s "$workDirectory/nowhere/orvelle.conf" "$settingsFile"
    expectNotice "is a link that leads nowhere"
    [[ -L $settingsFile ]] || fail "the link is still there"
}
testHugeFile() {
    prepare huge
    head -c 100M /dev/zero >"$settingsFile"
    expectNotice "is too large for a settings file"
    expectEqual "the file is as it was" $((100 * 1024 * 1024)) "$(stat -c %s "$settingsFile")"
    rm "$settingsFile"
}
# withMount DESCRIPTION REASON OPTION...: mounts a separate file system on the settings folder.
withMount() {
    local description=$1 reason=$2 folder
    shift 2
    prepare mounted
    folder=$(dirname "$settingsFile")
    if ! mount -t tmpfs "$@" orvelle-test "$folder" 2>/dev/null; then
        echo "not tested: $description, because nothing can be mounted here"
        return
    fi
    trap 'umount "$folder"; cleanUp' EXIT
    [[ $description != *full* ]] || cat /dev/zero >"$folder/filler" 2>/dev/null
    expectNotice "$reason"
    umount "$folder"
    trap cleanUp EXIT
}

start_x_server 1280x800 && start_window_manager || exit 1
startAccessibilityBus
testFolder
testBrokenLink
testHugeFile
withMount "a file system that is read only" "cannot be written to" -o ro
withMount "a full disk" "the disk is full" -o size=64k
((failures == 0)) || cat "$workDirectory/log"
stopAccessibilityBus
echo "$failures failures in $SECONDS seconds"
((failures == 0))
