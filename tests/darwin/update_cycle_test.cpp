#include "core/system_monitor.h"
#include "darwin/typical_machine.h"
#include "platform/host.h"
#include "settings/settings_store.h"

#include <QTemporaryDir>

#include <iostream>
#include <numeric>

namespace orvelle {
namespace {

using simulated::kernel;
using CallCounts = std::map<std::string, std::size_t>;

/// The calls of a cycle on the typical machine: 2 processors, 2 volumes, 2 disks, 2 addresses to show, a
/// battery and a controller that answers the first key of the processor's temperature.
const CallCounts callsOfEveryCycle{
    {"host_processor_info", 1},
    {"getloadavg", 1},
    {"sysctl", 3}, // boot time, physical memory, swap
    {"host_statistics64", 1},
    {"mountedVolumeURLs", 1},
    {"resourceValues", 2},
    {"IOServiceGetMatchingServices", 1},
    {"IOIteratorNext", 3},                    // each disk and the end of the list
    {"IORegistryEntryCreateCFProperties", 3}, // each disk and the battery
    {"getifaddrs", 1},
    {"getnameinfo", 2},
    {"IOPSCopyPowerSourcesInfo", 1},
    {"IOServiceGetMatchingService", 1}, // the battery
    // Two for each key: 1 of 10 of the processor, 4 of the graphics, 19 with names, 3 fans.
    {"IOConnectCallStructMethod", 2 * (1 + 4 + 19 + 3)},
};

/// What every third cycle asks on top, of 4 processes that have a pid, one of them another user's.
const CallCounts callsForProcesses{
    {"proc_listpids", 2}, {"proc_pidinfo", 4}, {"proc_pidpath", 3}, {"proc_name", 1}};

CallCounts sum(CallCounts counts, const CallCounts& more) {
    for (const auto& [call, count] : more)
        counts[call] += count;
    return counts;
}

class DarwinUpdateCycleTest : public DarwinTest {
protected:
    static CallCounts takeCallCounts() {
        CallCounts counts;
        for (const std::string& call : takeSystemCalls())
            ++counts[call.substr(0, call.find(' '))];
        return counts;
    }
    static std::size_t total(const CallCounts& counts) {
        return std::accumulate(counts.begin(), counts.end(), std::size_t{0},
                               [](std::size_t sum, const auto& entry) { return sum + entry.second; });
    }

    QTemporaryDir directory;
    SettingsStore settings{directory.filePath(QStringLiteral("settings.ini"))};
};

TEST_F(DarwinUpdateCycleTest, MakesNoCallThatItDoesNotNeed) {
    SystemMonitor monitor(makeHostSources(), settings);
    monitor.updateCycle(); // opens the controller
    static_cast<void>(takeCallCounts());
    for (int cycle = 2; cycle <= 7; ++cycle) {
        monitor.updateCycle();
        const bool readsProcesses = monitor.updateCycleCount() % 3 == 1;
        const CallCounts counts = takeCallCounts();
        EXPECT_EQ(counts, readsProcesses ? sum(callsOfEveryCycle, callsForProcesses) : callsOfEveryCycle)
            << "in cycle " << cycle;
        std::cout << "cycle " << cycle << ": " << total(counts) << " calls into the system\n";
    }
}

TEST_F(DarwinUpdateCycleTest, ConnectsToTheControllerInTheFirstCycleAndOnlyThen) {
    SystemMonitor monitor(makeHostSources(), settings);
    EXPECT_EQ(takeCallCounts()["IOServiceOpen"], 0u);
    monitor.updateCycle();
    EXPECT_EQ(takeCallCounts()["IOServiceOpen"], 1u);
    monitor.updateCycle();
    EXPECT_EQ(takeCallCounts()["IOServiceOpen"], 0u);
    EXPECT_EQ(monitor.sensor().cpuTemperature(), 50);
}

TEST_F(DarwinUpdateCycleTest, RunsWithoutAControllerAndDoesNotAskForItAgain) {
    machine().services.erase("AppleSMC");
    SystemMonitor monitor(makeHostSources(), settings);
    monitor.updateCycle();
    static_cast<void>(takeCallCounts());
    monitor.updateCycle();
    CallCounts expected = callsOfEveryCycle;
    expected.erase("IOConnectCallStructMethod");
    EXPECT_EQ(takeCallCounts(), expected);
}

TEST_F(DarwinUpdateCycleTest, HoldsNothingBetweenCyclesButItsPortsAndTheController) {
    SystemMonitor monitor(makeHostSources(), settings);
    for (int cycle = 0; cycle < 4; ++cycle) {
        monitor.updateCycle();
        EXPECT_EQ(kernel().live(), (simulated::Live{.ports = 2, .connections = 1}));
    }
}

} // namespace
} // namespace orvelle
