#include "own_network.h"
#include "platform/linux/interface_watch.h"
#include "support/child_process.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

enum Outcome : int { asExpected, notPermitted, noFirstChange, neverQuiet, linkMissed, addressMissed };

/// Watches a network of this process's own, in which nothing but the test changes anything.
Outcome watchOwnNetwork() {
    if (!enterOwnNetwork())
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
    if (!giveLoopbackAddress("127.0.0.2"))
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
