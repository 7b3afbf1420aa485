# Trials of the program on a machine that has more of something than others. Sourced.
# shellcheck disable=SC2154,SC2016 # desktop.sh sets workDirectory; the program's shell expands the scripts

tryManyMounts() {
    tryMounts "500 mounts" 'mkdir "$workDirectory/mounts" && mount -t tmpfs none "$workDirectory/mounts" &&
        for number in {1..500}; do
            mkdir "$workDirectory/mounts/$number" &&
                mount --bind "$workDirectory/mounts" "$workDirectory/mounts/$number" || exit 3
        done'
}

tryManyInterfaces() {
    local what="300 interfaces"
    if ! command -v ip >/dev/null || ! "${ownMounts[@]}" unshare -n ip link add soak1 type veth peer name end1 2>/dev/null; then
        notTried "$what" "no interfaces can be made here"
        return
    fi
    local ownMounts=("${ownMounts[@]}" unshare -n)
    tryMounts "$what" 'mount -t sysfs none /sys &&
        for number in {1..150}; do
            echo "link add soak$number type veth peer name end$number"
            echo "address add 10.0.0.$number/32 dev soak$number"
            echo "link set soak$number up"
            echo "link set end$number up"
        done | ip -batch -'
}

# processorTimes PROCESSORS SECONDS: a text like /proc/stat in which each processor works half of the time.
processorTimes() {
    awk -v processors="$1" -v seconds="$2" 'BEGIN {
        line = " %010d 0 %010d %010d 0 0 0 0 0 0\n"
        printf "cpu " line, 30 * seconds * processors, 20 * seconds * processors, 50 * seconds * processors
        for (number = 0; number < processors; ++number)
            printf "cpu%d" line, number, 30 * seconds, 20 * seconds, 50 * seconds
        print "btime 1700000000"
    }'
}
tryManyProcessors() {
    local what="256 processors" clock=100
    processorTimes 256 $clock >"$workDirectory/stat"
    # Always as long, and written in its place, for the program keeps the file open.
    while sleep 1; do
        clock=$((clock + 1))
        processorTimes 256 $clock | dd of="$workDirectory/stat" conv=notrunc status=none
    done &
    local writerPid=$!
    tryMounts "$what" 'mount --bind "$workDirectory/stat" /proc/stat'
    kill "$writerPid"
    wait "$writerPid" 2>/dev/null
}
