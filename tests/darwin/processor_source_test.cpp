#include "core/cpu_monitor.h"
#include "darwin/typical_machine.h"

#include <limits>

namespace orvelle {
namespace {

using simulated::kernel;

class DarwinProcessorSourceTest : public DarwinTest {
protected:
    std::optional<std::vector<CoreTicks>> readTicks() { return host().processor->readTicks(); }
};

TEST_F(DarwinProcessorSourceTest, TakesFourCountersAProcessorInTheKernelsOrder) {
    EXPECT_EQ(readTicks(), (std::vector<CoreTicks>{{.user = 100, .system = 50, .idle = 800, .nice = 10},
                                                   {.user = 200, .system = 60, .idle = 700, .nice = 20}}));
    EXPECT_EQ(takeSystemCalls(), std::vector<std::string>{"host_processor_info"});
}

TEST_F(DarwinProcessorSourceTest, TheWholeCycleTakesThreeCalls) {
    CPUMonitor monitor(*host().processor, host().now);
    EXPECT_EQ(takeSystemCalls(), std::vector<std::string>{"host_processor_info"});
    monitor.updateUsage();
    monitor.updateLoadAverages();
    monitor.updateUptime();
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"host_processor_info", "getloadavg 3", "sysctl kern.boottime"}));
}

TEST_F(DarwinProcessorSourceTest, NoProcessorsInAValidArrayAreAnEmptyList) {
    machine().processors = {.count = 0};
    EXPECT_EQ(readTicks(), std::vector<CoreTicks>{});
}

TEST_F(DarwinProcessorSourceTest, ASuccessWithoutAnArrayIsAFailedRead) {
    machine().processors.hasArray = false;
    EXPECT_FALSE(readTicks());
}

TEST_F(DarwinProcessorSourceTest, AnArrayTooShortForItsProcessorsIsAFailedReadAndStillReleased) {
    machine().processors.words.pop_back();
    EXPECT_FALSE(readTicks());
}

TEST_F(DarwinProcessorSourceTest, WordsBeyondTheLastProcessorAreNotReadButReleased) {
    machine().processors.words.insert(machine().processors.words.end(), 3, -1);
    EXPECT_EQ(readTicks()->size(), 2u);
}

TEST_F(DarwinProcessorSourceTest, ACounterHasThirtyTwoBitsAndNoSign) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    machine().processors = {.count = 1, .words = {0x7fffffff, least, -1, -2}};
    EXPECT_EQ(readTicks()->at(0),
              (CoreTicks{.user = 0x7fffffff, .system = 0x80000000, .idle = 0xffffffff, .nice = 0xfffffffe}));
}

TEST_F(DarwinProcessorSourceTest, AStateOf248DaysIsMeasuredAsBefore) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    machine().processors = {.count = 1, .words = {0, 0, 0x7fffffff - 49, 0}};
    CPUMonitor monitor(*host().processor, host().now);
    machine().processors = {.count = 1, .words = {100, 0, least + 250, 0}};
    monitor.updateUsage();
    EXPECT_EQ(monitor.coreUsages().at(0), (CPUCoreUsage{.id = 0, .user = 0.25, .system = 0, .idle = 0.75}));
}

TEST_F(DarwinProcessorSourceTest, ACounterThatWentBackwardsReachesTheMonitorUnchanged) {
    CPUMonitor monitor(*host().processor, host().now);
    machine().processors = {.count = 1, .words = {90, 80, 810, 10}};
    monitor.updateUsage();
    ASSERT_EQ(monitor.coreUsages().size(), 1);
    EXPECT_EQ(monitor.coreUsages()[0], (CPUCoreUsage{.id = 0, .user = 0, .system = 0.75, .idle = 0.25}));
}

TEST_F(DarwinProcessorSourceTest, ACounterThatBeganAnewAddsNothingOnce) {
    machine().processors = {.count = 1, .words = {0, -16, 1000, 0}};
    CPUMonitor monitor(*host().processor, host().now);
    machine().processors = {.count = 1, .words = {50, 10, 1150, 0}};
    monitor.updateUsage();
    EXPECT_EQ(monitor.coreUsages().at(0), (CPUCoreUsage{.id = 0, .user = 0.25, .system = 0, .idle = 0.75}));
    machine().processors = {.count = 1, .words = {50, 110, 1450, 0}};
    monitor.updateUsage();
    EXPECT_EQ(monitor.coreUsages().at(0), (CPUCoreUsage{.id = 0, .user = 0, .system = 0.25, .idle = 0.75}));
}

TEST_F(DarwinProcessorSourceTest, OneHostPortServesAllReadings) {
    for (int reading = 0; reading < 3; ++reading)
        EXPECT_TRUE(readTicks());
    EXPECT_EQ(kernel().live().ports, 2u) << "one for the processors and one for the memory";
    EXPECT_EQ(kernel().live().pages, 0u);
}

TEST_F(DarwinProcessorSourceTest, AnAverageThatIsLeftOutIsZero) {
    machine().loadAverages = {4.5};
    EXPECT_EQ(host().processor->readLoadAverages(), (std::array<double, 3>{4.5, 0, 0}));
}

TEST_F(DarwinProcessorSourceTest, TheBootTimeIsTheWholeSeconds) {
    EXPECT_EQ(host().processor->readBootTime(), 1767225600);
}

TEST_F(DarwinProcessorSourceTest, ABootTimeOfAnotherSizeIsAFailedRead) {
    machine().setSysctl(simulated::bootTimeName, std::int64_t{1767225600});
    EXPECT_FALSE(host().processor->readBootTime());
    machine().setSysctl(simulated::bootTimeName, std::array<std::int64_t, 3>{1767225600});
    EXPECT_FALSE(host().processor->readBootTime());
}

} // namespace
} // namespace orvelle
