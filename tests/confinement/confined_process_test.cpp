#include "confinement/confinement.h"
#include "confinement/system_call_filter.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <thread>

namespace orvelle {
namespace {

enum class Outcome { done, notPermitted, noSuchFamily, otherError, unconfined };

/// What the kernel answers to `call` in a process that has confined itself.
template <class Call>
std::optional<Outcome> confined(Call call) {
    return inChildProcess([&call] {
        constexpr int filterMode = 2;
        confineProcess();
        if (::prctl(PR_GET_SECCOMP) != filterMode)
            return Outcome::unconfined;
        if (call() >= 0)
            return Outcome::done;
        if (errno == EPERM)
            return Outcome::notPermitted;
        return errno == EAFNOSUPPORT ? Outcome::noSuchFamily : Outcome::otherError;
    });
}

class ConfinedProcess : public ::testing::Test {
protected:
    void SetUp() override {
        if (!filteredArchitecture() || confined([] { return 0; }) == Outcome::unconfined)
            GTEST_SKIP() << "this machine has no filter for system calls";
        ::unsetenv("DISPLAY");
    }
};

TEST_F(ConfinedProcess, StartsNoProgram) {
    const auto start = [] {
        char name[] = "/bin/true";
        char* arguments[]{name, nullptr};
        return ::execv(name, arguments);
    };
    EXPECT_EQ(confined(start), Outcome::notPermitted);
}

TEST_F(ConfinedProcess, MakesNoProcess) {
    EXPECT_EQ(confined([] {
                  const pid_t child = ::fork();
                  if (child == 0)
                      ::_exit(0);
                  return child;
              }),
              Outcome::notPermitted);
}

TEST_F(ConfinedProcess, EndsNoOther) {
    const pid_t parent = ::getpid();
    EXPECT_EQ(confined([parent] { return ::kill(parent, SIGCONT); }), Outcome::notPermitted);
    EXPECT_EQ(confined([parent] { return ::kill(parent, 0); }), Outcome::done);
}

TEST_F(ConfinedProcess, ReachesNoOtherMachine) {
    EXPECT_EQ(confined([] { return ::socket(AF_INET, SOCK_STREAM, 0); }), Outcome::noSuchFamily);
    EXPECT_EQ(confined([] { return ::socket(AF_INET6, SOCK_DGRAM, 0); }), Outcome::noSuchFamily);
    EXPECT_EQ(confined([] { return ::socket(AF_UNIX, SOCK_STREAM, 0); }), Outcome::done);
}

TEST_F(ConfinedProcess, StillHasThreadsFilesAndAnAbnormalEnd) {
    EXPECT_EQ(confined([] {
                  int file = -1;
                  std::thread([&file] { file = ::open("/proc/self/stat", O_RDONLY); }).join();
                  return file;
              }),
              Outcome::done);
    const auto end = [] {
        confineProcess();
        std::signal(SIGABRT, [](int) { ::_exit(static_cast<int>(Outcome::done)); });
        ::raise(SIGABRT);
        return Outcome::otherError;
    };
    EXPECT_EQ(inChildProcess(end), Outcome::done);
}

TEST_F(ConfinedProcess, ConfinesThreadsThatRunAlready) {
    const auto start = [] {
        int result = 0;
        int error = 0;
        std::thread thread([&] {
            while (::prctl(PR_GET_SECCOMP) == 0)
                std::this_thread::yield();
            result = ::socket(AF_INET, SOCK_STREAM, 0);
            error = errno;
        });
        confineProcess();
        thread.join();
        return result < 0 && error == EAFNOSUPPORT ? Outcome::noSuchFamily : Outcome::otherError;
    };
    EXPECT_EQ(inChildProcess(start), Outcome::noSuchFamily);
}

} // namespace
} // namespace orvelle
