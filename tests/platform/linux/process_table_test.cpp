#include "platform/linux/process_table.h"
#include "process_tree.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

namespace orvelle::linux_platform {
namespace {

ProcessTable tableOf(std::initializer_list<std::int32_t> pids) {
    ProcessTable table;
    for (const std::int32_t pid : pids) {
        ProcessRecord record;
        record.pid = pid;
        table.insert(record, static_cast<ProcessLife>(pid) * 10);
    }
    return table;
}

std::vector<std::int32_t> pidsOf(const ProcessTable& table) {
    std::vector<std::int32_t> pids;
    for (const ProcessRecord& record : table.records())
        pids.push_back(record.pid);
    return pids;
}

TEST(ProcessTable, IsAscendingWhateverTheOrderOfInsertion) {
    EXPECT_EQ(pidsOf(tableOf({5, 1, 9, 3, 7})), (std::vector{1, 3, 5, 7, 9}));
}

TEST(ProcessTable, KnowsWhatItContains) {
    const ProcessTable table = tableOf({5, 1, 9});
    EXPECT_TRUE(table.contains(1));
    EXPECT_TRUE(table.contains(9));
    EXPECT_FALSE(table.contains(2));
    EXPECT_FALSE(tableOf({}).contains(1));
}

TEST(ProcessTable, KeepsEachLifeBesideItsRecord) {
    ProcessTable table = tableOf({5, 1, 9, 3, 7});
    table.keepIf([](std::size_t, const ProcessRecord& record, ProcessLife life) {
        EXPECT_EQ(life, static_cast<ProcessLife>(record.pid) * 10);
        return record.pid != 3 && record.pid != 9;
    });
    EXPECT_EQ(pidsOf(table), (std::vector{1, 5, 7}));
    table.keepIf([](std::size_t index, ProcessRecord& record, ProcessLife life) {
        EXPECT_EQ(life, static_cast<ProcessLife>(record.pid) * 10);
        record.residentBytes = index;
        return true;
    });
    EXPECT_EQ(table.records()[2].residentBytes, 2u);
}

constexpr NewProcessSearch wholeListing{.wholeListing = true};

NewProcessSearch among(std::int32_t first, std::int32_t last) {
    return {.wholeListing = false, .first = first, .last = last};
}

class NewProcessSearchPlanTest : public ::testing::Test {
protected:
    /// The first sample always lists everything.
    void beginAt(std::int32_t newestPid) { EXPECT_EQ(plan.next(newestPid, known), wholeListing); }

    NewProcessSearchPlan plan;
    std::size_t known = 100;
};

TEST_F(NewProcessSearchPlanTest, AsksOnlyTheLastFewPidsAgainWhileTheNewestPidStands) {
    beginAt(500);
    for (int sample = 1; sample < 10; ++sample)
        EXPECT_EQ(plan.next(500, known), among(493, 500));
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingInEveryTenthSample) {
    beginAt(500);
    for (int sample = 1; sample < 50; ++sample)
        EXPECT_EQ(plan.next(500, known), sample % 10 == 0 ? wholeListing : among(493, 500)) << sample;
}

TEST_F(NewProcessSearchPlanTest, AsksEachNewPidAndTheLastFewBefore) {
    beginAt(500);
    EXPECT_EQ(plan.next(503, known), among(493, 503));
    EXPECT_EQ(plan.next(504, known), among(496, 504));
}

TEST_F(NewProcessSearchPlanTest, AsksNoPidBelowTheFirst) {
    beginAt(3);
    EXPECT_EQ(plan.next(5, known), among(1, 5));
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingAfterThePidsWrapped) {
    beginAt(32000);
    EXPECT_EQ(plan.next(310, known), wholeListing);
    EXPECT_EQ(plan.next(312, known), among(303, 312));
}

TEST_F(NewProcessSearchPlanTest, ListsEverythingWhenManyPidsAreNewForThoseThatAreKnown) {
    known = 3200; // 16 + 3200 / 32 pids may be asked, eight of them again
    beginAt(1000);
    EXPECT_EQ(plan.next(1108, known), among(993, 1108));
    EXPECT_EQ(plan.next(1217, known), wholeListing);
    EXPECT_EQ(plan.next(1218, known), among(1210, 1218));
}

TEST_F(NewProcessSearchPlanTest, AsksAFewPidsHoweverFewProcessesAreKnown) {
    known = 3;
    beginAt(1000);
    EXPECT_EQ(plan.next(1008, known), among(993, 1008));
    EXPECT_EQ(plan.next(1017, known), wholeListing);
}

TEST_F(NewProcessSearchPlanTest, AlwaysListsEverythingWhenTheNewestPidIsUnknown) {
    for (int sample = 0; sample < 12; ++sample)
        EXPECT_EQ(plan.next(std::nullopt, known), wholeListing);
}

TEST_F(NewProcessSearchPlanTest, RecoversFromOneFailedReading) {
    beginAt(500);
    EXPECT_EQ(plan.next(std::nullopt, known), wholeListing);
    EXPECT_EQ(plan.next(505, known), wholeListing);
    EXPECT_EQ(plan.next(506, known), among(498, 506));
}

TEST_F(NewProcessSearchPlanTest, SurvivesTheLargestPids) {
    constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    beginAt(1);
    EXPECT_EQ(plan.next(largest, known), wholeListing);
    EXPECT_EQ(plan.next(largest, known), among(largest - 7, largest));
}

TEST(NewestPid, IsTheLastNumberOfTheLoadAverages) {
    EXPECT_EQ(parseNewestPid("0.05 0.13 0.09 1/92 9203\n"), 9203);
    EXPECT_EQ(parseNewestPid("0.05 0.13 0.09 1/92 9203"), 9203);
}

TEST(NewestPid, IsNothingInMalformedText) {
    for (const char* text : {"", "\n", "0.05 0.13 0.09", "0.05 0.13 0.09 1/92", "0.05 0.13 0.09 1/92 x",
                             "0.05 0.13 0.09 1/92 0", "0.05 0.13 0.09 1/92 -3", "0.05 0.13 0.09 1/92 4194305",
                             "0.05 0.13 0.09 1/92 99999999999999999999", "a\nb\nc\nd\n5"})
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

TEST(NewestPid, IgnoresAFileThatReplacesTheKernels) {
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
