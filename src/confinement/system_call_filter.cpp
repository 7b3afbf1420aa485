#include "confinement/system_call_filter.h"

#include "confinement/refused_calls.h"

#include <csignal>
#include <cstddef>
#include <linux/audit.h>
#include <linux/netlink.h>
#include <linux/sched.h>
#include <linux/seccomp.h>
#include <sys/socket.h>

namespace orvelle {
namespace {

/// The lower half of an argument, which is all that the kernel reads of an `int`. The filter knows only
/// architectures that store it first.
constexpr std::uint32_t placeOfArgument(std::size_t index) {
    return static_cast<std::uint32_t>(offsetof(seccomp_data, args) + index * sizeof(__u64));
}

/// What an argument must be like.
struct Condition {
    enum class Kind { equals, hasOneOf };

    std::size_t argument = 0;
    Kind kind = Kind::equals;
    std::uint32_t value = 0;
};

/// A call is allowed when all conditions of one of these lists hold.
using Ways = std::vector<std::vector<Condition>>;

class FilterText {
public:
    void load(std::uint32_t place) { m_text.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, place)); }
    void allow() { finish(SECCOMP_RET_ALLOW); }
    void refuse(int error) {
        finish(SECCOMP_RET_ERRNO | (static_cast<std::uint32_t>(error) & SECCOMP_RET_DATA));
    }
    /// Skips `count` instructions unless the loaded value is like that.
    void skipUnless(std::uint16_t comparison, std::uint32_t value, std::size_t count) {
        m_text.push_back(BPF_JUMP(BPF_JMP | comparison | BPF_K, value, 0, static_cast<std::uint8_t>(count)));
    }
    void skipIfEqual(std::uint32_t value, std::size_t count) {
        m_text.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, value, static_cast<std::uint8_t>(count), 0));
    }
    void refuseCall(long number, int error) {
        skipUnless(BPF_JEQ, static_cast<std::uint32_t>(number), 1);
        refuse(error);
    }
    void allowCallOnly(long number, const Ways& ways, int error) {
        std::size_t size = 1; // the refusal at the end
        for (const std::vector<Condition>& conditions : ways)
            size += sizeOf(conditions);
        skipUnless(BPF_JEQ, static_cast<std::uint32_t>(number), size);
        for (const std::vector<Condition>& conditions : ways)
            allowIf(conditions);
        refuse(error);
    }
    [[nodiscard]] std::vector<sock_filter> text() && { return std::move(m_text); }

private:
    static std::size_t sizeOf(const std::vector<Condition>& conditions) { return 2 * conditions.size() + 1; }

    void finish(std::uint32_t action) { m_text.push_back(BPF_STMT(BPF_RET | BPF_K, action)); }
    void allowIf(const std::vector<Condition>& conditions) {
        std::size_t rest = sizeOf(conditions);
        for (const Condition& condition : conditions) {
            rest -= 2;
            load(placeOfArgument(condition.argument));
            skipUnless(condition.kind == Condition::Kind::equals ? BPF_JEQ : BPF_JSET, condition.value, rest);
        }
        allow();
    }

    std::vector<sock_filter> m_text;
};

Condition isArgument(std::size_t argument, std::uint32_t value) {
    return {.argument = argument, .kind = Condition::Kind::equals, .value = value};
}

/// Signals to this process, and the question whether another one lives.
Ways signalsOf(std::uint32_t process, std::size_t signalArgument) {
    return {{isArgument(0, process)}, {isArgument(signalArgument, 0)}};
}

void refuseSignals(FilterText& text, std::uint32_t process) {
    text.allowCallOnly(SYS_kill, signalsOf(process, 1), EPERM);
    text.allowCallOnly(SYS_tgkill, signalsOf(process, 2), EPERM);
    text.allowCallOnly(SYS_rt_sigqueueinfo, signalsOf(process, 1), EPERM);
    text.allowCallOnly(SYS_rt_tgsigqueueinfo, signalsOf(process, 2), EPERM);
}

void refuseProcesses(FilterText& text, bool allowsLeakChecker) {
    std::uint32_t kinds = CLONE_THREAD;
    if (allowsLeakChecker)
        kinds |= CLONE_UNTRACED;
    else
        text.refuseCall(SYS_ptrace, EPERM);
    text.allowCallOnly(SYS_clone, {{{.argument = 0, .kind = Condition::Kind::hasOneOf, .value = kinds}}},
                       EPERM);
}

void refuseSockets(FilterText& text) {
    text.allowCallOnly(SYS_socket,
                       {{isArgument(0, AF_UNIX)}, {isArgument(0, AF_NETLINK), isArgument(2, NETLINK_ROUTE)}},
                       EAFNOSUPPORT);
}

} // namespace

std::optional<std::uint32_t> filteredArchitecture() {
#if defined(__x86_64__) && defined(__LP64__)
    return AUDIT_ARCH_X86_64;
#elif defined(__aarch64__) && defined(__LP64__) && !defined(__AARCH64EB__)
    return AUDIT_ARCH_AARCH64;
#elif defined(__riscv) && __riscv_xlen == 64
    return AUDIT_ARCH_RISCV64;
#else
    return std::nullopt;
#endif
}

std::vector<sock_filter> systemCallFilter(std::uint32_t architecture, const FilterNeeds& needs) {
    constexpr std::uint32_t firstForeignNumber = 0x40000000; // of programs with short pointers on x86-64
    FilterText text;
    text.load(offsetof(seccomp_data, arch));
    text.skipIfEqual(architecture, 1);
    text.refuse(EPERM);
    text.load(offsetof(seccomp_data, nr));
    text.skipUnless(BPF_JGE, firstForeignNumber, 1);
    text.refuse(ENOSYS);
    for (const RefusedCall& call : refusedCalls)
        text.refuseCall(call.number, call.error);
    refuseSignals(text, static_cast<std::uint32_t>(needs.process));
    refuseProcesses(text, needs.leakChecker);
    if (!needs.network)
        refuseSockets(text);
    text.allow();
    return std::move(text).text();
}

} // namespace orvelle
