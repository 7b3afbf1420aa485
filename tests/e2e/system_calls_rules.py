"""Proves that system_calls.py finds calls that are not allowed, and no others."""
import unittest

from system_calls import Call, Desktop, calls_of, desktop_of, fault_of, faults_in

ENVIRONMENT = {"XDG_CONFIG_HOME": "/home/u/.config", "XDG_STATE_HOME": "/home/u/.state", "XDG_RUNTIME_DIR": "/run/u",
               "DISPLAY": ":5", "WAYLAND_DISPLAY": "wayland-1", "DBUS_SESSION_BUS_ADDRESS": "unix:path=/run/u/bus"}
START = '7 execve("/usr/bin/orvelle", ["orvelle"], 0x7ffc /* 47 vars */) = 0\n'
END = "7 +++ exited with 0 +++\n"

ALLOWED = [
    'openat(AT_FDCWD</>, "/proc/stat", O_RDONLY|O_CLOEXEC) = 3',
    'openat(AT_FDCWD</>, "/dev/null", O_RDWR) = 3',
    'openat(AT_FDCWD</home/u/.config/orvelle>, "orvelle.conf.lock", O_RDWR|O_CREAT, 0600) = 3',
    'openat(AT_FDCWD</>, "/home/u/.config/orvelle/.orvelle.conf.next", O_WRONLY|O_CREAT|O_EXCL, 0600) = 3',
    'rename("/home/u/.config/orvelle/.orvelle.conf.next", "/home/u/.config/orvelle/orvelle.conf") = 0',
    'openat(AT_FDCWD</>, "/home/u/.config/autostart", O_RDWR|O_CLOEXEC|O_TMPFILE, 0600) = 9',
    'linkat(AT_FDCWD</>, "/proc/self/fd/9", AT_FDCWD</>, "/home/u/.config/autostart/orvelle.desktop", 0x400) = 0',
    'unlink("/home/u/.config/autostart/orvelle.desktop") = 0',
    'mkdir("/home/u/.state/orvelle", 0700) = 0',
    'mknodat(AT_FDCWD</>, "/run/u/orvelle-wayland-1", S_IFIFO|0600) = 0',
    'socket(AF_UNIX, SOCK_STREAM|SOCK_CLOEXEC, 0) = 3',
    'socket(AF_NETLINK, SOCK_RAW|SOCK_CLOEXEC, NETLINK_ROUTE) = 3',
    'bind(9<socket:[1]>, {sa_family=AF_NETLINK, nl_pid=0, nl_groups=00000000}, 12) = 0',
    'connect(3<socket:[1]>, {sa_family=AF_UNIX, sun_path=@"/tmp/.X11-unix/X5"}, 20) = 0',
    'connect(3<socket:[1]>, {sa_family=AF_UNIX, sun_path="/run/u/wayland-1"}, 20) = 0',
    'connect(3<socket:[1]>, {sa_family=AF_UNIX, sun_path="/run/u/bus"}, 20) = 0',
    'clone3({flags=CLONE_VM|CLONE_THREAD|CLONE_SETTLS, exit_signal=0}, 88) = 8',
    'tgkill(7, 9, SIGABRT) = 0',
    'kill(99, 0) = 0',
    'prctl(PR_SET_NAME, "QXcbEventQueue") = 0',
]
FORBIDDEN = [
    'execve("/bin/sh", ["sh"], 0x1 /* 2 vars */) = 0',
    'execveat(5</bin/sh>, "", ["sh"], 0x1, AT_EMPTY_PATH) = 0',
    'vfork() = 9',
    'fork() = 9',
    'clone(child_stack=NULL, flags=CLONE_CHILD_SETTID|SIGCHLD) = 9',
    'clone3({flags=CLONE_VM|CLONE_VFORK, exit_signal=SIGCHLD}, 88) = 9',
    'wait4(-1, NULL, 0, NULL) = 9',
    'socket(AF_INET, SOCK_STREAM, IPPROTO_TCP) = 3',
    'socket(AF_INET6, SOCK_DGRAM, IPPROTO_UDP) = 3',
    'socket(AF_PACKET, SOCK_RAW, 768) = 3',
    'socket(AF_NETLINK, SOCK_RAW, NETLINK_AUDIT) = 3',
    'connect(3, {sa_family=AF_INET, sin_port=htons(53), sin_addr=inet_addr("9.9.9.9")}, 16) = 0',
    'connect(3, {sa_family=AF_UNIX, sun_path="/run/docker.sock"}, 20) = 0',
    'connect(3, {sa_family=AF_UNIX, sun_path=@"/tmp/.X11-unix/X51"}, 20) = 0',
    'bind(3, {sa_family=AF_UNIX, sun_path="/run/u/orvelle"}, 20) = 0',
    'listen(3, 5) = 0',
    'accept4(3, NULL, NULL, 0) = 4',
    'openat(AT_FDCWD</>, "/home/u/.cache/any", O_WRONLY|O_CREAT, 0600) = 3',
    'openat(AT_FDCWD</home/u>, ".bashrc", O_WRONLY|O_APPEND) = 3',
    'openat(AT_FDCWD</>, "/home/u/.config/orvelle/../.bashrc", O_RDWR) = 3',
    'openat(AT_FDCWD</>, "/home/u/.config/orvelle/other", O_RDWR|O_CREAT, 0600) = 3',
    'openat(AT_FDCWD</>, "/dev/dri/renderD128", O_RDWR) = 3',
    'creat("/tmp/any", 0600) = 3',
    'rename("/home/u/.config/orvelle/orvelle.conf", "/home/u/elsewhere") = 0',
    'unlinkat(3</home/u>, "letter", 0) = 0',
    'symlink("/home/u/a", "/home/u/b") = 0',
    'chmod("/home/u", 0777) = 0',
    'setuid(0) = 0',
    'setgroups(0, []) = 0',
    'capset({version=0, pid=0}, {effective=0}) = 0',
    'prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_RAISE, CAP_KILL) = 0',
    'ptrace(PTRACE_ATTACH, 9) = 0',
    'process_vm_readv(9, [], 1, [], 1, 0) = 0',
    'kill(9, SIGTERM) = 0',
    'kill(-1, SIGTERM) = 0',
    'tgkill(9, 9, SIGKILL) = 0',
    'mount("none", "/mnt", "tmpfs", 0, NULL) = 0',
    'unshare(CLONE_NEWUSER) = 0',
    'bpf(BPF_PROG_LOAD, {}, 120) = 3',
    'perf_event_open({type=0}, -1, 0, -1, 0) = 3',
    'chroot("/mnt") = 0',
    'an_unknown_call(1) = 0',
]


def faults_of(*lines):
    """The faults of a program that does this between its start and its end."""
    return faults_in([START, *(f"7 {line}\n" for line in lines), END], desktop_of(ENVIRONMENT))


class SystemCallRules(unittest.TestCase):
    """Each test's name is a sentence about the rules."""

    def test_they_let_a_monitor_work(self):
        """The calls of a tour are allowed."""
        for line in ALLOWED:
            self.assertEqual(faults_of(line), [], line)
            call = line.rpartition(")")[0]
            name = call.partition("(")[0]
            self.assertEqual(faults_of(f"{call} <unfinished ...>", f"<... {name} resumed> ) = 0"), [], line)

    def test_they_notice_everything_else(self):
        """Each planted call is found, also when it fails or another thread interrupts it."""
        for line in FORBIDDEN:
            self.assertEqual(len(faults_of(line)), 1, line)
            call, _, _ = line.rpartition(" = ")
            self.assertEqual(len(faults_of(call + " = -1 EPERM (Operation not permitted)")), 1, line)
            name, _, rest = call.partition("(")
            interrupted = faults_of(f"{name}( <unfinished ...>", f"<... {name} resumed>{rest} = 0")
            self.assertEqual(len(interrupted), 1, line)

    def test_they_do_not_take_a_trace_of_nothing_for_a_good_one(self):
        """A trace is whole."""
        desktop = Desktop()
        for lines in [], [END], ["7 getuid() = 0\n", END], [START]:
            self.assertEqual(len(faults_in(lines, desktop)), 1, lines)
        self.assertEqual(faults_in([START, END], desktop), [])

    def test_a_call_in_which_the_process_ends_counts(self):
        """Its second line is missing."""
        self.assertEqual(len(faults_of("unlink(\"/home/u/letter\" <unfinished ...>")), 1)
        self.assertEqual([call.name for call in calls_of(["7 exit_group(0 <unfinished ...>\n"])], ["exit_group"])

    def test_nothing_belongs_to_a_desktop_that_is_not_there(self):
        """Without variables there are no folders and no sockets."""
        connect = Call("7", "connect", '3, {sa_family=AF_UNIX, sun_path="/tmp/.X11-unix/X0"}, 20)')
        self.assertNotEqual(fault_of(connect, desktop_of({}), "7"), "")
        folder = Call("7", "mkdir", '"/tmp/runtime-u", 0700)')
        self.assertEqual(fault_of(folder, desktop_of({}), "7"), "", "which Qt makes instead")
        self.assertNotEqual(fault_of(folder, desktop_of(ENVIRONMENT), "7"), "")
        create = Call("7", "openat", 'AT_FDCWD</>, "/orvelle/orvelle.conf", O_RDWR|O_CREAT, 0600)')
        self.assertNotEqual(fault_of(create, desktop_of({}), "7"), "")


if __name__ == "__main__":
    unittest.main()
