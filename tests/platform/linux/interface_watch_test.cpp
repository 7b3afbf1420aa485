#include "platform/linux/interface_watch.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

enum Outcome : int { asExpected, notPermitted, noFirstChange, neverQuiet, changeMissed };

bool bringLoopbackUp() {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request{};
    request.ifr_name[0] = 'l';
    request.ifr_name[1] = 'o';
    request.ifr_flags = IFF_UP;
    const bool isUp = descriptor >= 0 && ::ioctl(descriptor, SIOCSIFFLAGS, &request) == 0;
    ::close(descriptor);
    return isUp;
}

/// Watches a network of this process's own, in which nothing but the test changes anything.
Outcome watchOwnNetwork() {
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0)
        return notPermitted;
    InterfaceWatch watch;
    if (!watch.mayHaveChanged())
        return noFirstChange;
    if (watch.mayHaveChanged() || watch.mayHaveChanged())
        return neverQuiet;
    if (!bringLoopbackUp())
        return notPermitted;
    if (!watch.mayHaveChanged())
        return changeMissed;
    return watch.mayHaveChanged() ? neverQuiet : asExpected;
}

TEST(InterfaceWatch, TellsOfAChangeOnceAndIsQuietElse) {
    const int outcome = inChildProcess(watchOwnNetwork);
    if (outcome == notPermitted)
        GTEST_SKIP() << "this system does not let a process have a network of its own";
    EXPECT_EQ(outcome, asExpected);
}

} // namespace
} // namespace orvelle::linux_platform
