#include "hwmon_tree.h"
#include "platform/linux/linux_sensor_source.h"
#include "support/opening_watch.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

/// A laptop whose graphics processor may sleep while a disk and the processor are awake.
class HwmonSleepTest : public ::testing::Test {
protected:
    static constexpr const char* gpuStatus = "sys/devices/pci0000:00/0000:03:00.0/power/runtime_status";

    HwmonTree tree;

    HwmonSleepTest() {
        tree.device("platform/coretemp.0", "platform");
        tree.write("sys/devices/platform/coretemp.0/power/runtime_status", "unsupported\n");
        tree.chip(0, "platform/coretemp.0", "coretemp",
                  {{"temp1_input", "61000"}, {"temp1_label", "Package id 0"}});
        tree.device("pci0000:00/0000:03:00.0", "pci");
        tree.write(gpuStatus, "suspended\n");
        tree.chip(1, "pci0000:00/0000:03:00.0", "amdgpu",
                  {{"temp1_input", "52000"}, {"temp1_label", "edge"}, {"fan1_input", "1250"}});
    }

    [[nodiscard]] static std::size_t sensorCount(LinuxSensorSource& source) {
        static_cast<void>(source.readCPUTemperature());
        return source.readSensors().size();
    }
};

TEST_F(HwmonSleepTest, NoValueFileOfASleepingDeviceIsOpened) {
    OpeningWatch watch(tree.root() / HwmonTree::chipFolder(1));
    LinuxSensorSource source(tree.root());
    for (int sample = 0; sample < 25; ++sample) {
        EXPECT_EQ(source.readCPUTemperature(), 61.0);
        EXPECT_EQ(source.readGPUTemperature(), std::nullopt);
        EXPECT_EQ(source.readSensors().size(), 1u);
        EXPECT_TRUE(source.readFanSpeeds().empty());
    }
    const std::set<std::string> opened = watch.openedFiles();
    EXPECT_FALSE(opened.contains("temp1_input"));
    EXPECT_FALSE(opened.contains("fan1_input"));
    EXPECT_TRUE(opened.contains("name")) << "the watch sees what is opened";
}

TEST_F(HwmonSleepTest, ADeviceThatFallsAsleepIsReadNoMoreAndOneThatWakesIsReadAgain) {
    tree.write(gpuStatus, "active\n");
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sensorCount(source), 2u);
    EXPECT_EQ(source.readGPUTemperature(), 52.0);
    EXPECT_EQ(source.readFanSpeeds(), std::vector<std::int64_t>{1250});

    tree.write(gpuStatus, "suspending\n");
    EXPECT_EQ(sensorCount(source), 1u);
    EXPECT_EQ(source.readGPUTemperature(), std::nullopt);
    EXPECT_TRUE(source.readFanSpeeds().empty());

    tree.write(gpuStatus, "active\n");
    EXPECT_EQ(sensorCount(source), 2u);
    EXPECT_EQ(source.readGPUTemperature(), 52.0);
}

TEST_F(HwmonSleepTest, ADeviceIsGivenTimeToFallAsleepAndShowsItsLastValuesMeanwhile) {
    std::chrono::steady_clock::time_point now{};
    tree.write(gpuStatus, "active\n");
    tree.write("sys/devices/pci0000:00/0000:03:00.0/power/control", "auto\n");
    tree.write("sys/devices/pci0000:00/0000:03:00.0/power/autosuspend_delay_ms", "5000\n");
    LinuxSensorSource source(tree.root(), [&now] { return now; });
    EXPECT_EQ(sensorCount(source), 2u);
    tree.write(HwmonTree::chipFolder(1) + "/temp1_input", "60000");
    tree.write(HwmonTree::chipFolder(0) + "/temp1_input", "70000");
    now += std::chrono::seconds(3);
    EXPECT_EQ(source.readCPUTemperature(), 70.0);
    EXPECT_EQ(source.readGPUTemperature(), 52.0);
    now += std::chrono::seconds(9);
    EXPECT_EQ(source.readCPUTemperature(), 70.0);
    EXPECT_EQ(source.readGPUTemperature(), 60.0);
}

TEST_F(HwmonSleepTest, ADeviceThatLearnsToSleepLaterIsLeftAsleepFromTheNextSearchOn) {
    tree.write(gpuStatus, "unsupported\n");
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sensorCount(source), 2u);
    tree.write(gpuStatus, "suspended\n");
    std::size_t count = 2;
    for (int sample = 0; sample < 10; ++sample)
        count = sensorCount(source);
    EXPECT_EQ(count, 1u);
}

TEST_F(HwmonSleepTest, ASleepingDiskIsNotOpenedThoughItsControllerIsAwake) {
    const std::string disk = "pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0";
    tree.device("pci0000:00/0000:00:17.0", "pci");
    tree.write("sys/devices/pci0000:00/0000:00:17.0/power/runtime_status", "active\n");
    tree.device(disk, "scsi");
    tree.write("sys/devices/" + disk + "/power/runtime_status", "suspended\n");
    tree.chip(2, disk, "drivetemp", {{"temp1_input", "33000"}});
    OpeningWatch watch(tree.root() / HwmonTree::chipFolder(2));
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sensorCount(source), 1u);
    EXPECT_FALSE(watch.openedFiles().contains("temp1_input"));
}

TEST_F(HwmonSleepTest, ADriveIsAsleepWhenThePCIFunctionBehindItsControllerIs) {
    tree.nvme(2, "0000:01:00.0", 0, "Drive", "40000");
    tree.write("sys/devices/pci0000:00/0000:01:00.0/power/runtime_status", "suspended\n");
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sensorCount(source), 1u);
}

TEST_F(HwmonSleepTest, AnUnusedI2CAdapterDoesNotHideTheSensorsBehindIt) {
    const std::string adapter = "pci0000:00/0000:00:1f.4/i2c-0";
    tree.device("pci0000:00/0000:00:1f.4", "pci");
    tree.device(adapter, "i2c");
    tree.write("sys/devices/" + adapter + "/power/runtime_status", "suspended\n");
    tree.device(adapter + "/0-0050", "i2c");
    tree.chip(2, adapter + "/0-0050", "jc42", {{"temp1_input", "33000"}});
    LinuxSensorSource source(tree.root());
    EXPECT_EQ(sensorCount(source), 2u);
}

} // namespace
} // namespace orvelle::linux_platform
