#!/bin/bash
# Lets everything die on which the running program depends, and prints a row of a table for each death.
#
#   soak.sh BIN SECONDS
#
# BIN is the folder of the built programs. Each death happens once. With a minute or more, deaths then happen at random
# moments until the time is over: while the program starts, while a panel or the settings are open, and while nothing is.
# The status is 1 if the program does not do what it should, and 77 if the tools are missing.

bin=$1
deadline=$((SECONDS + $2))
here=$(dirname "$(readlink -f "$0")")
atOnce=6 # they mostly wait

# DEATH|MOMENT OF THE FIRST TIME|WHAT DIES
deaths=(
    "xServerKilled|settings|X server, killed"
    "xServerEnds|panel|X server, ended"
    "xServerFreezes|panel|X server, stopped for 3 s"
    "windowManagerKilled|panel|window manager, killed"
    "windowManagerReplaced|panel|window manager, replaced by another"
    "settingsManagerKilled|bar|X settings manager, killed"
    "sessionManagerKilled|panel|session manager, killed"
    "readerOfMessagesKilled|panel|reader of the messages (standard error), killed"
    "compositorKilled|settings|Wayland compositor, killed"
    "compositorEnds|panel|Wayland compositor, ended"
    "compositorFreezes|panel|Wayland compositor, stopped for 3 s"
    "sessionBusKilled|panel|session bus, killed"
    "sessionBusKilledWhileRead|panel|session bus while a screen reader reads"
    "sessionBusKilledWithPortal|bar|session bus while the settings portal is followed"
    "sessionBusKilledInTray|panel|session bus while the items are in a tray"
    "portalKilled|panel|settings portal, killed"
    "trayKilled|bar|tray, killed and started again"
    "accessibilityBusKilled|panel|bus of assistive programs while a screen reader reads"
    "accessibilityRegistryKilled|panel|registry of assistive programs while a screen reader reads"
    "systemBusKilled|bar|system bus, killed"
    "settingsFolderRemoved|settings|settings folder, removed"
    "settingsFolderRenamed|bar|settings folder, renamed"
    "settingsFolderForbidden|bar|settings folder, made unreadable"
    "settingsFolderIsAFile|bar|settings folder, a file in its place"
    "settingsFolderUnmounted|bar|settings folder, unmounted"
    "windowModuleReplaced|bar|module of the windows, replaced before the first panel"
    "windowModuleRemoved|bar|module of the windows, removed before the first panel"
    "everyFileReplaced|panel|program and libraries, replaced with a panel open"
    "everyFileRemoved|bar|program and libraries, removed"
    "windowModuleOfAnotherBuild|bar|module of the windows of another build"
)
moments=(start bar panel settings)

results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT

# try NUMBER MOMENT [random]: lets one thing die, and keeps the result.
try() {
    local death=${deaths[$1]%%|*} output status
    output=$(timeout 250 "$here/death.sh" "$bin" "$death" "$2" "${@:3}" 2>&1)
    status=$?
    echo "$status|$(tail -1 <<<"$output")" >>"$results/$1"
    ((status == 0 || status == 77)) ||
        printf '%s\n' "--- $death at the moment \"$2\" ended with status $status:" "$output" >&2
}

# tryInBackground NUMBER MOMENT [random]: waits while as many as may are running.
tryInBackground() {
    while (($(jobs -rp | wc -l) >= atOnce)); do wait -n; done
    try "$@" &
}

# row NUMBER: prints what was seen of a death.
row() {
    awk -F '|' -v name="${deaths[$1]##*|}" '
        $1 == 77 {skipped++; next}
        $1 != 0 {failed++}
        {times++; outcomes[$2]; if ($3 != "") longest = $3 > longest + 0 ? $3 : longest + 0; if ($4 != "") most = $4 > most + 0 ? $4 : most + 0}
        END {
            for (outcome in outcomes) result = result (result == "" ? "" : " or ") outcome
            if (failed) result = "NOT AS IT SHOULD, " failed " times"
            else if (!times) result = "not tried: a tool is missing"
            printf "| %s | %s | %d | %s | %s |\n", name, result, times, longest == "" ? "" : longest " ms",
                most == "" ? "" : most " ms"
        }' "$results/$1"
}

for number in "${!deaths[@]}"; do
    IFS='|' read -r _ moment _ <<<"${deaths[number]}"
    tryInBackground "$number" "$moment"
done
while (($2 >= 60 && SECONDS < deadline - 10)); do
    tryInBackground $((RANDOM % ${#deaths[@]})) "${moments[RANDOM % ${#moments[@]}]}" random
done
wait

echo "| What dies | Orvelle | Times | Longest until the end | Most processor time in 2 s |"
echo "| --- | --- | --- | --- | --- |"
for number in "${!deaths[@]}"; do row "$number"; done
if ! grep -qv '^77|' "$results"/*; then
    echo "SKIPPED: the tools are missing" >&2
    exit 77
fi
! grep -qvE '^(0|77)\|' "$results"/*
