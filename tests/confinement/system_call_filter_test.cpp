#include "confinement/refused_calls.h"
#include "confinement/system_call_filter.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstring>
#include <linux/netlink.h>
#include <linux/sched.h>
#include <linux/seccomp.h>
#include <sys/socket.h>

namespace orvelle {
namespace {

constexpr std::uint32_t architecture = 7;
constexpr std::int32_t ownProcess = 4711;
constexpr std::int32_t otherProcess = 4712;
constexpr std::uint32_t allowed = SECCOMP_RET_ALLOW;

std::uint32_t refusal(int error) {
    return SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error);
}

/// What the filter answers, as the kernel runs it.
std::uint32_t answer(const std::vector<sock_filter>& filter, const seccomp_data& call) {
    std::uint32_t value = 0;
    for (std::size_t place = 0; place < filter.size(); ++place) {
        const sock_filter& step = filter[place];
        const auto jump = [&](bool holds) { place += holds ? step.jt : step.jf; };
        switch (step.code) {
        case BPF_LD | BPF_W | BPF_ABS:
            std::memcpy(&value, reinterpret_cast<const char*>(&call) + step.k, sizeof value);
            break;
        case BPF_JMP | BPF_JEQ | BPF_K:
            jump(value == step.k);
            break;
        case BPF_JMP | BPF_JGE | BPF_K:
            jump(value >= step.k);
            break;
        case BPF_JMP | BPF_JSET | BPF_K:
            jump((value & step.k) != 0);
            break;
        case BPF_RET | BPF_K:
            return step.k;
        default:
            ADD_FAILURE() << "step " << step.code;
            return 0;
        }
    }
    ADD_FAILURE() << "no answer";
    return 0;
}

class SystemCallFilter : public ::testing::Test {
protected:
    [[nodiscard]] std::uint32_t answerTo(long number, std::array<std::uint64_t, 3> arguments = {}) const {
        return answer(systemCallFilter(architecture, needs),
                      {.nr = static_cast<int>(number),
                       .arch = architecture,
                       .instruction_pointer = 0,
                       .args = {arguments[0], arguments[1], arguments[2], 0, 0, 0}});
    }

    FilterNeeds needs{.process = ownProcess};
};

TEST_F(SystemCallFilter, AllowsWhatAMonitorDoesAllDay) {
    for (const long number : {SYS_read,     SYS_write,   SYS_openat,       SYS_pread64,       SYS_close,
                              SYS_mmap,     SYS_futex,   SYS_ppoll,        SYS_clock_gettime, SYS_readlinkat,
                              SYS_statfs,   SYS_recvmsg, SYS_sendmsg,      SYS_connect,       SYS_renameat2,
                              SYS_unlinkat, SYS_mkdirat, SYS_memfd_create, SYS_prctl,         SYS_exit_group})
        EXPECT_EQ(answerTo(number), allowed) << number;
}

TEST_F(SystemCallFilter, RefusesEachCallOfItsList) {
    ASSERT_GT(std::size(refusedCalls), 50U);
    for (const RefusedCall& call : refusedCalls)
        EXPECT_EQ(answerTo(call.number), refusal(call.error)) << call.number;
    EXPECT_EQ(answerTo(SYS_ptrace), refusal(EPERM));
}

TEST_F(SystemCallFilter, RefusesCallsOfOtherArchitectures) {
    const std::vector<sock_filter> filter = systemCallFilter(architecture, needs);
    seccomp_data call{.nr = SYS_read, .arch = architecture + 1, .instruction_pointer = 0, .args = {}};
    EXPECT_EQ(answer(filter, call), refusal(EPERM));
    call = {.nr = 0x40000000 + SYS_execve, .arch = architecture, .instruction_pointer = 0, .args = {}};
    EXPECT_EQ(answer(filter, call), refusal(ENOSYS));
}

TEST_F(SystemCallFilter, AllowsThreadsAndNoProcesses) {
    EXPECT_EQ(answerTo(SYS_clone, {CLONE_VM | CLONE_SIGHAND | CLONE_THREAD}), allowed);
    EXPECT_EQ(answerTo(SYS_clone, {SIGCHLD}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_clone, {CLONE_VM | CLONE_VFORK | SIGCHLD}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_clone, {CLONE_VM | CLONE_UNTRACED}), refusal(EPERM));
    needs.leakChecker = true;
    EXPECT_EQ(answerTo(SYS_clone, {CLONE_VM | CLONE_UNTRACED}), allowed);
    EXPECT_EQ(answerTo(SYS_clone, {SIGCHLD}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_ptrace), allowed);
}

TEST_F(SystemCallFilter, AllowsSignalsToItsOwnProcessAlone) {
    EXPECT_EQ(answerTo(SYS_kill, {ownProcess, SIGTERM}), allowed);
    EXPECT_EQ(answerTo(SYS_tgkill, {ownProcess, otherProcess, SIGABRT}), allowed);
    EXPECT_EQ(answerTo(SYS_kill, {otherProcess, 0}), allowed) << "only asks";
    EXPECT_EQ(answerTo(SYS_kill, {otherProcess, SIGTERM}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_kill, {0, SIGTERM}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_kill, {static_cast<std::uint64_t>(-1), SIGTERM}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_tgkill, {otherProcess, ownProcess, SIGTERM}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_rt_sigqueueinfo, {otherProcess, SIGTERM}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_rt_tgsigqueueinfo, {otherProcess, ownProcess, SIGTERM}), refusal(EPERM));
}

TEST_F(SystemCallFilter, ReadsOfAnArgumentWhatTheKernelReads) {
    constexpr std::uint64_t upperHalf = std::uint64_t{1} << 40;
    EXPECT_EQ(answerTo(SYS_kill, {upperHalf + otherProcess, SIGTERM}), refusal(EPERM));
    EXPECT_EQ(answerTo(SYS_kill, {upperHalf + ownProcess, SIGTERM}), allowed);
    EXPECT_EQ(answerTo(SYS_socket, {upperHalf + AF_INET, SOCK_STREAM, 0}), refusal(EAFNOSUPPORT));
}

TEST_F(SystemCallFilter, AllowsLocalSocketsAndTheListOfInterfaces) {
    EXPECT_EQ(answerTo(SYS_socket, {AF_UNIX, SOCK_STREAM, 0}), allowed);
    EXPECT_EQ(answerTo(SYS_socket, {AF_NETLINK, SOCK_RAW, NETLINK_ROUTE}), allowed);
    EXPECT_EQ(answerTo(SYS_socket, {AF_NETLINK, SOCK_RAW, NETLINK_AUDIT}), refusal(EAFNOSUPPORT));
    for (const int family : {AF_INET, AF_INET6, AF_PACKET, AF_BLUETOOTH, AF_VSOCK, AF_ALG})
        EXPECT_EQ(answerTo(SYS_socket, {static_cast<std::uint64_t>(family), SOCK_STREAM, 0}),
                  refusal(EAFNOSUPPORT))
            << family;
    needs.network = true;
    EXPECT_EQ(answerTo(SYS_socket, {AF_INET, SOCK_STREAM, 0}), allowed);
}

TEST_F(SystemCallFilter, IsShortEnoughForItsJumpsAndTheKernel) {
    const std::vector<sock_filter> filter = systemCallFilter(architecture, needs);
    EXPECT_LT(filter.size(), 300U);
    for (std::size_t place = 0; place < filter.size(); ++place) {
        const sock_filter& step = filter[place];
        const bool isJump = (step.code & 0x07U) == BPF_JMP;
        EXPECT_TRUE(!isJump || place + 1 + std::max(step.jt, step.jf) < filter.size()) << place;
    }
}

} // namespace
} // namespace orvelle
