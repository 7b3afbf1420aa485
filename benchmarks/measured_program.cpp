#include "measured_program.h"

#include "platform/linux/process_clock.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <pty.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle::bench {
namespace {

[[noreturn]] void execute(const std::vector<std::string>& command) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::vector<char*> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    ::execvp(arguments[0], arguments.data());
    ::_exit(127);
}

pid_t forkDiscarding() {
    const pid_t pid = ::fork();
    if (pid == 0) {
        const int null = ::open("/dev/null", O_RDWR);
        if (null < 0)
            ::_exit(127);
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            ::dup2(null, standard);
    }
    return pid;
}

pid_t forkInTerminal(int& terminal) {
    const winsize size{.ws_row = 50, .ws_col = 160, .ws_xpixel = 0, .ws_ypixel = 0};
    const pid_t pid = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (pid > 0)
        ::fcntl(terminal, F_SETFL, O_NONBLOCK);
    return pid;
}

} // namespace

MeasuredProgram::MeasuredProgram(std::string name, const std::vector<std::string>& command, Output output)
    : m_name(std::move(name))
    , m_pid(output == Output::terminal ? forkInTerminal(m_terminal) : forkDiscarding()) {
    if (m_pid == 0)
        execute(command);
}

MeasuredProgram::~MeasuredProgram() {
    if (m_pid > 0) {
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
    }
    if (m_terminal >= 0)
        ::close(m_terminal);
}

std::optional<std::uint64_t> MeasuredProgram::nanoseconds() const {
    siginfo_t info{};
    const bool hasEnded =
        ::waitid(P_PID, static_cast<id_t>(m_pid), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
        info.si_pid == m_pid;
    return hasEnded ? std::nullopt : linux_platform::readProcessClock(m_pid);
}

void MeasuredProgram::drain() const {
    char text[65536];
    while (m_terminal >= 0 && ::read(m_terminal, text, sizeof text) > 0) {
    }
}

bool runToEnd(const std::vector<std::string>& command) {
    const pid_t pid = forkDiscarding();
    if (pid == 0)
        execute(command);
    int status = -1;
    return pid > 0 && ::waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::optional<std::filesystem::path> findCommand(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "/usr/bin:/bin" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::filesystem::path file = std::filesystem::path(folder) / name;
        if (::access(file.c_str(), X_OK) == 0)
            return file;
    }
    return std::nullopt;
}

} // namespace orvelle::bench
