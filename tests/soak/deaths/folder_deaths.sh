# The folder of the settings. Sourced by death.sh.
# shellcheck disable=SC2154,SC2034 # the files that death.sh sources share their variables

folder=$XDG_CONFIG_HOME/orvelle

# Starts the program as an ordinary user, because every folder is open to root.
startWithFolder() {
    startX11 || return
    writeCarefulSettings
    local asUser=()
    if [[ $(id -u) == 0 ]]; then
        asUser=(setpriv --reuid=65534 --regid=65534 --clear-groups)
        "${asUser[@]}" true 2>/dev/null || { echo "SKIPPED: there is no ordinary user"; exit "$skipped"; }
        chown -R 65534:65534 "$workDirectory"
    fi
    runProgram "${asUser[@]}"
}

death_settingsFolderRemoved() {
    startWithFolder || return
    strike rm -r "$folder"
    expectGoingOn
    endProgram
    [[ ! -e $settingsFile ]] || fail "the program does not bring the settings back"
}

death_settingsFolderRenamed() {
    startWithFolder || return
    strike mv "$folder" "$folder.away"
    expectGoingOn
    endProgram
    checkedSettings=$folder.away/orvelle.conf
}

death_settingsFolderForbidden() {
    startWithFolder || return
    strike chmod 0 "$folder"
    expectGoingOn
    chmod 700 "$folder"
    checkedSettings=$settingsFile
    endProgram
}

death_settingsFolderIsAFile() {
    startWithFolder || return
    mv "$folder" "$folder.away"
    strike touch "$folder"
    expectGoingOn
    endProgram
    checkedSettings=$folder.away/orvelle.conf
}

# As when a disk is pulled out. In a mount namespace of its own, where a user is root.
death_settingsFolderUnmounted() {
    if [[ -z $isInNamespace ]]; then
        unshare -Urm true 2>/dev/null || { echo "SKIPPED: no file systems can be mounted"; exit "$skipped"; }
        isInNamespace=yes exec unshare -Urm "$here/death.sh" "$bin" "$death" "$moment" "$isRandom"
    fi
    startX11 || return
    mkdir -p "$folder"
    mount -t tmpfs none "$folder" || { echo "SKIPPED: no file systems can be mounted"; exit "$skipped"; }
    runProgram || return
    strike umount --lazy "$folder"
    expectGoingOn
    endProgram
}
