# Trials of the program among many processes. Sourced.
# shellcheck disable=SC2154 # soak.sh sets seconds

tryCrowd() {
    local what=$1 crowd=$2 count=$3
    start "$what"
    goOnInCrowd() { goOn 3 && expectPanel; } # every third sample includes the processes
    during "$crowd" "$count" goOnInCrowd
    if (($? == 77)); then
        kill "$orvellePid"
        wait "$orvellePid"
        notTried "$what" "no room for so many processes"
        return
    fi
    finish
}

tryLoad() { tryCrowd "a load of 200" busy 200; }
tryShortLived() { tryCrowd "1000 processes a second come and go" short-lived 1000; }
tryManyProcesses() { tryCrowd "20 000 processes" sleepers 20000; }

# The program is stopped while samples are due, and must not make up for them.
tryStop() {
    local what="stopped and continued" pause=5 before
    ((seconds < 200)) || pause=60
    what="stopped for $pause s and continued"
    start "$what"
    before=$(sampleCount)
    kill -STOP "$orvellePid"
    sleep "$pause"
    kill -CONT "$orvellePid"
    waitUntil "$what: samples go on" hasSampled $((before + 2))
    (($(sampleCount) <= before + 3)) || fail "$what: missed samples are not made up for"
    goOn 1
    expectPanel
    finish
}
