# Starts the program, lets something die, and checks what the program makes of it. Sourced by death.sh, which sets `bin`
# and `moment`. `outcome` collects what death.sh prints.
# shellcheck disable=SC2154,SC2034 # the files that death.sh sources share their variables

orvelle=$bin/orvelle
settingsFile=$XDG_CONFIG_HOME/orvelle/orvelle.conf
export QT_LOGGING_RULES="orvelle.start.debug=true;orvelle.sample.debug=true;orvelle.open.debug=true"
orvelleOptions=()
log=$workDirectory/orvelle.log
outcome=""

microseconds() { echo "${EPOCHREALTIME/[.,]/}"; }

# Settings as a careful user leaves them. What the program does not know must stay.
writeCarefulSettings() {
    mkdir -p "${settingsFile%/*}"
    printf '%s\n' '# my settings' '[General]' showCPU=true showMemory=true showNetwork=true showBattery=true \
        showDisk=true updateInterval=3 '# the end' keyOfALaterVersion=kept >"$settingsFile"
}

# expectWholeSettings FILE
expectWholeSettings() {
    local line
    for line in '# my settings' '[General]' 'updateInterval=3' '# the end' 'keyOfALaterVersion=kept'; do
        grep -qxF -- "$line" "$1" || { fail "the settings keep \"$line\""; cat "$1"; return; }
    done
    [[ $(grep -c '^show[A-Z][A-Za-z]*=\(true\|false\)$' "$1") -ge 5 ]] || fail "the settings keep the items"
}

# runProgram [COMMAND...]: starts the program and lets it come to the moment: start, bar, panel or settings.
runProgram() {
    [[ -s $settingsFile ]] || writeCarefulSettings
    launch "$log" "$@" "$orvelle" "${orvelleOptions[@]}"
    if [[ $moment == start ]]; then
        sleep "$(randomSeconds 0.4)"
        return
    fi
    waitUntil "the program samples" grep -qs "cycle 1" "$log" || { cat "$log"; return 1; }
    waitUntil "its items are shown" grep -q "first bar painted" "$log" || { cat "$log"; return 1; }
    openWindow "$moment"
    [[ -z $isRandom ]] || sleep "$(randomSeconds 1)"
}

randomSeconds() { awk -v most="$1" -v random="$RANDOM" 'BEGIN {printf "%.3f", most * random / 32768}'; }

# openWindow panel|settings|bar: the bar is open already.
openWindow() {
    case $1 in
        panel)
            startAgain "$orvelle" "${orvelleOptions[@]}" --open cpu 2>/dev/null
            waitUntil "a panel opens" grep -q 'panel was painted' "$log" || cat "$log" ;;
        settings)
            startAgain "$orvelle" "${orvelleOptions[@]}" --settings 2>/dev/null
            waitUntil "the settings open" grep -q 'settings window was painted' "$log" || cat "$log" ;;
    esac
}

# strike COMMAND...: lets something die.
strike() {
    struckAt=$(microseconds)
    cyclesBefore=$(cycles)
    "$@"
}

cycles() { sed -n 's/.*cycle //p' "$log" | tail -1; }
hasSampledSince() { [[ $(cycles) -gt ${1:-0} ]]; }

# Milliseconds of processor time that the program has used so far.
processorTime() { awk -v ticks="$(getconf CLK_TCK)" '{print int(($14 + $15) * 1000 / ticks)}' "/proc/$orvellePid/stat"; }

# The program starts no other programs, so there are no zombies of its own either.
childProcesses() { cat /proc/[0-9]*/stat 2>/dev/null | sed 's/.*) //' | awk -v parent="$orvellePid" '$2 == parent'; }

# expectGoingOn [WORDS...]: the program neither ends nor works more than a little in the two seconds that follow, and
# samples again. Each of WORDS stands among its messages.
expectGoingOn() {
    local before used
    sleep 0.3 # reacting may cost something
    before=$(processorTime 2>/dev/null)
    sleep 2
    if programIsGone; then
        wait "$orvellePid"
        fail "it goes on, but has ended with status $?"
        cat "$log"
        return
    fi
    used=$(($(processorTime) - before))
    ((used <= idleLimit)) || { fail "it rests, but uses $used ms of processor time in 2 s"; cat "$log"; }
    waitUntil "it samples again" hasSampledSince "$cyclesBefore" || cat "$log"
    expectEqual "it has no children" "" "$(childProcesses)"
    expectMessages "$@"
    outcome="goes on||$used"
}
# A sample of the build with sanitizers is many times as expensive.
idleLimit=600

# expectMessages WORDS...
expectMessages() {
    local word
    for word in "$@"; do
        grep -q -- "$word" "$log" || { fail "its messages contain \"$word\""; cat "$log"; }
    done
    expectEqual "the sanitizers find nothing" "" "$(grep -E 'Sanitizer|runtime error' "$log")"
}

# awaitEnding: sets took, the milliseconds since the death, and status.
awaitEnding() {
    until programIsGone || (($(microseconds) - struckAt > patienceSeconds * 1000000)); do sleep 0.005; done
    took=$((($(microseconds) - struckAt) / 1000))
    programIsGone || { fail "it ends"; return 1; }
    wait "$orvellePid"
    status=$?
}

# expectEnding STATUS...: the program ends by itself with one of these, and says why.
expectEnding() {
    local took status
    awaitEnding || return
    [[ " $* " == *" $status "* ]] || { fail "it ends with status $*, not $status"; cat "$log"; }
    [[ -n $(messages) ]] || fail "it says why it ends"
    expectMessages
    outcome="ends|$took|"
}
messages() { grep -vE '^orvelle\.(start|sample|open): ' "$log"; }

# endProgram: as at a logout; it has to be in order.
endProgram() {
    local status
    kill -TERM "$orvellePid" 2>/dev/null
    waitUntil "it can be ended" programIsGone
    wait "$orvellePid"
    status=$?
    ((status == 0)) || { fail "it ends with status 0, not $status"; cat "$log"; }
}
