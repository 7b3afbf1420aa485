#include "core/battery_monitor.h"
#include "core/cpu_monitor.h"
#include "core/disk_monitor.h"
#include "core/memory_monitor.h"
#include "core/network_monitor.h"
#include "core/process_monitor.h"
#include "core/sensor_monitor.h"
#include "darwin/typical_machine.h"
#include "platform/host.h"

namespace orvelle {
namespace {

using simulated::kernel;

class DarwinMachineTest : public DarwinTest {};

TEST_F(DarwinMachineTest, TheHostAnswersEveryQuestion) {
    EXPECT_TRUE(host().now);
    EXPECT_TRUE(host().steadyNow);
    EXPECT_TRUE(host().processor->readTicks());
    EXPECT_TRUE(host().memory->read());
    EXPECT_TRUE(host().disk->readVolumes());
    EXPECT_TRUE(host().network->read());
    EXPECT_TRUE(host().battery->readPowerSources());
    EXPECT_TRUE(host().process->readProcesses());
    EXPECT_TRUE(host().sensor->readCPUTemperature());
}

TEST_F(DarwinMachineTest, MakingTheHostTakesNoMoreThanItsPort) {
    const MachineSources machine = makeHostSources();
    EXPECT_EQ(kernel().systemCalls(), (std::vector<std::string>{"mach_host_self", "mach_host_self"}));
}

TEST_F(DarwinMachineTest, WithoutItsPortTheHostAnswersTheRest) {
    kernel().failCallsTo("mach_host_self");
    EXPECT_FALSE(host().processor->readTicks());
    EXPECT_FALSE(host().memory->read());
    EXPECT_TRUE(host().processor->readBootTime());
    EXPECT_TRUE(host().network->read());
}

TEST_F(DarwinMachineTest, EveryCycleMakesTheSameNumberOfCallsAndHoldsNothingBetween) {
    MachineSources& sources = host();
    CPUMonitor cpu(*sources.processor, sources.now);
    MemoryMonitor memory(*sources.memory);
    DiskMonitor disk(*sources.disk, sources.now);
    NetworkMonitor network(*sources.network, sources.now);
    BatteryMonitor battery(*sources.battery);
    ProcessMonitor process(*sources.process, sources.now);
    SensorMonitor sensor(*sources.sensor);
    sensor.update();      // connects to the controller
    disk.updateVolumes(); // asks for the purgeable space
    static_cast<void>(takeSystemCalls());
    for (int cycle = 0; cycle < 3; ++cycle) {
        cpu.updateUsage();
        cpu.updateLoadAverages();
        cpu.updateUptime();
        EXPECT_EQ(takeSystemCalls().size(), 3u);
        memory.update();
        EXPECT_EQ(takeSystemCalls().size(), 3u);
        disk.updateVolumes();
        EXPECT_EQ(takeSystemCalls().size(), 1u + 2u) << "the list and each volume";
        disk.updateIO();
        EXPECT_EQ(takeSystemCalls().size(), 1u + 2u * 2u + 1u) << "the iterator, each driver and the end";
        network.update();
        EXPECT_EQ(takeSystemCalls().size(), 1u + 2u) << "the list and each address that is shown";
        battery.update();
        EXPECT_EQ(takeSystemCalls().size(), 3u);
        sensor.update();
        EXPECT_EQ(takeSystemCalls().size(), 2u * (1u + 4u + 19u + 3u))
            << "the first key of the processor reads";
        process.update();
        EXPECT_EQ(takeSystemCalls().size(), 2u + 2u + 2u + 3u + 1u);
        EXPECT_EQ(kernel().live(), (simulated::Live{.ports = 2, .connections = 1}));
    }
}

TEST_F(DarwinMachineTest, ATreeIsAMachineWithNothingAndAsksTheSystemNothing) {
    const WallTime standingStill{};
    const MachineSources tree = makeTreeSources("/", [standingStill] { return standingStill; });
    EXPECT_EQ(tree.now(), standingStill);
    EXPECT_FALSE(tree.processor->readTicks());
    EXPECT_FALSE(tree.processor->readLoadAverages());
    EXPECT_FALSE(tree.processor->readBootTime());
    EXPECT_FALSE(tree.memory->read());
    EXPECT_FALSE(tree.disk->readVolumes());
    EXPECT_FALSE(tree.disk->readCounters());
    EXPECT_FALSE(tree.network->read());
    EXPECT_FALSE(tree.battery->readPowerSources());
    EXPECT_FALSE(tree.battery->readSmartBattery());
    EXPECT_FALSE(tree.sensor->readCPUTemperature());
    EXPECT_FALSE(tree.sensor->readGPUTemperature());
    EXPECT_TRUE(tree.sensor->readSensors().empty());
    EXPECT_TRUE(tree.sensor->readFanSpeeds().empty());
    EXPECT_FALSE(tree.process->readTotalMemory());
    EXPECT_FALSE(tree.process->readProcesses());
    EXPECT_TRUE(kernel().calls().empty());
}

} // namespace
} // namespace orvelle
