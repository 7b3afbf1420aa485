# The files of the program, which an upgrade replaces while it runs. Sourced by death.sh.
# shellcheck disable=SC2154,SC2034 # the files that death.sh sources share their variables

# installProgram: gives the program a copy of its files that can be replaced. Sets orvelle and libraries.
installProgram() {
    local built
    built=$(readelf -d "$bin/orvelle" | sed -n 's/.*R.*PATH.*\[\([^]:]*\).*/\1/p')
    tree=$workDirectory/tree
    libraries=$tree/${built#"$(dirname "$bin")/"}
    mkdir -p "$tree/bin" "$libraries"
    cp "$bin/orvelle" "$tree/bin/"
    cp "$built"/liborvelle*.so "$libraries/"
    orvelle=$tree/bin/orvelle
    export LD_LIBRARY_PATH=$libraries # before the place where they were built
    startX11
}

# replaceFiles FILE...: as dpkg does, with something that no program can load.
replaceFiles() {
    local file
    for file in "$@"; do
        echo "of another version" >"$file.dpkg-new"
        chmod --reference="$file" "$file.dpkg-new"
        mv "$file.dpkg-new" "$file"
    done
}

# expectWindowsOpen: all kinds of windows, also where none has been open before. The program cannot be started for that,
# so the mouse asks.
expectWindowsOpen() {
    local panels
    panels=$(grep -c 'panel was painted' "$log")
    xdotool key Escape mousemove $((1280 - 8 - 30)) 11 click 1
    hasOpenedAPanel() { (($(grep -c 'panel was painted' "$log") > panels)); }
    waitUntil "a click opens a panel" hasOpenedAPanel || cat "$log"
    xdotool mousemove $((1280 - 8 - 30)) 11 click 3
    waitUntil "the menu opens" isShown 'Orvelle menu'
    xdotool key ctrl+comma
    waitUntil "the settings open" isShown 'Orvelle Settings' || cat "$log"
}

# upgrade COMMAND...
upgrade() {
    installProgram || return
    runProgram || return
    checkedSettings=$settingsFile
    strike "$@"
    sleep 0.5
    if [[ $moment == start ]] && programIsGone; then
        expectEnding 127 # the system found only a part of its libraries
        return
    fi
    expectGoingOn
    [[ $moment == start ]] || expectWindowsOpen
    endProgram
}

death_windowModuleReplaced() { upgrade replaceModule; }
replaceModule() { replaceFiles "$libraries/liborvelle_views.so"; }

death_windowModuleRemoved() { upgrade removeModule; }
removeModule() { rm "$libraries/liborvelle_views.so"; }

death_everyFileReplaced() { upgrade replaceEverything; }
replaceEverything() { replaceFiles "$orvelle" "$libraries"/*.so; }

death_everyFileRemoved() { upgrade removeEverything; }
removeEverything() { rm -r "$tree"; }

# The module of another build that an upgrade has brought before the program found it: the same, with another identity.
death_windowModuleOfAnotherBuild() {
    installProgram || return
    local place
    place=$(readelf -SW "$libraries/liborvelle_views.so" |
        sed -n 's/.*\.note\.gnu\.build-id *NOTE *[0-9a-f]* \([0-9a-f]*\) .*/\1/p')
    printf 'another identity....' |
        dd of="$libraries/liborvelle_views.so" bs=1 seek=$((16#$place + 16)) conv=notrunc status=none
    moment=bar
    runProgram || return
    strike xdotool mousemove $((1280 - 8 - 30)) 11 click 1
    waitUntil "the program says that its windows are of another version" \
        grep -q "liborvelle_views.so is of another version; start Orvelle again" "$log"
    expectGoingOn
    endProgram
}
