#!/bin/bash
# soak.sh BIN SECONDS [TRIAL...]: runs the real program on a machine that lacks something or has too much of it, in a private X
# server. Without a TRIAL it runs all, or in less than a minute those that take
# a few seconds each. Prints a table.

bin=$1
seconds=$2
orvelle=$bin/orvelle
here=$(dirname "$(readlink -f "$0")")
exec 3>&1 >&2 # the table alone goes to the standard output
source "$here/../../e2e/desktop.sh"
requireTools Xvfb openbox xprop xdotool awk
read_modules "$orvelle" || exit 1
export workDirectory # for the trials' scripts
source "$here/trial.sh"
source "$here/lacks.sh"
source "$here/large_machines.sh"
source "$here/crowds.sh"
samples=1
((seconds < 200)) || samples=3 # every third sample includes the processes
memoryGroups=()
isSanitized=$(grep -c __asan_init "$orvelle")

tell "Stress" "Result" "Resident memory" "CPU time a sample" "Descriptors" "Message"
echo "| --- | --- | --- | --- | --- | --- |" >&3
storeVisibility true
start_x_server 1280x800 && start_window_manager || exit 1
trials=("${@:3}")
if ((${#trials[@]} == 0)); then
    trials=(Nothing FewDescriptors FullDisk EmptyProc Stop)
    ((seconds < 60)) || trials+=(ReadOnlyDisk LittleMemory HiddenProcesses ManyMounts ManyInterfaces ManyProcessors
        Load ShortLived ManyProcesses)
fi
for trial in "${trials[@]}"; do "try$trial"; done
((${#memoryGroups[@]} == 0)) || rmdir "${memoryGroups[@]}" 2>/dev/null
echo "$failures failures in $SECONDS seconds"
((failures == 0))
