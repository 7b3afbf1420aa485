# What the program depends on under X11. Sourced by death.sh.
# shellcheck disable=SC2154,SC2034 # the files that death.sh sources share their variables

startX11() {
    requireTools Xvfb openbox xprop xdotool
    start_x_server 1280x800 && start_window_manager
}

# Qt calls exit() when its connection breaks. Nothing is released then.
withoutLeakCheck() { export ASAN_OPTIONS+=:detect_leaks=0; }

# A switch changes while the settings are open.
changeASetting() {
    [[ $moment != settings ]] || xdotool key Tab space
}

# While Qt connects, it takes every answer of the server for granted, and crashes without one.
expectEndingWithX11() {
    if [[ $moment != start ]]; then
        expectEnding 1
        return
    fi
    local took status
    awaitEnding || return
    if ((status == 139)) || grep -q 'SUMMARY.*SEGV.*libQt6XcbQpa' "$log"; then
        outcome="crashes in Qt while it starts|$took|"
    else
        expectEnding 1
    fi
}

death_xServerKilled() {
    startX11 || return
    withoutLeakCheck
    runProgram || return
    changeASetting
    strike kill -KILL "$x_server_process"
    expectEndingWithX11
}

death_xServerEnds() {
    startX11 || return
    withoutLeakCheck
    runProgram || return
    changeASetting
    strike kill -TERM "$x_server_process"
    expectEndingWithX11
}

death_xServerFreezes() {
    startX11 || return
    runProgram || return
    local before used
    before=$(processorTime)
    strike kill -STOP "$x_server_process"
    sleep 3
    used=$(($(processorTime) - before))
    ((used <= idleLimit)) || fail "it waits for the server, but uses $used ms of processor time in 3 s"
    kill -CONT "$x_server_process"
    cyclesBefore=$(cycles)
    expectGoingOn
    openWindow panel
    endProgram
}

death_windowManagerKilled() {
    startX11 || return
    runProgram || return
    strike kill -KILL "$window_manager_process"
    wait "$window_manager_process" 2>/dev/null
    expectGoingOn
    start_window_manager
    reservesSpace() { [[ $(rootProperty _NET_WORKAREA) == "0, 22, 1280, 778, "* ]]; }
    waitUntil "the next window manager reserves the bar's space" reservesSpace
    endProgram
}

death_windowManagerReplaced() {
    startX11 || return
    requireTools xfwm4 dbus-daemon
    startSessionBus
    runProgram || return
    local previous=$window_manager_process
    strike startReplacement
    replacementRuns() { [[ $(windowManagerName) == *Xfwm4* ]]; }
    waitUntil "another window manager replaces the first one" replacementRuns
    wait "$previous" 2>/dev/null
    expectGoingOn
    openWindow panel
    endProgram
}
startReplacement() {
    "${xfwm4OnItsBus[@]}" --replace --compositor=off >/dev/null 2>&1 &
    window_manager_process=$!
}
windowManagerName() {
    xprop -id "$(rootProperty _NET_SUPPORTING_WM_CHECK)" _NET_WM_NAME 2>/dev/null
}

death_settingsManagerKilled() {
    startX11 || return
    mkfifo "$workDirectory/published"
    "$bin/settings_manager" <"$workDirectory/published" &
    local manager=$!
    ownedPids+=("$manager")
    exec 3>"$workDirectory/published"
    echo 0 "DejaVu Serif 10" >&3
    runProgram || return
    strike kill -KILL "$manager"
    expectGoingOn
    exec 3>&-
    endProgram
}

# startSessionManager: sets sessionManager, its process.
startSessionManager() {
    export ICEAUTHORITY=$workDirectory/authority
    mkfifo "$workDirectory/orders"
    "$bin/session_manager" <"$workDirectory/orders" >"$workDirectory/session" 2>&1 &
    sessionManager=$!
    ownedPids+=("$sessionManager")
    exec 7>"$workDirectory/orders"
    waitUntil "a session starts" test -s "$workDirectory/session"
    export SESSION_MANAGER
    SESSION_MANAGER=$(head -1 "$workDirectory/session")
}

death_sessionManagerKilled() {
    startX11 && startSessionManager || return
    runProgram || return
    strike kill -KILL "$sessionManager"
    expectGoingOn
    [[ $moment == start ]] || expectMessages "session manager"
    endProgram
}

# What reads the program's messages, such as a terminal or a journal. The program complains into a pipe then.
death_readerOfMessagesKilled() {
    startX11 && startSessionManager || return
    mkfifo "$workDirectory/pipe"
    cat "$workDirectory/pipe" >>"$log" &
    local reader=$!
    ownedPids+=("$reader")
    runProgram withMessagesInPipe || return
    strike kill -KILL "$reader"
    wait "$reader" 2>/dev/null
    kill -KILL "$sessionManager" # which the program says
    sleep 2
    ! programIsGone || fail "the program goes on"
    outcome="goes on||"
    kill -TERM "$orvellePid"
    waitUntil "it can be ended" programIsGone
    wait "$orvellePid"
    expectEqual "it ends with status" 0 $?
}
withMessagesInPipe() { exec "$@" 2>"$workDirectory/pipe"; }
