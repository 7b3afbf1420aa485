"""Judges what a program asked of the kernel, as strace has written it down.

system_calls.py TRACE: prints every call that is not allowed and ends with status 1 if there is one. TRACE is written by
`traced.sh`. The environment tells the folders and sockets that belong to the user's desktop. Whatever this file does
not allow is a fault: a call of a kind that it does not know, too.
"""
import os
import re
import sys
from dataclasses import dataclass, field

# They read, or change nothing but the process itself. Descriptors that they take were judged when they were opened.
HARMLESS = set("""
    access faccessat faccessat2 stat lstat fstat newfstatat fstatat64 statx statfs fstatfs readlink readlinkat getcwd
    getxattr lgetxattr listxattr inotify_add_watch name_to_handle_at
    getuid geteuid getgid getegid getresuid getresgid getgroups capget
    recvfrom recvmsg sendto sendmsg sendmmsg getsockname getpeername getsockopt setsockopt shutdown
    rt_sigaction rt_sigprocmask rt_sigreturn rt_sigtimedwait rt_sigsuspend sigaltstack pause
    signalfd signalfd4 restart_syscall
    memfd_create ftruncate fchmod exit exit_group seccomp
""".split())
# Options of prctl that name a thread or a piece of memory, ask a question, or give up a right.
HARMLESS_PROCESS_OPTIONS = {
    "PR_SET_NAME", "PR_GET_NAME", "PR_SET_VMA", "PR_CAPBSET_READ", "PR_GET_NO_NEW_PRIVS", "PR_SET_NO_NEW_PRIVS",
    "PR_GET_SECCOMP", "PR_SET_SECCOMP", "PR_GET_DUMPABLE", "PR_GET_THP_DISABLE"}
WRITING = re.compile(r"\bO_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)\b")
CHANGING = set("""
    rename renameat renameat2 unlink unlinkat mkdir mkdirat rmdir link linkat symlink symlinkat mknod mknodat truncate
    creat chmod fchmodat fchmodat2 utime utimes utimensat futimesat
""".split())
SENDING = {"kill": 1, "tkill": 1, "tgkill": 2, "rt_sigqueueinfo": 1, "rt_tgsigqueueinfo": 2}


@dataclass
class Call:
    """One call of a process, with its arguments as strace writes them."""
    process: str
    name: str
    arguments: str


@dataclass
class Desktop:
    """What a program may touch: regular expressions of whole paths, and the names of sockets."""
    files: list = field(default_factory=list)
    sockets: list = field(default_factory=list)

    def has_file(self, path):
        """Whether the program may create, change and remove the file or folder of this path."""
        return any(re.fullmatch(pattern, os.path.normpath(path)) for pattern in self.files)

    def has_socket(self, name):
        """Whether the program may connect to the socket of this name."""
        return any(re.fullmatch(pattern, name) for pattern in self.sockets)


def calls_of(lines):
    """Yields the calls in the lines of a trace. A call that another thread interrupted has two lines."""
    waiting = {}
    for line in lines:
        process, _, text = line.rstrip("\n").partition(" ")
        text = text.strip()
        resumed = re.match(r"<\.\.\. \w+ resumed>", text)
        if resumed:
            text = waiting.pop(process, "").rstrip() + re.sub(r"^ +", "", text[resumed.end():])
        elif text.endswith("<unfinished ...>"):
            waiting[process] = text[:-len("<unfinished ...>")]
            continue
        call = re.match(r"(\w+)\((.*)", text, re.DOTALL)
        if call:
            yield Call(process, call[1], call[2])
    for process, text in waiting.items():  # the process ended in it
        call = re.match(r"(\w+)\((.*)", text, re.DOTALL)
        if call:
            yield Call(process, call[1], call[2])


def paths_in(arguments):
    """The absolute paths that the arguments name, each relative one in the folder written before it."""
    paths = []
    folder = ""
    for words in re.finditer(r'(?:AT_FDCWD|\d+)<([^>]*)>|"((?:[^"\\]|\\.)*)"', arguments):
        if words[1] is not None:
            folder = words[1]
        else:
            paths.append(os.path.join(folder, words[2]))
    return paths


def fault_of_file(call, desktop):
    """Why a call that opens or changes files is not allowed; empty if it is."""
    if call.name in ("open", "openat", "openat2") and not WRITING.search(call.arguments):
        return ""
    paths = [path for path in paths_in(call.arguments) if not re.fullmatch(r"/proc/self/fd/\d+", path)]
    if not paths:
        return "changes a file without a name"
    strange = [path for path in paths if not desktop.has_file(path)]
    return f"changes {strange[0]}" if strange else ""


def fault_of_socket(call, desktop):
    """Why a call that makes or connects a socket is not allowed; empty if it is."""
    if call.name in ("socket", "socketpair"):
        is_local = call.arguments.startswith("AF_UNIX,")
        lists_interfaces = call.name == "socket" and re.match(r"AF_NETLINK, .*\bNETLINK_ROUTE\)", call.arguments)
        return "" if is_local or lists_interfaces else "makes a socket to elsewhere"
    if "sa_family=AF_NETLINK" in call.arguments:
        return ""
    name = re.search(r'sun_path=(@?"(?:[^"\\]|\\.)*")', call.arguments)
    if call.name == "connect" and name and desktop.has_socket(name[1].replace('"', "")):
        return ""
    return "connects to something else than the desktop"


def fault_of_signal(call, program):
    """Why sending a signal is not allowed; empty if it is. A signal 0 only asks whether the process lives."""
    words = [word.strip() for word in call.arguments.partition(")")[0].split(",")]
    signal = words[SENDING[call.name]] if len(words) > SENDING[call.name] else ""
    return "" if words[0] == program or signal == "0" else "sends a signal to another process"


def fault_of(call, desktop, program):
    """Why the program, a process id, must not make this call; empty if it may."""
    if call.name in HARMLESS:
        return ""
    if call.name in ("open", "openat", "openat2") or call.name in CHANGING:
        return fault_of_file(call, desktop)
    if call.name in ("socket", "socketpair", "connect", "bind"):
        return fault_of_socket(call, desktop)
    if call.name in ("clone", "clone3"):
        return "" if "CLONE_THREAD" in call.arguments else "makes a process"
    if call.name in SENDING:
        return fault_of_signal(call, program)
    if call.name == "prctl":
        option = re.match(r"\w+", call.arguments)
        return "" if option and option[0] in HARMLESS_PROCESS_OPTIONS else "changes what the process may do"
    return "is not allowed"


def faults_in(lines, desktop):
    """The faults of a whole trace, which begins with the start of the program and ends with its end."""
    lines = list(lines)
    calls = list(calls_of(lines))
    if not calls or calls[0].name != "execve":
        return ["the trace does not begin with the start of a program"]
    program = calls[0].process
    if not any(re.match(program + r" +\+\+\+ exited with", line) for line in lines):
        return ["the trace does not end with the end of the program"]
    faults = []
    for call in calls[1:]:
        fault = fault_of(call, desktop, program)
        if fault:
            faults.append(f"{fault}: {call.name}({call.arguments}")
    return faults


def desktop_of(environment):
    """What a program may touch under these variables."""
    config, state, runtime = (re.escape(environment.get(name) or "/missing") for name in (
        "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"))
    files = [
        "/dev/null",
        # The folders of the settings, of the windows' places, and of what starts at login.
        f"{config}(/orvelle|/autostart)?", f"{state}(/orvelle)?", runtime,
        # A file that is replaced as a whole, and its lock.
        rf"{config}/orvelle/(\.?orvelle\.conf(\.next|\.last|\.lock)?)",
        rf"{state}/orvelle/(\.?state\.conf(\.next|\.last|\.lock)?)",
        rf"{config}/autostart/orvelle\.desktop(\.\w+)?",
        # The pipe by which another start is heard.
        rf"{runtime}/orvelle-[^/]+",
        # Qt shares memory with a Wayland compositor by a file that has no name any more.
        rf"{runtime}/wayland-shm-\w+",
    ]
    if not environment.get("XDG_RUNTIME_DIR"):
        # Qt makes an empty folder for its user alone in its place, as soon as it starts.
        files.append(re.escape(environment.get("TMPDIR") or "/tmp") + r"/runtime-[^/]+")
    # The C library asks a service for the user's name, which that folder contains.
    sockets = ["(/var)?/run/(nscd/socket|systemd/userdb/[^/]+)"]
    display = re.match(r":(\d+)", environment.get("DISPLAY", ""))
    if display:
        sockets.append(f"@?/tmp/.X11-unix/X{display[1]}")
    if environment.get("WAYLAND_DISPLAY"):
        sockets.append(f"{runtime}/{re.escape(environment['WAYLAND_DISPLAY'])}")
    bus = re.match(r"unix:(path|abstract)=([^,;]*)", environment.get("DBUS_SESSION_BUS_ADDRESS", ""))
    if bus:
        sockets.append(("@" if bus[1] == "abstract" else "") + re.escape(bus[2]))
    # An address is looked for there without a variable.
    sockets.append(f"{runtime}/bus")
    # The bus of assistive programs, to which the session bus leads.
    sockets.append(rf"{runtime}/at-spi/bus\w*")
    return Desktop(files, sockets)


def main():
    """Judges one trace."""
    with open(sys.argv[1], encoding="utf-8", errors="replace") as trace:
        faults = faults_in(trace, desktop_of(os.environ))
    for fault in faults:
        print(fault[:500])
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
