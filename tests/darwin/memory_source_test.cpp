#include "core/memory_monitor.h"
#include "darwin/typical_machine.h"

#include <array>
#include <random>

namespace orvelle {
namespace {

class DarwinMemorySourceTest : public DarwinTest {};

TEST_F(DarwinMemorySourceTest, AsksThreeQuestionsInTheirOrder) {
    EXPECT_EQ(host().memory->read(), typicalMemoryReading());
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"sysctl hw.memsize", "host_statistics64", "sysctl vm.swapusage"}));
}

TEST_F(DarwinMemorySourceTest, WithoutPageCountersSwapIsNotAskedFor) {
    simulated::kernel().failCallsTo("host_statistics64");
    EXPECT_FALSE(host().memory->read());
    EXPECT_EQ(takeSystemCalls(), (std::vector<std::string>{"sysctl hw.memsize", "host_statistics64"}));
}

TEST_F(DarwinMemorySourceTest, ALongerRecordIsReadUpToTheKnownCounters) {
    machine().pages.wordCount = 40;
    EXPECT_EQ(host().memory->read(), typicalMemoryReading());
}

TEST_F(DarwinMemorySourceTest, AShorterRecordCountsWhileItHoldsEveryUsedCounter) {
    machine().pages.wordCount = 35;
    EXPECT_EQ(host().memory->read(), typicalMemoryReading());
    for (const std::uint32_t wordCount : {34u, 15u, 0u}) {
        machine().pages.wordCount = wordCount;
        EXPECT_FALSE(host().memory->read()) << wordCount;
    }
}

TEST_F(DarwinMemorySourceTest, ValuesOfAnotherSizeAreZero) {
    machine().setSysctl(simulated::physicalMemoryName, std::uint32_t{1});
    machine().setSysctl(simulated::swapUsageName, std::array<std::uint64_t, 5>{9, 9, 9, 9, 9});
    MemoryReading expected = typicalMemoryReading();
    expected.physicalMemory = 0;
    expected.swapTotal = 0;
    expected.swapUsed = 0;
    EXPECT_EQ(host().memory->read(), expected);
}

TEST_F(DarwinMemorySourceTest, NoSwapInUseIsZeros) {
    machine().setSysctl(simulated::swapUsageName, std::array<std::uint64_t, 4>{});
    EXPECT_EQ(host().memory->read()->swapTotal, 0u);
    EXPECT_EQ(host().memory->read()->swapUsed, 0u);
}

TEST_F(DarwinMemorySourceTest, AMemorySizeBelowZeroKeepsWhatIsPublished) {
    MemoryMonitor monitor(*host().memory);
    monitor.update();
    machine().setSysctl(simulated::physicalMemoryName, std::int64_t{-1});
    machine().pages.active = 6000;
    EXPECT_FALSE(host().memory->read());
    monitor.update();
    EXPECT_EQ(monitor.info().total, 8 * gibibyte);
    EXPECT_EQ(monitor.info().active, std::uint64_t{5000} * 16384);
    EXPECT_EQ(monitor.pressureHistory().size(), 1);
}

TEST_F(DarwinMemorySourceTest, TheLargestCountersDoNotReachTheMonitorsLimits) {
    constexpr std::uint32_t most = 0xffffffff;
    machine().pages = {.free = most, .active = most, .inactive = most, .wired = most, .compressor = most};
    MemoryMonitor monitor(*host().memory);
    monitor.update();
    EXPECT_EQ(monitor.info().used, 8 * gibibyte);
    EXPECT_EQ(monitor.info().free, std::uint64_t{most} * 16384);
}

TEST_F(DarwinMemorySourceTest, ACacheOfHalfOfTheHeldPagesIsReportedWhole) {
    machine().pages = {.active = 6000,
                       .inactive = 4000,
                       .wired = 500,
                       .compressor = 500,
                       .purgeable = 500,
                       .external = 5000};
    EXPECT_EQ(host().memory->read()->purgeablePages, 500u);
    EXPECT_EQ(host().memory->read()->externalPages, 5000u);
    MemoryMonitor monitor(*host().memory);
    monitor.update();
    EXPECT_EQ(monitor.info().used, monitor.info().cached);
    EXPECT_EQ(monitor.pressureHistory(), QList<double>{0});
}

TEST_F(DarwinMemorySourceTest, OfALargerCacheFilesAreLeftOutBeforePurgeablePages) {
    machine().pages = {.active = 6000,
                       .inactive = 4000,
                       .wired = 500,
                       .compressor = 500,
                       .purgeable = 800,
                       .external = 9000};
    EXPECT_EQ(host().memory->read()->purgeablePages, 800u);
    EXPECT_EQ(host().memory->read()->externalPages, 5500u - 800u);
    machine().pages.purgeable = 7000;
    EXPECT_EQ(host().memory->read()->purgeablePages, 5500u);
    EXPECT_EQ(host().memory->read()->externalPages, 0u);
}

TEST_F(DarwinMemorySourceTest, TheCacheIsNeverMoreThanTheMachinesMemory) {
    constexpr std::uint32_t most = 0xffffffff;
    machine().pages = {.active = most, .inactive = most, .wired = most, .purgeable = most, .external = most};
    const std::optional<MemoryReading> reading = host().memory->read();
    EXPECT_EQ(reading->purgeablePages * 16384, 8 * gibibyte);
    EXPECT_EQ(reading->externalPages, 0u);
}

TEST_F(DarwinMemorySourceTest, NoKernelCountersStopTheMonitor) {
    std::mt19937 engine(20260101);
    const auto counter = [&engine] {
        constexpr std::array<std::uint32_t, 6> kinds{0, 1, 1000, 600'000, 0x7fffffff, 0xffffffff};
        const std::uint32_t most = kinds[engine() % kinds.size()];
        return most == 0 ? 0 : static_cast<std::uint32_t>(engine() % (std::uint64_t{most} + 1));
    };
    MemoryMonitor monitor(*host().memory);
    for (int count = 0; count < 2000; ++count) {
        machine().pages = {counter(), counter(), counter(), counter(), counter(), counter(), counter()};
        monitor.update();
        ASSERT_GE(monitor.info().used, monitor.info().cached);
    }
}

TEST_F(DarwinMemorySourceTest, ThePublishedRecordFollowsFromTheCounters) {
    MemoryMonitor monitor(*host().memory);
    monitor.update();
    constexpr std::uint64_t page = 16384;
    EXPECT_EQ(monitor.info().cached, 1600 * page);
    EXPECT_EQ(monitor.info().used, (5000 + 4000 + 2000 + 500 - 1600) * page);
    EXPECT_EQ(monitor.info().total, 8 * gibibyte);
}

} // namespace
} // namespace orvelle
