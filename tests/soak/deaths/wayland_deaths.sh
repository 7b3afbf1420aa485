# What the program depends on under Wayland. Sourced by death.sh.
# shellcheck disable=SC2154,SC2034 # the files that death.sh sources share their variables

startWayland() {
    source "$here/../../e2e/wayland/sway.sh"
    writeSettings desktop 'xwayland disable' 'output HEADLESS-1 mode 1280x800 position 0 0'
    runSway desktop headless
    # Qt keeps objects of its connection until the process ends.
    withoutLeakCheck
}

death_compositorKilled() {
    startWayland || return
    runProgram || return
    strike kill -KILL "${swayPids[0]}"
    expectEnding 1 255 # from 6.5 on Qt ends the process with 255 when it notices first
}

death_compositorEnds() {
    startWayland || return
    runProgram || return
    strike kill -TERM "${swayPids[0]}"
    expectEnding 1 255
}

death_compositorFreezes() {
    startWayland || return
    runProgram || return
    strike kill -STOP "${swayPids[0]}"
    sleep 3
    kill -CONT "${swayPids[0]}"
    expectGoingOn
    endProgram
}
