#include "core/memory_monitor.h"
#include "platform/replay/fake_sources.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

class MemoryMonitorTest : public ::testing::Test {
protected:
    const MemoryMonitor::MemoryInfo& updatedWith(const MemoryReading& reading) {
        source.reading = reading;
        monitor.update();
        return monitor.info();
    }

    FakeMemorySource source;
    MemoryMonitor monitor{source};
};

TEST_F(MemoryMonitorTest, ReportsPagesAsBytesAndTakesTheCacheOffUsedMemory) {
    const auto& info = updatedWith({.pageSize = 4096,
                                    .physicalMemory = 4096 * 1000,
                                    .freePages = 100,
                                    .activePages = 300,
                                    .inactivePages = 200,
                                    .wiredPages = 150,
                                    .compressorPages = 50,
                                    .purgeablePages = 40,
                                    .externalPages = 60,
                                    .swapTotal = 9000,
                                    .swapUsed = 5000});
    EXPECT_EQ(info, (MemoryMonitorInfo{.total = 4096 * 1000,
                                       .used = 4096 * 600,
                                       .wired = 4096 * 150,
                                       .compressed = 4096 * 50,
                                       .cached = 4096 * 100,
                                       .free = 4096 * 100,
                                       .active = 4096 * 300,
                                       .inactive = 4096 * 200,
                                       .swapUsed = 5000,
                                       .swapTotal = 9000}));
    EXPECT_EQ(monitor.pressureHistory(), QList<double>{0.5}); // the cache counts off a second time
}

TEST_F(MemoryMonitorTest, AnUnknownTotalGivesNoPressureAndNoDivision) {
    const auto& info = updatedWith({.pageSize = 4096, .physicalMemory = 0, .activePages = 10});
    EXPECT_EQ(info.used, 0u);
    EXPECT_EQ(monitor.pressureHistory(), QList<double>{0.0});
    EXPECT_EQ(usedFraction(info), 0);
}

TEST_F(MemoryMonitorTest, ACacheLargerThanEverythingElseLeavesNothingUsed) {
    const auto& info =
        updatedWith({.pageSize = 1, .physicalMemory = 0, .activePages = 10, .externalPages = 90});
    EXPECT_EQ(info.used, 0u);
    EXPECT_EQ(info.cached, 90u);
}

TEST_F(MemoryMonitorTest, UsedMemoryNeverExceedsTheTotal) {
    EXPECT_EQ(updatedWith({.pageSize = 1, .physicalMemory = 100, .activePages = 500}).used, 100u);
}

TEST_F(MemoryMonitorTest, NoSwapIsReportedAsZeros) {
    const auto& info = updatedWith({.pageSize = 1, .physicalMemory = 100});
    EXPECT_EQ(info.swapTotal, 0u);
    EXPECT_EQ(info.swapUsed, 0u);
}

TEST_F(MemoryMonitorTest, AFailedReadKeepsTheLastReadingAndTheHistory) {
    const MemoryMonitorInfo before = updatedWith({.pageSize = 1, .physicalMemory = 100, .activePages = 50});
    source.reading.reset();
    monitor.update();
    EXPECT_EQ(monitor.info(), before);
    EXPECT_EQ(monitor.pressureHistory().size(), 1);
}

TEST_F(MemoryMonitorTest, HistoryKeepsTheNewestSixtySamples) {
    for (int sample = 0; sample < 61; ++sample)
        updatedWith(
            {.pageSize = 1, .physicalMemory = 100, .activePages = static_cast<std::uint64_t>(sample)});
    ASSERT_EQ(monitor.pressureHistory().size(), 60);
    EXPECT_DOUBLE_EQ(monitor.pressureHistory().first(), 0.01);
    EXPECT_DOUBLE_EQ(monitor.pressureHistory().last(), 0.60);
}

TEST_F(MemoryMonitorTest, ArithmeticThatCannotBeRightStopsTheProcess) {
    EXPECT_DEATH(updatedWith({.pageSize = 4096, .activePages = ~std::uint64_t{0}}), "multiplication");
    EXPECT_DEATH(updatedWith({.pageSize = 1, .physicalMemory = -1}), "conversion");
    EXPECT_DEATH(updatedWith({.pageSize = 1, .physicalMemory = 100, .activePages = 10, .externalPages = 9}),
                 "subtraction");
}

} // namespace
} // namespace orvelle
