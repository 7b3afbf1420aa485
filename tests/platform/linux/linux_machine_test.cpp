#include "platform/host.h"
#include "platform/replay/fake_sources.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <ctime>

namespace orvelle {
namespace {

class LinuxMachineTest : public ::testing::Test {
protected:
    TemporaryTree tree;
    FakeClock clock;
    MachineSources machine = makeTreeSources(tree.root(), clock.reader());
};

TEST_F(LinuxMachineTest, NothingOfTheHostLeaksIntoAnEmptyDirectory) {
    EXPECT_FALSE(machine.processor->readTicks());
    EXPECT_FALSE(machine.processor->readLoadAverages());
    EXPECT_FALSE(machine.processor->readBootTime());
    EXPECT_FALSE(machine.memory->read());
    EXPECT_FALSE(machine.disk->readVolumes());
    EXPECT_FALSE(machine.disk->readCounters());
    EXPECT_FALSE(machine.network->read());
    const auto powerSources = machine.battery->readPowerSources();
    EXPECT_TRUE(powerSources && powerSources->empty()) << "to have no battery is no failure";
    EXPECT_FALSE(machine.battery->readSmartBattery());
    EXPECT_FALSE(machine.sensor->readCPUTemperature());
    EXPECT_FALSE(machine.sensor->readGPUTemperature());
    EXPECT_TRUE(machine.sensor->readSensors().empty());
    EXPECT_TRUE(machine.sensor->readFanSpeeds().empty());
    EXPECT_FALSE(machine.process->readTotalMemory());
    EXPECT_FALSE(machine.process->readProcesses());
}

TEST_F(LinuxMachineTest, ATextThatTurnsEmptyOrVanishesIsAFailedReadAndComesBack) {
    tree.write("proc/stat", "cpu0 1 2 3 4\nbtime 77\n");
    EXPECT_TRUE(machine.processor->readTicks());
    EXPECT_EQ(machine.processor->readBootTime(), 77);
    tree.write("proc/stat", "");
    EXPECT_FALSE(machine.processor->readTicks());
    EXPECT_FALSE(machine.processor->readBootTime());
    tree.write("proc/stat", "cpu0 1 2 3 5\n");
    EXPECT_EQ(machine.processor->readTicks()->at(0).idle, 5u);
}

TEST_F(LinuxMachineTest, ZfsAndCompressedDisksAreFoundWhereTheyExist) {
    tree.write("proc/meminfo", "MemTotal: 1048576 kB\nMemFree: 1000 kB\n");
    tree.write("proc/spl/kstat/zfs/arcstats", "name type data\nsize 4 409600\nc_min 4 204800\n");
    tree.write("sys/block/zram0/mm_stat", "1 2 40960\n");
    tree.write("sys/block/zram12/mm_stat", "1 2 4096\n");
    tree.write("sys/block/sda/size", "1\n");
    const auto reading = machine.memory->read();
    ASSERT_TRUE(reading);
    EXPECT_EQ(reading->wiredPages, 100u);
    EXPECT_EQ(reading->purgeablePages, 50u);
    EXPECT_EQ(reading->compressorPages, 11u);
}

TEST(HostMachine, HasAClockThatNobodySets) {
    const WallClock steady = makeHostSources().steadyNow;
    ASSERT_TRUE(steady);
    timespec sinceStart{};
    ASSERT_EQ(::clock_gettime(CLOCK_BOOTTIME, &sinceStart), 0); // counts while the machine sleeps, too
    EXPECT_NEAR(secondsBetween(WallTime{}, steady()), static_cast<double>(sinceStart.tv_sec), 60);
    const WallTime earlier = steady();
    EXPECT_LE(earlier, steady());
}

TEST(HostMachine, AnswersWithPlausibleValues) {
    const MachineSources host = makeHostSources();
    EXPECT_FALSE(host.processor->readTicks()->empty());
    EXPECT_TRUE(host.processor->readLoadAverages());
    EXPECT_GT(*host.processor->readBootTime(), 0);
    EXPECT_GT(host.memory->read()->physicalMemory, 1 << 20);
}

} // namespace
} // namespace orvelle
