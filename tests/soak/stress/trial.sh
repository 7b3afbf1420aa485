# Runs the real program under stress and prints a row of what it needed meanwhile. Sourced.
# shellcheck disable=SC2154 # desktop.sh and modules.sh set the rest

log=$workDirectory/log

# tell WHAT RESULT [MEMORY CPU DESCRIPTORS MESSAGE]: prints a row of the table.
tell() { printf '| %s | %s | %s | %s | %s | %s |\n' "$1" "$2" "${3:-}" "${4:-}" "${5:-}" "${6:-}" >&3; }
notTried() { tell "$1" "not tried: $2"; }

sampleCount() { grep -c "^orvelle.sample: ${module_keys[0]}:" "$log"; }
hasSampled() { (($(sampleCount) >= $1)); }
residentKilobytes() { awk '$1 == "Rss:" {print $2}' "/proc/$orvellePid/smaps_rollup"; }
openDescriptors() { find "/proc/$orvellePid/fd" -mindepth 1 | wc -l; }
# Processor time of all threads since their start.
processorNanoseconds() { cat "/proc/$orvellePid"/task/*/schedstat | awk '{sum += $1} END {printf "%.0f", sum}'; }
# What the program said on its own account.
complaints() { grep -v -e '^orvelle\.' -e 'setNetWmStateOnUnmappedWindow' "$log"; }

clickItem() { xdotool mousemove "$((1280 - module_middles[$1]))" 11 click 1; }
panelIsShown() { isShown "Orvelle ${module_titles[0]}"; }
panelIsHidden() { ! panelIsShown; }

# expectPanel: a click opens the first panel, and another closes it.
expectPanel() {
    clickItem 0
    waitUntil "$what: a click opens a panel" panelIsShown || return
    clickItem 0
    waitUntil "$what: and another closes it" panelIsHidden
}

# start WHAT [COMMAND...]: starts the program through COMMAND, and waits until its bar is there and was sampled twice.
start() {
    what=$1
    failuresBefore=$failures
    shift
    echo "== $what"
    launch "$log" env QT_LOGGING_RULES="orvelle.sample.debug=true" "$@" "$orvelle"
    waitUntil "$what: the bar appears" isShown Orvelle
    waitUntil "$what: it is sampled" hasSampled 2
}

# goOn SAMPLES: as many samples are made, of which the processor time is measured.
goOn() {
    local before samples
    before=$(processorNanoseconds) samples=$(sampleCount)
    waitUntil "$what: samples go on" hasSampled $((samples + $1))
    samplesMeasured=$(($(sampleCount) - samples))
    perSample=$(awk -v spent="$(($(processorNanoseconds) - before))" -v samples="$samplesMeasured" \
        'BEGIN {printf "%.2f ms", spent / 1e6 / (samples ? samples : 1)}')
}

# finish: ends the program and prints its row.
finish() {
    local memory descriptors message result=passed
    memory=$(residentKilobytes) descriptors=$(openDescriptors)
    isShown Orvelle || fail "$what: the bar is still there"
    kill -TERM "$orvellePid"
    kill -CONT "$orvellePid" 2>/dev/null
    expectEnd "$what: SIGTERM ends the program" 0
    ((failures == failuresBefore)) || result=BROKEN
    message=$(complaints | head -1 | tr '|' '/' | cut -c1-90)
    ((failures == failuresBefore)) || complaints | tail -20
    tell "$what" "$result" "$memory kB" "$perSample" "$descriptors" "${message:-none}"
}

# during CROWD COUNT COMMAND...: runs the command while the crowd is there. Status 77 if there is no room for it.
during() {
    local crowdPid status
    rm -f "$workDirectory/crowd"
    "$bin/orvelle-soak-crowd" "$1" "$2" >"$workDirectory/crowd" &
    crowdPid=$!
    ownedPids+=("$crowdPid")
    shift 2
    crowdIsReadyOrGone() { [[ -s $workDirectory/crowd ]] || ! kill -0 "$crowdPid" 2>/dev/null; }
    waitUntil "the crowd gathers" crowdIsReadyOrGone
    if [[ ! -s $workDirectory/crowd ]]; then
        wait "$crowdPid"
        return 77
    fi
    "$@"
    status=$?
    kill "$crowdPid"
    wait "$crowdPid"
    return "$status"
}
