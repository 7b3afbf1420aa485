#include "core/system_monitor.h"
#include "platform/replay/fake_sources.h"
#include "settings/settings_store.h"

#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace orvelle {
namespace {

class SystemMonitorTest : public ::testing::Test {
protected:
    [[nodiscard]] std::ptrdiff_t timerCount() const {
        return std::ranges::count_if(monitor.findChildren<QTimer*>(), &QTimer::isActive);
    }

    QTemporaryDir directory;
    SettingsStore settings{directory.filePath(QStringLiteral("settings.conf"))};
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

TEST_F(SystemMonitorTest, StartSamplesAtOnceAndAnnouncesTheChange) {
    int announcements = 0;
    QObject::connect(&monitor, &SystemMonitor::changed, &monitor, [&] { ++announcements; });
    machine.memory->reading = MemoryReading{.pageSize = 1, .physicalMemory = 100};
    monitor.start();
    EXPECT_EQ(monitor.updateCycleCount(), 1);
    EXPECT_EQ(announcements, 1);
    EXPECT_EQ(monitor.memory().info().total, 100u);
}

TEST_F(SystemMonitorTest, NeverSamplesFasterThanEveryThreeSeconds) {
    for (const auto& [setting, effective] :
         {std::pair{1.0, 3.0}, {2.0, 3.0}, {3.0, 3.0}, {5.0, 5.0}, {10.0, 10.0}}) {
        settings.setUpdateInterval(setting);
        monitor.restart();
        EXPECT_EQ(monitor.activeInterval(), effective) << setting;
    }
}

TEST_F(SystemMonitorTest, NeverSamplesEarly) {
    monitor.start();
    EXPECT_EQ(monitor.findChild<QTimer*>()->timerType(), Qt::PreciseTimer);
}

TEST_F(SystemMonitorTest, RestartLeavesExactlyOneTimerAndSamplesOnceMore) {
    monitor.start();
    settings.setUpdateInterval(10);
    monitor.restart();
    EXPECT_EQ(timerCount(), 1);
    EXPECT_EQ(monitor.updateCycleCount(), 2);
}

TEST_F(SystemMonitorTest, StartingTwiceWithoutStoppingLeavesTwoTimers) {
    monitor.start();
    monitor.start();
    EXPECT_EQ(timerCount(), 2);
}

TEST_F(SystemMonitorTest, StopEndsSamplingAndKeepsTheCount) {
    monitor.start();
    monitor.stop();
    EXPECT_EQ(timerCount(), 0);
    EXPECT_EQ(monitor.activeInterval(), std::nullopt);
    EXPECT_EQ(monitor.updateCycleCount(), 1);
}

TEST_F(SystemMonitorTest, SurvivesAMachineThatAnswersNothing) {
    monitor.updateCycle();
    monitor.updateCycle();
    EXPECT_EQ(monitor.updateCycleCount(), 2);
    EXPECT_TRUE(monitor.cpu().usageHistory().isEmpty());
}

TEST_F(SystemMonitorTest, SamplesEveryMonitorInAFixedOrderBeforeItAnnouncesTheChange) {
    machine.processor->ticks = std::vector<CoreTicks>(1);
    machine.processor->bootTime = 1;
    machine.memory->reading = MemoryReading{.pageSize = 1, .physicalMemory = 100};
    machine.disk->counters = std::vector<DiskCounters>{{.bytesRead = 1}};
    machine.network->entries = std::vector<InterfaceEntry>{{.name = "eth0", .isUp = true}};
    monitor.updateCycle(); // the disk's speed needs a baseline
    monitor.updateCycle();
    monitor.updateCycle();
    machine.clock.advance(std::chrono::seconds(3));

    QStringList order;
    const auto note = [&order, this](auto* object, auto signal, const char* name) {
        QObject::connect(object, signal, &monitor, [&order, name] { order << QLatin1String(name); });
    };
    note(&monitor.cpu(), &CPUMonitor::coreUsagesChanged, "usage");
    note(&monitor.cpu(), &CPUMonitor::loadAverage1Changed, "load");
    note(&monitor.cpu(), &CPUMonitor::uptimeChanged, "uptime");
    note(&monitor.memory(), &MemoryMonitor::infoChanged, "memory");
    note(&monitor.disk(), &DiskMonitor::volumesChanged, "volumes");
    note(&monitor.disk(), &DiskMonitor::readHistoryChanged, "disk");
    note(&monitor.network(), &NetworkMonitor::interfacesChanged, "network");
    note(&monitor.battery(), &BatteryMonitor::batteryChanged, "battery");
    note(&monitor.sensor(), &SensorMonitor::fansChanged, "sensor");
    note(&monitor.process(), &ProcessMonitor::topCPUProcessesChanged, "process");
    note(&monitor, &SystemMonitor::changed, "changed");
    monitor.updateCycle();
    EXPECT_EQ(order.join(QLatin1Char(' ')),
              QStringLiteral("usage load uptime memory volumes disk network battery sensor process changed"));
}

TEST_F(SystemMonitorTest, TheTimerRunsOneCycleEachTime) {
    monitor.start();
    auto* timer = monitor.findChild<QTimer*>();
    ASSERT_NE(timer, nullptr);
    ASSERT_TRUE(QMetaObject::invokeMethod(timer, "timeout"));
    EXPECT_EQ(monitor.updateCycleCount(), 2);
}

/// A machine that also has a clock that nobody sets. In every three seconds its disk reads 3000 bytes, its
/// interface receives as many, and its only process keeps one core busy.
class SteadyClockTest : public ::testing::Test {
protected:
    void sampleAfter(std::uint64_t threeSeconds) {
        machine.disk->counters = std::vector<DiskCounters>{{.bytesRead = 3000 * threeSeconds}};
        machine.network->entries =
            std::vector<InterfaceEntry>{{.name = "eth0", .isUp = true, .bytesIn = 3000 * threeSeconds}};
        machine.process->processes = std::vector<ProcessRecord>{
            {.pid = 1, .name = "busy", .userNanoseconds = 3'000'000'000 * threeSeconds}};
        monitor.updateCycle();
    }

    QTemporaryDir directory;
    SettingsStore settings{directory.filePath(QStringLiteral("settings.conf"))};
    FakeMachine machine;
    FakeClock steady;
    SystemMonitor monitor{[this] {
                              MachineSources sources = machine.sources();
                              sources.steadyNow = steady.reader();
                              return sources;
                          }(),
                          settings};
};

TEST_F(SteadyClockTest, SpeedsAreRightWhileTheWallClockIsSetForwardAndBack) {
    constexpr std::chrono::duration<double> tenYears(3600.0 * 24 * 3650);
    std::uint64_t passed = 1;
    sampleAfter(passed);
    for (const std::chrono::duration<double> setBy :
         {tenYears, -tenYears, std::chrono::duration<double>(-2.999)}) {
        steady.advance(std::chrono::seconds(3));
        machine.clock.advance(std::chrono::seconds(3) + setBy);
        sampleAfter(++passed);
        EXPECT_DOUBLE_EQ(monitor.disk().diskIO().readSpeed, 1000) << "set by " << setBy.count() << " s";
        EXPECT_DOUBLE_EQ(monitor.network().totalDownloadSpeed(), 1000) << "set by " << setBy.count() << " s";
    }
    EXPECT_DOUBLE_EQ(monitor.process().topCPUProcesses().front().cpuUsage, 100);
}

TEST_F(SystemMonitorTest, ACycleOffTheMainThreadStopsTheProcess) {
    EXPECT_DEATH(std::thread([this] { monitor.updateCycle(); }).join(), "main thread");
}

} // namespace
} // namespace orvelle
