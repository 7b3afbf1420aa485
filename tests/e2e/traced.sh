# Runs the real program under strace and judges what it asks of the kernel. Sourced by the end-to-end tests.

# Another sourced file may have prepared the folders.
declare -F waitUntil >/dev/null || source "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"
requireTools strace python3
if ! strace -o /dev/null true 2>/dev/null; then
    echo "SKIPPED: this machine does not let strace watch a program"
    exit "$skipped"
fi
# The leak checker watches the program in the same way, and only one can.
ASAN_OPTIONS+=:detect_leaks=0

readonly trace=${workDirectory:?}/trace
# What names files, processes, sockets, users and memory that other programs see. A kernel may not know the last ones.
watchedCalls=%file,%process,%network,%signal,%creds,%ipc,prctl,seccomp,ptrace,memfd_create,ftruncate,fchmod,fchown
watchedCalls+=,fsetxattr,unshare,setns,bpf,perf_event_open,process_vm_readv,process_vm_writev,init_module,finit_module
watchedCalls+=,reboot,sethostname,settimeofday,clock_settime,keyctl,add_key,request_key
for call in io_uring_setup userfaultfd pidfd_open pidfd_getfd pidfd_send_signal fsopen fsmount open_tree move_mount \
    open_by_handle_at openat2 mount_setattr kexec_load; do
    watchedCalls+=",?$call"
done

# launchTraced LOG COMMAND...: like `launch`. The program is the child of this shell, and strace another one's.
launchTraced() { launch "$1" strace -D -f -y -s 4096 -o "$trace" -e "trace=$watchedCalls" "${@:2}"; }

traceIsWhole() { tail -1 "$trace" | grep -q "^${orvellePid:?} *+++ exited"; }

# expectAllowedCalls DESCRIPTION: judges the program that has ended.
expectAllowedCalls() {
    waitUntil "the trace is complete" traceIsWhole || tail -3 "$trace"
    expectEqual "$1 asks for nothing that is not allowed" "" \
        "$(python3 -BSE "$(dirname "${BASH_SOURCE[0]}")/system_calls.py" "$trace" 2>&1)"
}
