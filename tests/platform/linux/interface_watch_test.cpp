#include "platform/linux/interface_watch.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <cstring>
#include <net/if.h>
#include <netinet/in.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

enum Outcome : int { asExpected, notPermitted, noFirstChange, neverQuiet, linkMissed, addressMissed };

ifreq loopbackRequest() {
    ifreq request{};
    request.ifr_name[0] = 'l';
    request.ifr_name[1] = 'o';
    return request;
}

bool apply(unsigned long command, ifreq request) {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const bool isApplied = descriptor >= 0 && ::ioctl(descriptor, command, &request) == 0;
    ::close(descriptor);
    return isApplied;
}

bool bringLoopbackUp() {
    ifreq request = loopbackRequest();
    request.ifr_flags = IFF_UP;
    return apply(SIOCSIFFLAGS, request);
}

/// Changes the link alone, no address.
bool changeLoopbackSize() {
    ifreq request = loopbackRequest();
    request.ifr_mtu = 9000;
    return apply(SIOCSIFMTU, request);
}

/// Changes an address alone.
bool changeLoopbackAddress() {
    ifreq request = loopbackRequest();
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK + 1);
    std::memcpy(&request.ifr_addr, &address, sizeof address);
    return apply(SIOCSIFADDR, request);
}

/// Watches a network of this process's own, in which nothing but the test changes anything.
Outcome watchOwnNetwork() {
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0 || !bringLoopbackUp())
        return notPermitted;
    InterfaceWatch watch;
    if (!watch.mayHaveChanged())
        return noFirstChange;
    if (watch.mayHaveChanged() || watch.mayHaveChanged())
        return neverQuiet;
    if (!changeLoopbackSize())
        return notPermitted;
    if (!watch.mayHaveChanged())
        return linkMissed;
    if (!changeLoopbackAddress())
        return notPermitted;
    if (!watch.mayHaveChanged())
        return addressMissed;
    return watch.mayHaveChanged() ? neverQuiet : asExpected;
}

TEST(InterfaceWatch, TellsOfAChangeOnceAndIsQuietElse) {
    const int outcome = inChildProcess(watchOwnNetwork);
    if (outcome == notPermitted)
        GTEST_SKIP() << "this system does not let a process have a network of its own";
    EXPECT_EQ(outcome, asExpected);
}

TEST(InterfaceWatch, ReplacesASocketThatFailsAndAnswersYesForWhatWasMissed) {
    const int watched = ::dup(STDIN_FILENO); // the number that the watch's socket gets
    ::close(watched);
    InterfaceWatch watch;
    ASSERT_TRUE(watch.mayHaveChanged());
    int ends[2];
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    ASSERT_EQ(::dup2(ends[0], watched), watched);
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_TRUE(watch.mayHaveChanged()) << "the socket has failed";
    EXPECT_TRUE(watch.mayHaveChanged()) << "another one is opened at once";
}

} // namespace
} // namespace orvelle::linux_platform
