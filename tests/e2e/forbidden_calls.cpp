// A library that is loaded into the real program (LD_PRELOAD) and, at each SIGUSR2, asks the kernel for what
// the program gives up. It prints `NAME refused`, or `NAME allowed`, for each.

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <linux/sched.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

void print(const char* text) {
    static_cast<void>(!::write(STDERR_FILENO, text, std::strlen(text)));
}

void report(const char* name, bool isRefused) {
    print(name);
    print(isRefused ? " refused\n" : " allowed\n");
}

bool failsWith(int error, long result) {
    return result < 0 && errno == error;
}

/// A process that was made after all ends at once.
bool isForkRefused() {
    const long child = ::syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0);
    if (child == 0)
        ::_exit(0);
    return failsWith(EPERM, child);
}

/// Without a program of this name, a kernel that allows the call says so.
bool isExecRefused() {
    char name[] = "/no/such/program";
    char* arguments[]{name, nullptr};
    return failsWith(EPERM, ::syscall(SYS_execve, name, arguments, nullptr));
}

void ask(int /*signal*/) {
    report("execve", isExecRefused());
    report("clone", isForkRefused());
    report("internet", failsWith(EAFNOSUPPORT, ::syscall(SYS_socket, AF_INET, SOCK_STREAM, 0)));
    report("kill", failsWith(EPERM, ::syscall(SYS_kill, ::getppid(), SIGCONT)));
    report("setuid", failsWith(EPERM, ::syscall(SYS_setuid, ::getuid())));
    report("unshare", failsWith(EPERM, ::syscall(SYS_unshare, 0)));
    report("keyctl", failsWith(EPERM, ::syscall(SYS_keyctl, 0, 0, 0, 0, 0)));
    print("asked\n");
}

[[gnu::constructor]] void listen() {
    std::signal(SIGUSR2, &ask);
}

} // namespace
