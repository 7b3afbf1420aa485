#include "child_process.h"
#include "platform/linux/linux_process_source.h"
#include "process_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <unistd.h>
#include <vector>

namespace orvelle::linux_platform {
namespace {

constexpr std::uint64_t nanosecondsPerTick = 10'000'000;

class LinuxProcessSourceTest : public ::testing::Test {
protected:
    [[nodiscard]] std::vector<ProcessRecord> read() {
        const auto records = source.readProcesses();
        EXPECT_TRUE(records);
        return records ? std::vector(records->begin(), records->end()) : std::vector<ProcessRecord>{};
    }
    [[nodiscard]] std::vector<std::int32_t> readPids() {
        std::vector<std::int32_t> pids;
        for (const ProcessRecord& record : read())
            pids.push_back(record.pid);
        return pids;
    }
    [[nodiscard]] std::string readName() {
        const auto records = read();
        return records.size() == 1 ? records.front().name : "not one process";
    }

    ProcessTree tree;
    LinuxProcessSource source{tree.root(), ProcessTimesFrom::statFiles};
};

TEST_F(LinuxProcessSourceTest, ReadsTimesAndMemoryInTheUsualUnits) {
    tree.put({.pid = 42,
              .comm = "bash",
              .userTicks = 150,
              .systemTicks = 25,
              .residentPages = 3,
              .exe = "/usr/bin/bash"});
    EXPECT_EQ(read(), (std::vector{ProcessRecord{.pid = 42,
                                                 .name = "bash",
                                                 .userNanoseconds = 150 * nanosecondsPerTick,
                                                 .systemNanoseconds = 25 * nanosecondsPerTick,
                                                 .residentBytes = 3 * 4096}}));
}

TEST_F(LinuxProcessSourceTest, ReadsTimesAndMemoryInTheGivenUnits) {
    tree.put({.pid = 42, .userTicks = 3, .residentPages = 3, .exe = {}});
    LinuxProcessSource other(tree.root(), ProcessTimesFrom::statFiles,
                             {.pageSize = 65536, .ticksPerSecond = 1000});
    const auto records = other.readProcesses();
    ASSERT_TRUE(records && records->size() == 1);
    EXPECT_EQ(records->front().userNanoseconds, 3'000'000u);
    EXPECT_EQ(records->front().residentBytes, 3u * 65536);
}

TEST_F(LinuxProcessSourceTest, ListsAscendingPidsAndNothingThatIsNoPid) {
    for (const std::int32_t pid : {300, 4, 20, 1000, 1})
        tree.put({.pid = pid, .exe = {}});
    for (const char* other : {"self", "0", "007", "12a", "-5", "99999999999", "sys"})
        std::filesystem::create_directory(tree.root() / "proc" / other);
    tree.write(tree.root() / "proc/007/stat", MadeProcess{.pid = 7, .exe = {}}.statLine());
    tree.write(tree.root() / "proc/0/stat", MadeProcess{.pid = 0, .exe = {}}.statLine());
    EXPECT_EQ(readPids(), (std::vector{1, 4, 20, 300, 1000}));
}

TEST_F(LinuxProcessSourceTest, FollowsProcessesThatComeAndGo) {
    tree.put({.pid = 5, .exe = {}});
    tree.put({.pid = 9, .exe = {}});
    EXPECT_EQ(readPids(), (std::vector{5, 9}));
    tree.put({.pid = 7, .exe = {}});
    tree.remove(5);
    EXPECT_EQ(readPids(), (std::vector{7, 9}));
    tree.remove(7);
    tree.remove(9);
    EXPECT_EQ(readPids(), std::vector<std::int32_t>{});
    tree.put({.pid = 5, .exe = {}});
    EXPECT_EQ(readPids(), std::vector{5});
}

TEST_F(LinuxProcessSourceTest, ReadsEveryProcessAfreshInEverySample) {
    tree.put({.pid = 5, .userTicks = 1, .residentPages = 10, .exe = {}});
    EXPECT_EQ(read().front().userNanoseconds, nanosecondsPerTick);
    tree.put({.pid = 5, .userTicks = 4, .systemTicks = 2, .residentPages = 8, .exe = {}});
    const auto records = read();
    EXPECT_EQ(records.front().userNanoseconds, 4 * nanosecondsPerTick);
    EXPECT_EQ(records.front().systemNanoseconds, 2 * nanosecondsPerTick);
    EXPECT_EQ(records.front().residentBytes, 8u * 4096);
}

TEST_F(LinuxProcessSourceTest, SkipsZombiesAndProcessesWithoutATask) {
    tree.put({.pid = 5, .exe = {}});
    tree.put({.pid = 6, .state = 'Z', .exe = {}});
    tree.put({.pid = 7, .threadCount = 0, .exe = {}});
    EXPECT_EQ(readPids(), std::vector{5});
    tree.put({.pid = 5, .state = 'Z', .exe = {}});
    EXPECT_TRUE(readPids().empty());
}

TEST_F(LinuxProcessSourceTest, SkipsAProcessThatVanishesBetweenTheListingAndItsFile) {
    std::filesystem::create_directory(tree.root() / "proc/11");
    tree.put({.pid = 12, .exe = {}});
    tree.write(tree.root() / "proc/12/stat", "");
    tree.put({.pid = 13, .exe = {}});
    tree.write(tree.root() / "proc/13/stat", "13 (cut) S 1 2");
    tree.put({.pid = 14, .exe = {}});
    EXPECT_EQ(readPids(), std::vector{14});
}

TEST_F(LinuxProcessSourceTest, NamesAProcessAfterItsExecutable) {
    tree.put({.pid = 5, .comm = "GeckoMain", .exe = "/usr/lib/firefox/firefox (deleted)"});
    EXPECT_EQ(readName(), "firefox");
}

TEST_F(LinuxProcessSourceTest, NamesAProcessByItsShortNameWhenTheLinkCannotBeRead) {
    tree.put({.pid = 5, .comm = "systemd-resolve", .exe = {}});
    EXPECT_EQ(readName(), "systemd-resolve");
}

TEST_F(LinuxProcessSourceTest, ListsAProcessWithoutAnyNameWithAnEmptyName) {
    tree.put({.pid = 5, .comm = "", .exe = {}});
    EXPECT_EQ(readName(), "");
}

TEST_F(LinuxProcessSourceTest, NamesAThreadOfTheKernelWithoutAskingForALink) {
    tree.put({.pid = 5, .comm = "kworker/0:1-events", .flags = 0x00200040, .exe = "/not/asked"});
    EXPECT_EQ(readName(), "kworker/0:1-events");
    tree.put({.pid = 5, .comm = "kworker/0:1-mm_percpu_wq", .flags = 0x00200040, .exe = "/not/asked"});
    EXPECT_EQ(readName(), "kworker/0:1-mm_percpu_wq");
}

/// How a process looks that has run since the sample before, after its `stat` has changed. Its turn to be
/// read although it is idle has not come.
ProcessRecord afterRunning(std::uint64_t flags) {
    const ProcessTree tree;
    tree.put({.pid = ::getpid(), .comm = "before", .flags = flags, .residentPages = 1, .exe = {}});
    std::vector<std::unique_ptr<ChildProcess>> others; // the turn goes through them in fifty samples
    for (int count = 0; count < 120; ++count) {
        others.push_back(std::make_unique<ChildProcess>());
        tree.put({.pid = others.back()->pid(), .exe = {}});
    }
    LinuxProcessSource source(tree.root(), ProcessTimesFrom::processClocks);
    const auto ownRecord = [&source] {
        const auto records = source.readProcesses();
        return records ? *std::ranges::find(*records, ::getpid(), &ProcessRecord::pid) : ProcessRecord{};
    };
    const ProcessRecord before = ownRecord();
    EXPECT_EQ(before.name, "before");
    static_cast<void>(ownRecord()); // takes the turn of the first few pids
    tree.put({.pid = ::getpid(), .comm = "after", .flags = flags, .residentPages = 2, .exe = {}});
    const ProcessRecord after = ownRecord();
    EXPECT_GT(after.userNanoseconds, before.userNanoseconds);
    return after;
}

TEST(LinuxProcessSourceWithClocks, ReadsTheStatOfAProcessThatHasRun) {
    const ProcessRecord record = afterRunning(0x00400000);
    EXPECT_EQ(record.name, "after");
    EXPECT_EQ(record.residentBytes, 2u * 4096);
}

TEST(LinuxProcessSourceWithClocks, SparesAThreadOfTheKernelThatReadingUntilItsTurn) {
    EXPECT_EQ(afterRunning(0x00200040).name, "before");
}

TEST_F(LinuxProcessSourceTest, AsksForTheExecutableOnceInAProcessLife) {
    tree.put({.pid = 5, .exe = "/bin/first"});
    EXPECT_EQ(readName(), "first");
    tree.put({.pid = 5, .exe = "/bin/second"});
    EXPECT_EQ(readName(), "first");
}

TEST_F(LinuxProcessSourceTest, AsksForTheExecutableAgainAfterAnExecChangedTheShortName) {
    tree.put({.pid = 5, .comm = "bash", .exe = "/bin/bash"});
    EXPECT_EQ(readName(), "bash");
    tree.put({.pid = 5, .comm = "make", .exe = "/bin/make"});
    EXPECT_EQ(readName(), "make");
}

TEST_F(LinuxProcessSourceTest, AsksForTheExecutableAgainWhenThePidIsReused) {
    tree.put({.pid = 5, .comm = "sh", .startTime = 1000, .exe = "/bin/first"});
    EXPECT_EQ(readName(), "first");
    tree.put({.pid = 5, .comm = "sh", .startTime = 2000, .exe = "/bin/second"});
    EXPECT_EQ(readName(), "second");
}

TEST_F(LinuxProcessSourceTest, BoundsTimesAndMemorySoThatNoSumOverflows) {
    constexpr std::uint64_t largest = ~std::uint64_t{0};
    tree.put({.pid = 5, .userTicks = largest, .systemTicks = largest, .residentPages = largest, .exe = {}});
    const auto records = read();
    EXPECT_EQ(records.front().userNanoseconds, ProcessRecord::maximumNanoseconds);
    EXPECT_EQ(records.front().systemNanoseconds, ProcessRecord::maximumNanoseconds);
    EXPECT_EQ(records.front().residentBytes, ProcessRecord::maximumBytes);
}

TEST_F(LinuxProcessSourceTest, TakesNothingOfTheHostForAPidThatTheHostHasToo) {
    tree.put({.pid = ::getpid(), .comm = "made", .userTicks = 7, .residentPages = 1, .exe = {}});
    EXPECT_EQ(read(), (std::vector{ProcessRecord{.pid = ::getpid(),
                                                 .name = "made",
                                                 .userNanoseconds = 7 * nanosecondsPerTick,
                                                 .systemNanoseconds = 0,
                                                 .residentBytes = 4096}}));
}

TEST_F(LinuxProcessSourceTest, AnEmptyProcIsAMachineWithoutProcesses) {
    EXPECT_TRUE(read().empty());
}

TEST_F(LinuxProcessSourceTest, CannotListWithoutAProcUntilThereIsOne) {
    std::filesystem::remove(tree.root() / "proc");
    EXPECT_FALSE(source.readProcesses());
    std::filesystem::create_directory(tree.root() / "proc");
    tree.put({.pid = 5, .exe = {}});
    EXPECT_EQ(readPids(), std::vector{5});
}

TEST_F(LinuxProcessSourceTest, ReportsTheSizeOfMemory) {
    EXPECT_FALSE(source.readTotalMemory());
    tree.write(tree.root() / "proc/meminfo", "MemTotal:       24684 kB\nMemFree:  5 kB\n");
    EXPECT_EQ(source.readTotalMemory(), 24684u * 1024);
}

} // namespace
} // namespace orvelle::linux_platform
