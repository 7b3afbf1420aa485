# Trials of the program without something that it needs. Sourced.
# shellcheck disable=SC2154,SC2016 # soak.sh sets the rest; the shell of the program expands the scripts

# The command that gives a program mounts of its own; empty if nobody may have them.
ownMounts=()
for candidate in "unshare -m" "unshare -r -m"; do
    read -ra words <<<"$candidate"
    if ((${#ownMounts[@]} == 0)) && "${words[@]}" mount -t tmpfs none /mnt 2>/dev/null; then ownMounts=("${words[@]}"); fi
done

# tryPlain WHAT [COMMAND...]: runs the program through COMMAND.
tryPlain() {
    start "$@"
    goOn "$samples"
    expectPanel
    finish
}

tryNothing() { tryPlain "nothing is missing"; }

tryFewDescriptors() { tryPlain "24 descriptors" bash -c 'ulimit -n 24; exec "$@"' limited; }

# tryMounts WHAT SCRIPT: runs the program after the script in mounts of its own.
tryMounts() {
    if ((${#ownMounts[@]} == 0)); then
        notTried "$1" "nothing can be mounted here"
        return
    fi
    tryPlain "$1" "${ownMounts[@]}" bash -c "$2"' || exit 3; exec "$@"' mounted
}

# keepSettings MOUNT: a script that mounts on the settings folder, of which the settings stay.
keepSettings() {
    echo 'cp -r "$XDG_CONFIG_HOME/orvelle" "$workDirectory/kept" && mount -t tmpfs -o mode=700,'"$1"' none "$XDG_CONFIG_HOME" &&
        mv "$workDirectory/kept" "$XDG_CONFIG_HOME/orvelle"'
}
tryFullDisk() {
    tryMounts "a full disk" "$(keepSettings size=64k)"' &&
        for folder in "$XDG_CACHE_HOME" "$XDG_DATA_HOME" "$XDG_STATE_HOME" "$XDG_RUNTIME_DIR"; do
            mkdir -p "$folder" && mount --bind "$XDG_CONFIG_HOME" "$folder" || exit 3
        done
        { cat /dev/zero >"$XDG_CONFIG_HOME/filler" 2>/dev/null || true; }'
}
tryReadOnlyDisk() {
    tryMounts "a read-only disk" 'mount --bind "$workDirectory" "$workDirectory" &&
        mount -o remount,bind,ro "$workDirectory"'
}
tryEmptyProc() {
    if ((isSanitized)); then
        notTried "an empty /proc" "the sanitizers need it"
        return
    fi
    tryMounts "an empty /proc" 'mount -t tmpfs none /proc'
}

# tryLittleMemory: in a group of processes that may hold 40 MB, its share of shared files included.
tryLittleMemory() {
    local what="40 MB of memory" folder limit
    if ((isSanitized)); then
        notTried "$what" "the sanitizers need more"
        return
    fi
    for folder in /sys/fs/cgroup/memory /sys/fs/cgroup; do
        local memoryGroup=$folder/orvelle-soak-$$
        mkdir "$memoryGroup" 2>/dev/null || continue
        for limit in memory.limit_in_bytes memory.max; do
            if { echo $((40 * 1024 * 1024)) >"$memoryGroup/$limit"; } 2>/dev/null; then
                tryPlain "$what" bash -c 'echo $$ >"$0/cgroup.procs" && exec "$@"' "$memoryGroup"
                rmdir "$memoryGroup" 2>/dev/null || memoryGroups+=("$memoryGroup") # the kernel may empty it later
                return
            fi
        done
        rmdir "$memoryGroup"
    done
    notTried "$what" "no group of processes can be made here"
}

# tryHiddenProcesses: as a user to whom the kernel shows no process of another.
tryHiddenProcesses() {
    local what="processes of others are hidden" nobody=65534
    if ((EUID != 0 || ${#ownMounts[@]} != 2)); then
        notTried "$what" "only root can hide them"
        return
    fi
    if ! setpriv --reuid=$nobody --regid=$nobody --clear-groups test -x "$orvelle"; then
        notTried "$what" "another user may not run $orvelle"
        return
    fi
    chmod -R a+rwX "$workDirectory"
    chown $nobody "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
    tryMounts "$what" "mount -t proc -o hidepid=2 proc /proc &&
        exec setpriv --reuid=$nobody --regid=$nobody --clear-groups \"\$@\""
    chown "$EUID" "$XDG_RUNTIME_DIR"
}
