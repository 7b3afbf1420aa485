#include "common/example_machines.h"
#include "core/system_monitor.h"
#include "snapshot/sheets.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

/// How many values of the series differ from the one before.
qsizetype changesIn(const QList<double>& series) {
    qsizetype changes = 0;
    for (qsizetype index = 1; index < series.size(); ++index)
        changes += series[index] != series[index - 1] ? 1 : 0;
    return changes;
}

class ExampleMachines : public ::testing::TestWithParam<ExampleMachine> {
protected:
    FreshSettings settings;
    std::unique_ptr<SystemMonitor> monitor = exampleMonitor(GetParam(), settings.store);
};

INSTANTIATE_TEST_SUITE_P(ThatWork, ExampleMachines,
                         ::testing::Values(ExampleMachine::laptop, ExampleMachine::loadedLaptop));

TEST_P(ExampleMachines, HaveAHistoryOfSixtyLivelySamplesOfEverything) {
    for (const QList<double>& history :
         {monitor->cpu().usageHistory(), monitor->memory().pressureHistory(),
          monitor->network().downloadHistory(), monitor->network().uploadHistory(),
          monitor->disk().readHistory(), monitor->disk().writeHistory(), monitor->battery().chargeHistory(),
          monitor->sensor().cpuTempHistory(), monitor->sensor().gpuTempHistory()}) {
        EXPECT_EQ(history.size(), 60);
        EXPECT_GE(changesIn(history), 30);
    }
}

TEST_P(ExampleMachines, HaveSomethingToShowInEveryPlace) {
    EXPECT_EQ(monitor->process().topCPUProcesses().size(), 5);
    EXPECT_GT(monitor->process().topCPUProcesses().last().cpuUsage, 0);
    EXPECT_GT(monitor->process().topMemoryProcesses().last().memoryPercent, 0);
    EXPECT_EQ(monitor->network().interfaces().size(), 2);
    EXPECT_EQ(monitor->disk().volumes().size(), 2);
    EXPECT_GE(monitor->sensor().sensors().size(), 3);
    EXPECT_GE(monitor->sensor().fans().size(), 2);
    EXPECT_GT(monitor->sensor().gpuTemperature(), 0);
    EXPECT_GT(monitor->memory().info().swapUsed, 0U);
    EXPECT_GT(monitor->memory().info().compressed, 0U);
    EXPECT_GT(monitor->cpu().loadAverage15(), 0);
    EXPECT_GT(monitor->battery().battery().wattage, 0);
    EXPECT_GT(monitor->battery().battery().health, 0);
    EXPECT_GT(monitor->battery().battery().cycleCount, 0);
}

TEST(ExampleLaptop, HasPartsOfTheMemoryOfEveryKind) {
    FreshSettings settings;
    const auto monitor = exampleMonitor(ExampleMachine::laptop, settings.store);
    const MemoryMonitorInfo& info = monitor->memory().info();
    const quint64 visible = info.total / 20;
    EXPECT_GE(std::min({info.wired, info.active, info.compressed, info.cached, info.free}), visible);
}

} // namespace
} // namespace orvelle
