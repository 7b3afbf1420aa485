#include "own_network.h"
#include "platform/linux/interface_watch.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

using Subject = InterfaceWatch::Subject;

enum class WatchOutcome {
    asExpected,
    notPermitted,
    noFirstChange,
    neverQuiet,
    linkMissed,
    addressMissed,
    routeMissed
};

/// Watches a network of this process's own, in which nothing but the test changes anything.
WatchOutcome watchOwnNetwork() {
    if (!enterOwnNetwork())
        return WatchOutcome::notPermitted;
    InterfaceWatch watch(Subject::interfacesAndAddresses);
    InterfaceWatch routes(Subject::ipv4Routes);
    if (!watch.mayHaveChanged() || !routes.mayHaveChanged())
        return WatchOutcome::noFirstChange;
    if (routes.mayHaveChanged() || watch.mayHaveChanged() || watch.mayHaveChanged())
        return WatchOutcome::neverQuiet;
    if (!changeLoopbackSize())
        return WatchOutcome::notPermitted;
    if (!watch.mayHaveChanged())
        return WatchOutcome::linkMissed;
    if (!giveLoopbackAddress("127.0.0.2"))
        return WatchOutcome::notPermitted;
    if (!watch.mayHaveChanged())
        return WatchOutcome::addressMissed;
    static_cast<void>(routes.mayHaveChanged()); // an address brings a route with it
    if (!addDefaultRoute())
        return WatchOutcome::notPermitted;
    if (!routes.mayHaveChanged())
        return WatchOutcome::routeMissed;
    if (routes.mayHaveChanged())
        return WatchOutcome::neverQuiet;
    return watch.mayHaveChanged() ? WatchOutcome::neverQuiet : WatchOutcome::asExpected;
}

TEST(InterfaceWatch, ReportsAChangeOnce) {
    const auto outcome = inChildProcess(watchOwnNetwork);
    if (outcome == WatchOutcome::notPermitted)
        GTEST_SKIP() << "this system does not let a process have a network of its own";
    EXPECT_EQ(outcome, WatchOutcome::asExpected);
}

TEST(InterfaceWatch, ReportsAChangeAfterReplacingAFailedSocket) {
    const int watched = ::dup(STDIN_FILENO); // the number that the watch's socket gets
    ::close(watched);
    InterfaceWatch watch(Subject::interfacesAndAddresses);
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
