#pragma once

#include <csignal>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <functional>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace orvelle::linux_platform {

/// A real process that sleeps, does a piece of work on request, and ends with the object.
class ChildProcess {
public:
    using Work = std::function<void(const ChildProcess& self)>;

    explicit ChildProcess(Work work = [](const ChildProcess&) {})
        : m_work(std::move(work)) {
        makePipe(m_requests);
        makePipe(m_replies);
        m_pid = ::fork();
        if (m_pid < 0)
            throw std::system_error(errno, std::generic_category(), "fork");
        if (m_pid == 0)
            runChild();
        ::close(std::exchange(m_requests[0], -1));
        ::close(std::exchange(m_replies[1], -1));
        waitForReply();
    }
    ~ChildProcess() {
        kill();
        reap();
        for (const int end : {m_requests[0], m_requests[1], m_replies[0], m_replies[1]}) {
            if (end >= 0)
                ::close(end);
        }
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    [[nodiscard]] std::int32_t pid() const { return m_pid; }

    /// Lets the child work once; returns when it sleeps again and uses no more time.
    void work() const {
        const char byte = 1;
        static_cast<void>(!::write(m_requests[1], &byte, 1));
        waitForReply();
    }
    /// In the child: reports that the work is done, for work that does not return.
    void reply() const {
        const char byte = 1;
        static_cast<void>(!::write(m_replies[1], &byte, 1));
    }

    void kill() const {
        if (m_pid > 0)
            ::kill(m_pid, SIGKILL);
    }
    /// Returns when the child has ended and is still there as a zombie.
    void waitUntilZombie() const {
        siginfo_t info{};
        ::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOWAIT);
    }
    void reap() {
        if (m_pid > 0)
            ::waitpid(m_pid, nullptr, 0);
        m_pid = 0;
    }

private:
    static void makePipe(int (&ends)[2]) {
        if (::pipe2(ends, O_CLOEXEC) != 0)
            throw std::system_error(errno, std::generic_category(), "pipe2");
    }

    [[noreturn]] void runChild() const {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        while (true) {
            reply();
            char byte = 0;
            if (::read(m_requests[0], &byte, 1) != 1)
                ::_exit(0);
            m_work(*this);
        }
    }

    /// An exec closes the child's end, which counts as a reply.
    void waitForReply() const {
        char byte = 0;
        while (::read(m_replies[0], &byte, 1) < 0 && errno == EINTR) {
        }
        while (isRunnable())
            ::usleep(500);
    }

    [[nodiscard]] bool isRunnable() const {
        const std::string path = "/proc/" + std::to_string(m_pid) + "/stat";
        const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        char text[512];
        const ssize_t size = ::read(descriptor, text, sizeof text);
        ::close(descriptor);
        const std::string line(text, size > 0 ? static_cast<std::size_t>(size) : 0);
        return line.find(") R ") != std::string::npos;
    }

    Work m_work;
    int m_requests[2] = {-1, -1};
    int m_replies[2] = {-1, -1};
    pid_t m_pid = 0;
};

/// Nanoseconds that the calling process has used by its own account.
inline std::uint64_t ownNanoseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000 + static_cast<std::uint64_t>(time.tv_nsec);
}

/// Uses that much processor time, however long it takes.
inline void burnNanoseconds(std::uint64_t nanoseconds) {
    const std::uint64_t end = ownNanoseconds() + nanoseconds;
    while (ownNanoseconds() < end) {
    }
}

} // namespace orvelle::linux_platform
