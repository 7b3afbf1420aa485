#include "confinement/confinement.h"
#include "confinement/network_need.h"
#include "confinement/system_call_filter.h"

#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace orvelle {
namespace {

#ifdef ORVELLE_CHECKS_LEAKS
constexpr bool hasLeakChecker = true;
#else
constexpr bool hasLeakChecker = false;
#endif

} // namespace

void confineProcess() {
    const std::optional<std::uint32_t> architecture = filteredArchitecture();
    // Without this a filter needs a privilege.
    if (!architecture || ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return;
    std::vector<sock_filter> text =
        systemCallFilter(*architecture, {.process = ::getpid(),
                                         .network = needsNetwork(DesktopAddresses::present()),
                                         .leakChecker = hasLeakChecker});
    const sock_fprog program{.len = static_cast<unsigned short>(text.size()), .filter = text.data()};
    // Kernels before 5.16 would otherwise slow the processor down for the whole process. Its own code is no
    // stranger from which a secret must be kept.
    constexpr unsigned long flags = SECCOMP_FILTER_FLAG_TSYNC | SECCOMP_FILTER_FLAG_SPEC_ALLOW;
    static_cast<void>(::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, flags, &program));
}

} // namespace orvelle
