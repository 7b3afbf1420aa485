#include "core/process_monitor.h"
#include "platform/replay/fake_sources.h"

#include <QMetaProperty>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace orvelle {
namespace {

constexpr std::uint64_t second = 1'000'000'000;

struct Times {
    std::uint64_t user = 0;
    std::uint64_t system = 0;
};

ProcessRecord process(std::int32_t pid, Times times, std::uint64_t residentBytes = 0) {
    return {.pid = pid,
            .name = "p" + std::to_string(pid),
            .userNanoseconds = times.user,
            .systemNanoseconds = times.system,
            .residentBytes = residentBytes};
}

std::vector<qint32> pids(const QList<ProcessInfo>& processes) {
    std::vector<qint32> result;
    for (const ProcessInfo& info : processes)
        result.push_back(info.pid);
    return result;
}

class ProcessMonitorTest : public ::testing::Test {
protected:
    void sample(std::vector<ProcessRecord> processes, double secondsLater = 9) {
        clock.advance(std::chrono::duration<double>(secondsLater));
        source.processes = std::move(processes);
        monitor.update();
    }
    [[nodiscard]] double usageOf(qint32 pid) const {
        for (const ProcessInfo& info : monitor.topCPUProcesses()) {
            if (info.pid == pid)
                return info.cpuUsage;
        }
        return std::nan("");
    }

    FakeProcessSource source;
    FakeClock clock;
    ProcessMonitor monitor{source, clock.reader()};
};

TEST_F(ProcessMonitorTest, BothListsAreEmptyBeforeTheFirstUpdate) {
    EXPECT_TRUE(monitor.topCPUProcesses().isEmpty());
    EXPECT_TRUE(monitor.topMemoryProcesses().isEmpty());
}

TEST_F(ProcessMonitorTest, TheSizeOfMemoryIsReadOnceAtConstruction) {
    source.totalMemory = 1000;
    ProcessMonitor later(source, clock.reader());
    source.totalMemory = 2000;
    source.processes = std::vector{process(1, {}, 250)};
    later.update();
    EXPECT_EQ(later.totalMemory(), 1000u);
    EXPECT_DOUBLE_EQ(later.topMemoryProcesses().front().memoryPercent, 25);
}

TEST_F(ProcessMonitorTest, AnUnknownSizeOfMemoryIsZeroAndSoIsEveryShareOfIt) {
    sample({process(1, {}, 250)});
    EXPECT_EQ(monitor.totalMemory(), 0u);
    EXPECT_EQ(monitor.topMemoryProcesses().front().memoryBytes, 250u);
    EXPECT_EQ(monitor.topMemoryProcesses().front().memoryPercent, 0);
}

TEST_F(ProcessMonitorTest, AProcessSeenForTheFirstTimeShowsNoUsage) {
    sample({process(1, {.user = 500 * second, .system = 500 * second})});
    EXPECT_EQ(usageOf(1), 0);
}

TEST_F(ProcessMonitorTest, UsageIsUserAndSystemTimeInPercentOfOneCore) {
    sample({process(1, {.user = 7 * second, .system = 2 * second})});
    sample({process(1, {.user = 8 * second, .system = 2 * second + second / 2})}, 10);
    EXPECT_DOUBLE_EQ(usageOf(1), 15);
}

TEST_F(ProcessMonitorTest, EachSampleMeasuresSinceTheOneBefore) {
    sample({process(1, {})});
    sample({process(1, {.user = 9 * second})}, 9);
    sample({process(1, {.user = 9 * second})}, 9);
    EXPECT_EQ(usageOf(1), 0);
}

TEST_F(ProcessMonitorTest, AProcessOnSeveralCoresShowsMoreThanAHundred) {
    sample({process(1, {})});
    sample({process(1, {.user = 27 * second})}, 9);
    EXPECT_DOUBLE_EQ(usageOf(1), 300);
}

TEST_F(ProcessMonitorTest, AnythingBeyondEightCoresShowsEightHundred) {
    sample({process(1, {}), process(2, {})});
    sample({process(1, {.user = 72 * second}), process(2, {.user = 72 * second + 1})}, 9);
    EXPECT_EQ(usageOf(1), 800);
    EXPECT_EQ(usageOf(2), 800);
    sample({process(1, {.user = 1000 * second}), process(2, {})}, 1);
    EXPECT_EQ(usageOf(1), 800);
}

TEST_F(ProcessMonitorTest, ATimeThatWentBackwardsCountsAsNoTimeWhileTheOtherStillCounts) {
    sample({process(1, {.user = 5 * second, .system = 5 * second})});
    sample({process(1, {.user = 1 * second, .system = 6 * second})}, 10);
    EXPECT_DOUBLE_EQ(usageOf(1), 10);
    sample({process(1, {})}, 10);
    EXPECT_EQ(usageOf(1), 0);
}

TEST_F(ProcessMonitorTest, AReusedPidMeasuresAgainstTheTimesThatWereKeptOfIt) {
    sample({process(7, {.user = 2 * second})});
    sample({process(7, {.user = 3 * second})}, 10);
    EXPECT_DOUBLE_EQ(usageOf(7), 10);
}

TEST_F(ProcessMonitorTest, APidThatWasNotListedOnceStartsAgainWithoutUsage) {
    sample({process(1, {}), process(7, {.user = 2 * second})});
    sample({process(1, {})});
    sample({process(1, {}), process(7, {.user = 9 * second})});
    EXPECT_EQ(usageOf(7), 0);
}

TEST_F(ProcessMonitorTest, AProcessThatCouldNotBeInspectedIsLeftOutButMeasuredSinceItLastWas) {
    sample({process(1, {}), process(7, {.user = 2 * second})}, 5);
    ProcessRecord withoutName = process(7, {});
    withoutName.name.clear();
    sample({process(1, {}), withoutName}, 5);
    EXPECT_EQ(pids(monitor.topCPUProcesses()), std::vector<qint32>{1});
    sample({process(1, {}), process(7, {.user = 3 * second})}, 5);
    EXPECT_DOUBLE_EQ(usageOf(7), 10);
}

TEST_F(ProcessMonitorTest, PidsOfZeroAndLessAreNeverListed) {
    sample({process(0, {}, 900), process(-1, {}, 800), process(1, {}, 1)});
    EXPECT_EQ(pids(monitor.topMemoryProcesses()), std::vector<qint32>{1});
}

TEST_F(ProcessMonitorTest, NothingIsMeasuredWhenTheClockStoodStillOrWentBack) {
    sample({process(1, {})});
    sample({process(1, {.user = second})}, 0);
    EXPECT_EQ(usageOf(1), 0);
    sample({process(1, {.user = 2 * second})}, -60);
    EXPECT_EQ(usageOf(1), 0);
    sample({process(1, {.user = 3 * second})}, 10);
    EXPECT_DOUBLE_EQ(usageOf(1), 10);
}

TEST_F(ProcessMonitorTest, TheFiveHeaviestAreListedInDescendingOrder) {
    std::vector<ProcessRecord> first;
    std::vector<ProcessRecord> then;
    for (std::int32_t pid = 1; pid <= 8; ++pid) {
        const auto weight = static_cast<std::uint64_t>((pid * 5) % 8); // 5 2 7 4 1 6 3 0
        first.push_back(process(pid, {}));
        then.push_back(process(pid, {.user = weight * second / 10}, (7 - weight) * 1024));
    }
    sample(first);
    sample(then);
    EXPECT_EQ(pids(monitor.topCPUProcesses()), (std::vector<qint32>{3, 6, 1, 4, 7}));
    EXPECT_EQ(pids(monitor.topMemoryProcesses()), (std::vector<qint32>{8, 5, 2, 7, 4}));
}

TEST_F(ProcessMonitorTest, EqualProcessesKeepTheOrderOfTheListing) {
    const std::vector listing{process(30, {}, 5), process(10, {}, 5), process(20, {}, 9), process(50, {}, 5),
                              process(40, {}, 5), process(60, {}, 5), process(5, {}, 5)};
    sample(listing);
    EXPECT_EQ(pids(monitor.topCPUProcesses()), (std::vector<qint32>{30, 10, 20, 50, 40}));
    EXPECT_EQ(pids(monitor.topMemoryProcesses()), (std::vector<qint32>{20, 30, 10, 50, 40}));
}

TEST_F(ProcessMonitorTest, FewerThanFiveProcessesMakeShorterLists) {
    sample({process(1, {}, 1), process(2, {}, 2)});
    EXPECT_EQ(pids(monitor.topCPUProcesses()), (std::vector<qint32>{1, 2}));
    EXPECT_EQ(pids(monitor.topMemoryProcesses()), (std::vector<qint32>{2, 1}));
}

TEST_F(ProcessMonitorTest, NoProcessesMakeEmptyLists) {
    sample({process(1, {})});
    sample({});
    EXPECT_TRUE(monitor.topCPUProcesses().isEmpty());
    EXPECT_TRUE(monitor.topMemoryProcesses().isEmpty());
}

TEST_F(ProcessMonitorTest, AFailedListingEmptiesTheListsButForgetsNoTimes) {
    sample({process(1, {})}, 5);
    clock.advance(std::chrono::seconds(5));
    source.processes.reset();
    monitor.update();
    EXPECT_TRUE(monitor.topCPUProcesses().isEmpty());
    EXPECT_TRUE(monitor.topMemoryProcesses().isEmpty());
    sample({process(1, {.user = 2 * second})}, 5);
    EXPECT_DOUBLE_EQ(usageOf(1), 20);
}

TEST_F(ProcessMonitorTest, EveryFieldOfARecordIsPublishedUnderItsName) {
    source.totalMemory = 4096;
    ProcessMonitor later(source, clock.reader());
    source.processes = std::vector{ProcessRecord{.pid = 42, .name = "na\xC3\xAFve", .residentBytes = 1024}};
    later.update();
    const ProcessInfo info = later.topCPUProcesses().front();
    const QMetaObject& fields = ProcessInfo::staticMetaObject;
    const auto read = [&](const char* name) {
        return fields.property(fields.indexOfProperty(name)).readOnGadget(&info);
    };
    ASSERT_EQ(fields.propertyCount(), 5);
    EXPECT_EQ(read("pid").toInt(), 42);
    EXPECT_EQ(read("name").toString(), QStringLiteral(u"na\u00EFve"));
    EXPECT_EQ(read("cpuUsage").toDouble(), 0);
    EXPECT_EQ(read("memoryBytes").toULongLong(), 1024u);
    EXPECT_EQ(read("memoryPercent").toDouble(), 25);
}

TEST_F(ProcessMonitorTest, TheListByUsageIsPublishedBeforeTheListByMemory) {
    std::vector<std::string> events;
    QObject::connect(&monitor, &ProcessMonitor::topCPUProcessesChanged, [&] {
        events.push_back("usage, memory list of " + std::to_string(monitor.topMemoryProcesses().size()));
    });
    QObject::connect(&monitor, &ProcessMonitor::topMemoryProcessesChanged, [&] {
        events.push_back("memory, usage list of " + std::to_string(monitor.topCPUProcesses().size()));
    });
    sample({process(1, {}), process(2, {})});
    EXPECT_EQ(events, (std::vector<std::string>{"usage, memory list of 0", "memory, usage list of 2"}));
}

TEST_F(ProcessMonitorTest, TheLongestTimesThatASourceGivesDoNotStopTheProgram) {
    constexpr std::uint64_t most = ProcessRecord::maximumNanoseconds;
    sample({process(1, {})});
    sample({process(1, {.user = most, .system = most}, ~std::uint64_t{0})});
    EXPECT_EQ(usageOf(1), 800);
}

TEST(ProcessMonitorDeathTest, TimesWhoseSumOverflowsStopTheProgram) {
    const ProcessTimes earlier{};
    const ProcessTimes later{.userNanoseconds = ~std::uint64_t{0},
                             .systemNanoseconds = 1,
                             .timestamp = earlier.timestamp + std::chrono::seconds(1)};
    EXPECT_DEATH(static_cast<void>(cpuUsageBetween(earlier, later)), "addition");
}

} // namespace
} // namespace orvelle
