#include "platform/linux/process_clock.h"
#include "process_tree.h"

#include <gtest/gtest.h>

#include <limits>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

TEST(ProcessClock, IsNotAskedAboutATreeOfFiles) {
    const ProcessTree tree;
    const std::string pid = std::to_string(::getpid());
    std::filesystem::create_directories(tree.root() / "proc/self");
    tree.write(tree.root() / "proc/self/status", "Name:\tx\nNSpid:\t" + pid + "\n");
    EXPECT_FALSE(clocksTellOfListedProcesses(tree.root()));
}

TEST(ProcessClock, IsNothingForAPidThatNobodyHas) {
    EXPECT_FALSE(readProcessClock(std::numeric_limits<std::int32_t>::max()));
    EXPECT_FALSE(readProcessClock(1 << 22));
    EXPECT_FALSE(readProcessClock((1 << 29) + ::getpid())) << "its upper bits are lost in the clock's number";
    EXPECT_FALSE(readProcessClock(0));
    EXPECT_FALSE(readProcessClock(-1));
}

TEST(ProcessClock, OnlyMovesForward) {
    const auto before = readProcessClock(::getpid());
    if (!before)
        GTEST_SKIP() << "no process clocks here";
    const auto after = readProcessClock(::getpid());
    ASSERT_TRUE(after);
    EXPECT_GE(*after, *before);
}

TEST(OwnNamespace, IsShownWhenTheReaderHasOneNumberAndItIsItsPid) {
    EXPECT_TRUE(showsOwnNamespace("Name:\tcat\nNgid:\t0\nPid:\t77\nNSpid:\t77\nThreads:\t1\n", 77));
    EXPECT_TRUE(showsOwnNamespace("NSpid:\t77", 77));
}

TEST(OwnNamespace, IsNotShownByAProcOfAnOuterNamespace) {
    EXPECT_FALSE(showsOwnNamespace("Pid:\t9650\nNSpid:\t9650\t2\n", 2));
    EXPECT_FALSE(showsOwnNamespace("Pid:\t9650\nNSpid:\t9650\t2\n", 9650));
    EXPECT_FALSE(showsOwnNamespace("NSpid:\t2\t2\n", 2));
    EXPECT_FALSE(showsOwnNamespace("NSpid:\t9650\n", 2));
}

TEST(OwnNamespace, IsNotAssumedWhereTheKernelDoesNotReportIt) {
    for (const char* status : {"", "\n", "Pid:\t77\n", "NSpid\n", "NSpid:\n", "NSpid:\tx\n", "xNSpid:\t77\n"})
        EXPECT_FALSE(showsOwnNamespace(status, 77)) << status;
}

} // namespace
} // namespace orvelle::linux_platform
