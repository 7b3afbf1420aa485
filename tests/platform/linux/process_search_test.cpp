#include "platform/linux/process_search.h"
#include "process_tree.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

constexpr NewProcessSearch wholeListing{.wholeListing = true};
constexpr NewProcessSearch nowhere{};

NewProcessSearch among(std::int32_t first, std::int32_t last) {
    return {.wholeListing = false, .first = first, .last = last};
}

class NewProcessSearchPlanTest : public ::testing::Test {
protected:
    /// The two samples after which the plan knows the newest pids that it needs.
    void settleAt(std::int32_t newestPid) {
        EXPECT_EQ(plan.next(newestPid, known), wholeListing);
        EXPECT_EQ(plan.next(newestPid, known), wholeListing);
    }

    NewProcessSearchPlan plan;
    std::size_t known = 100;
};

TEST_F(NewProcessSearchPlanTest, LooksNowhereWhileTheNewestPidStands) {
    settleAt(500);
    for (int sample = 2; sample < 10; ++sample)
        EXPECT_EQ(plan.next(500, known), nowhere);
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingInEveryTenthSample) {
    settleAt(500);
    for (int sample = 2; sample < 50; ++sample)
        EXPECT_EQ(plan.next(500, known), sample % 10 == 0 ? wholeListing : nowhere) << sample;
}

TEST_F(NewProcessSearchPlanTest, AsksEachNewPidInTwoSamples) {
    settleAt(500);
    EXPECT_EQ(plan.next(503, known), among(501, 503));
    EXPECT_EQ(plan.next(504, known), among(501, 504));
    EXPECT_EQ(plan.next(504, known), among(504, 504));
    EXPECT_EQ(plan.next(504, known), nowhere);
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingAfterThePidsWrapped) {
    settleAt(32000);
    EXPECT_EQ(plan.next(310, known), wholeListing);
    EXPECT_EQ(plan.next(312, known), wholeListing); // the process of a pid before the wrap may show only now
    EXPECT_EQ(plan.next(313, known), among(311, 313));
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingWhenSoManyPidsAreNewThatTheListingIsCheaper) {
    settleAt(1000);
    EXPECT_EQ(plan.next(1400, known), among(1001, 1400));
    EXPECT_EQ(plan.next(1401, known), wholeListing);
    known = 10;
    EXPECT_EQ(plan.next(1656, known), among(1401, 1656)) << "a few hundred pids are always asked";
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingAlwaysWhenTheNewestPidCannotBeTold) {
    for (int sample = 0; sample < 12; ++sample)
        EXPECT_EQ(plan.next(std::nullopt, known), wholeListing);
}

TEST_F(NewProcessSearchPlanTest, RecoversFromOneFailedReading) {
    settleAt(500);
    EXPECT_EQ(plan.next(std::nullopt, known), wholeListing);
    EXPECT_EQ(plan.next(505, known), wholeListing);
    EXPECT_EQ(plan.next(506, known), wholeListing);
    EXPECT_EQ(plan.next(507, known), among(506, 507));
}

TEST(NewestPid, IsTheLastNumberOfTheLoadAverages) {
    EXPECT_EQ(parseNewestPid("0.05 0.13 0.09 1/92 9203\n"), 9203);
    EXPECT_EQ(parseNewestPid("0.05 0.13 0.09 1/92 9203"), 9203);
}

TEST(NewestPid, IsNothingInAnyOtherText) {
    for (const char* text : {"", "\n", "0.05 0.13 0.09", "0.05 0.13 0.09 1/92", "0.05 0.13 0.09 1/92 x",
                             "0.05 0.13 0.09 1/92 0", "0.05 0.13 0.09 1/92 -3", "a\nb\nc\nd\n5"})
        EXPECT_FALSE(parseNewestPid(text)) << text;
}

TEST(NewestPid, IsReadFromTheFileOfTheProcDirectory) {
    const ProcessTree tree;
    tree.write(tree.root() / "proc/loadavg", "0.05 0.13 0.09 1/92 9203\n");
    NewestPid newestPid(tree.root());
    EXPECT_EQ(newestPid.read(), 9203);
    tree.write(tree.root() / "proc/loadavg", "0.05 0.13 0.09 1/92 9204\n");
    EXPECT_EQ(newestPid.read(), 9204);
}

TEST(NewestPid, IsNotBelievedFromAFileThatWasPutInThePlaceOfTheKernels) {
    const ProcessTree tree;
    std::filesystem::create_symlink("/proc/loadavg", tree.root() / "proc/loadavg");
    if (!std::filesystem::exists("/proc/loadavg"))
        GTEST_SKIP() << "this machine has no /proc/loadavg";
    EXPECT_FALSE(NewestPid(tree.root()).read());
}

TEST(NewestPid, IsNothingWithoutAFile) {
    const ProcessTree tree;
    EXPECT_FALSE(NewestPid(tree.root()).read());
}

} // namespace
} // namespace orvelle::linux_platform
