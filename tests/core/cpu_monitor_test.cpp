#include "core/cpu_monitor.h"
#include "platform/replay/fake_sources.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class CPUMonitorTest : public ::testing::Test {
protected:
    CPUMonitor& monitorWithBaseline(std::vector<CoreTicks> baseline) {
        source.ticks = std::move(baseline);
        monitor.emplace(source, clock.reader());
        return *monitor;
    }

    CPUMonitor& updatedWith(std::vector<CoreTicks> ticks) {
        source.ticks = std::move(ticks);
        monitor->updateUsage();
        return *monitor;
    }

    FakeProcessorSource source;
    FakeClock clock;
    std::optional<CPUMonitor> monitor;
};

TEST_F(CPUMonitorTest, PublishesNothingBeforeTheFirstUpdate) {
    const CPUMonitor& cpu = monitorWithBaseline({{.user = 1}});
    EXPECT_TRUE(cpu.coreUsages().isEmpty());
    EXPECT_EQ(cpu.totalUsage(), 0);
    EXPECT_TRUE(cpu.usageHistory().isEmpty());
}

TEST_F(CPUMonitorTest, FirstUpdateMeasuresFromTheBaselineOfConstruction) {
    monitorWithBaseline({{.user = 1000, .system = 500, .idle = 100, .nice = 50}});
    const CPUMonitor& cpu = updatedWith({{.user = 1020, .system = 510, .idle = 160, .nice = 60}});
    ASSERT_EQ(cpu.coreUsages().size(), 1);
    EXPECT_EQ(cpu.coreUsages()[0], (CPUCoreUsage{.id = 0, .user = 0.3, .system = 0.1, .idle = 0.6}));
}

TEST_F(CPUMonitorTest, EightHalfBusyCoresAreHalfBusyInAll) {
    monitorWithBaseline(std::vector<CoreTicks>(8));
    const CPUMonitor& cpu = updatedWith(std::vector<CoreTicks>(8, {.user = 50, .idle = 50}));
    EXPECT_DOUBLE_EQ(cpu.totalUsage(), 0.5);
}

TEST_F(CPUMonitorTest, NiceTimeIsUserTimeAndUserAndSystemMakeTheTotal) {
    monitorWithBaseline({{}, {}});
    const CPUMonitor& cpu = updatedWith({{.user = 10, .system = 20, .idle = 60, .nice = 10}, {.idle = 100}});
    EXPECT_DOUBLE_EQ(cpu.userUsage(), 0.1);
    EXPECT_DOUBLE_EQ(cpu.systemUsage(), 0.1);
    EXPECT_DOUBLE_EQ(cpu.userUsage() + cpu.systemUsage(), cpu.totalUsage());
}

TEST_F(CPUMonitorTest, ACounterThatWentBackwardsContributesNothing) {
    monitorWithBaseline({{.user = 100, .system = 100, .idle = 100}});
    const CPUMonitor& cpu = updatedWith({{.user = 90, .system = 130, .idle = 110}});
    EXPECT_EQ(cpu.coreUsages()[0], (CPUCoreUsage{.id = 0, .user = 0, .system = 0.75, .idle = 0.25}));
}

TEST_F(CPUMonitorTest, ACoreWithoutAnyTickIsNotEvenIdle) {
    monitorWithBaseline({{.user = 5, .system = 5, .idle = 5}});
    const CPUMonitor& cpu = updatedWith({{.user = 5, .system = 5, .idle = 5}});
    EXPECT_EQ(cpu.coreUsages()[0], (CPUCoreUsage{.id = 0}));
}

TEST_F(CPUMonitorTest, ACoreThatAppearsReportsNothingForOneSample) {
    monitorWithBaseline({{}});
    const CPUMonitor& first = updatedWith({{.user = 10}, {.user = 10}});
    EXPECT_EQ(first.coreUsages()[1], (CPUCoreUsage{.id = 1}));
    EXPECT_DOUBLE_EQ(first.totalUsage(), 0.5);
    const CPUMonitor& second = updatedWith({{.user = 10, .idle = 10}, {.user = 20}});
    EXPECT_EQ(second.coreUsages()[1], (CPUCoreUsage{.id = 1, .user = 1}));
}

TEST_F(CPUMonitorTest, ACoreThatVanishesLeavesTheList) {
    monitorWithBaseline({{}, {}});
    EXPECT_EQ(updatedWith({{.user = 10}}).coreUsages().size(), 1);
}

TEST_F(CPUMonitorTest, AFailedReadChangesNothingAndKeepsTheBaseline) {
    monitorWithBaseline({{}});
    updatedWith({{.user = 10}});
    source.ticks.reset();
    monitor->updateUsage();
    EXPECT_DOUBLE_EQ(monitor->totalUsage(), 1);
    EXPECT_EQ(monitor->usageHistory().size(), 1);
    EXPECT_DOUBLE_EQ(updatedWith({{.user = 20, .idle = 30}}).totalUsage(), 0.25);
}

TEST_F(CPUMonitorTest, AFailedBaselineMakesTheFirstUpdateTheBaseline) {
    monitor.emplace(source, clock.reader());
    EXPECT_EQ(updatedWith({{.user = 10}}).totalUsage(), 0);
    EXPECT_DOUBLE_EQ(updatedWith({{.user = 20}}).totalUsage(), 1);
}

TEST_F(CPUMonitorTest, AnEmptyListPublishesZerosAndForgetsTheBaseline) {
    monitorWithBaseline({{}});
    updatedWith({{.user = 10}});
    const CPUMonitor& cpu = updatedWith({});
    EXPECT_TRUE(cpu.coreUsages().isEmpty());
    EXPECT_EQ(cpu.totalUsage(), 0);
    EXPECT_EQ(cpu.usageHistory(), (QList<double>{1, 0}));
    EXPECT_EQ(updatedWith({{.user = 20}}).totalUsage(), 0);
}

TEST_F(CPUMonitorTest, PublishesInAFixedOrder) {
    CPUMonitor& cpu = monitorWithBaseline({{}});
    QStringList order;
    const auto record = [&](void (CPUMonitor::*signal)(), const char* name) {
        QObject::connect(&cpu, signal, &cpu, [&order, name] { order << QLatin1String(name); });
    };
    record(&CPUMonitor::coreUsagesChanged, "cores");
    record(&CPUMonitor::userUsageChanged, "user");
    record(&CPUMonitor::systemUsageChanged, "system");
    record(&CPUMonitor::totalUsageChanged, "total");
    record(&CPUMonitor::usageHistoryChanged, "history");
    updatedWith({{.user = 1}});
    EXPECT_EQ(order.join(QLatin1Char(' ')), QStringLiteral("cores user system total history"));
}

TEST_F(CPUMonitorTest, HistoryKeepsTheNewestSixtySamples) {
    monitorWithBaseline({{}});
    updatedWith({{.user = 1}});
    for (std::uint64_t sample = 1; sample <= 60; ++sample)
        updatedWith({{.user = 1, .idle = sample}});
    EXPECT_EQ(monitor->usageHistory(), QList<double>(60, 0.0));
}

TEST_F(CPUMonitorTest, MissingLoadAveragesArePublishedAsZeros) {
    CPUMonitor& cpu = monitorWithBaseline({{}});
    source.loadAverages = {1.5, 1.25, 1};
    cpu.updateLoadAverages();
    EXPECT_EQ(cpu.loadAverage1(), 1.5);
    EXPECT_EQ(cpu.loadAverage5(), 1.25);
    EXPECT_EQ(cpu.loadAverage15(), 1);
    source.loadAverages.reset();
    cpu.updateLoadAverages();
    EXPECT_EQ(cpu.loadAverage1() + cpu.loadAverage5() + cpu.loadAverage15(), 0);
}

TEST_F(CPUMonitorTest, UptimeIsTheTimeSinceBootAndSurvivesAFailedRead) {
    CPUMonitor& cpu = monitorWithBaseline({{}});
    source.bootTime = FakeClock::replayStartSeconds - 90061;
    cpu.updateUptime();
    EXPECT_DOUBLE_EQ(cpu.uptime(), 90061);
    source.bootTime.reset();
    clock.advance(std::chrono::seconds(3));
    cpu.updateUptime();
    EXPECT_DOUBLE_EQ(cpu.uptime(), 90061);
}

TEST_F(CPUMonitorTest, UptimeIsNeverNegativeWhenTheWallClockStandsBeforeTheStart) {
    CPUMonitor& cpu = monitorWithBaseline({{}});
    source.bootTime = FakeClock::replayStartSeconds - 100;
    cpu.updateUptime();
    clock.advance(std::chrono::hours(-24 * 365));
    cpu.updateUptime();
    EXPECT_EQ(cpu.uptime(), 0);
}

TEST_F(CPUMonitorTest, TheLargestTicksOfASourceDoNotStopTheProcess) {
    const CoreTicks largest{.user = CoreTicks::maximumTicks,
                            .system = CoreTicks::maximumTicks,
                            .idle = CoreTicks::maximumTicks,
                            .nice = CoreTicks::maximumTicks};
    monitorWithBaseline({{}});
    EXPECT_DOUBLE_EQ(updatedWith({largest}).totalUsage(), 0.75);
}

TEST_F(CPUMonitorTest, AnOverflowingTickSumStopsTheProcess) {
    monitorWithBaseline({{}});
    EXPECT_DEATH(updatedWith({{.user = ~std::uint64_t{0}, .nice = 1}}), "addition out of range");
}

} // namespace
} // namespace orvelle
