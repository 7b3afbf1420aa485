#include "hwmon_tree.h"
#include "platform/linux/hwmon.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

struct Candidate {
    const char* chip;
    const char* label;
};

TEST(HwmonRules, ProcessorSensorsAreRankedFromTheWholeDieToTheFirmwaresZone) {
    const Candidate inOrder[] = {{"coretemp", "Package id 0"},
                                 {"coretemp", "Package id 1"},
                                 {"coretemp", "Core 0"},
                                 {"cpu_thermal", ""},
                                 {"soc_thermal", ""},
                                 {"thinkpad", "CPU"},
                                 {"acpitz", ""}};
    for (std::size_t next = 1; next < std::size(inOrder); ++next) {
        const auto& [betterChip, betterLabel] = inOrder[next - 1];
        const auto& [chip, label] = inOrder[next];
        EXPECT_LT(cpuTemperatureRank(betterChip, betterLabel), cpuTemperatureRank(chip, label))
            << chip << label;
    }
}

TEST(HwmonRules, AMDsControlTemperatureComesBeforeTheDieAndItsParts) {
    for (const char* chip : {"k10temp", "zenpower"}) {
        EXPECT_LT(cpuTemperatureRank(chip, "Tctl"), cpuTemperatureRank(chip, "Tdie"));
        EXPECT_LT(cpuTemperatureRank(chip, "Tdie"), cpuTemperatureRank(chip, ""));
        EXPECT_LT(cpuTemperatureRank(chip, ""), cpuTemperatureRank(chip, "Tccd1"));
        EXPECT_LT(cpuTemperatureRank(chip, "Tccd1"), cpuTemperatureRank("acpitz", ""));
    }
}

TEST(HwmonRules, OtherPartsAreNoProcessors) {
    for (const char* chip :
         {"nvme", "amdgpu", "iwlwifi_1", "drivetemp", "gpu_thermal", "ddr_thermal", "BAT0", ""})
        EXPECT_EQ(cpuTemperatureRank(chip, "temp"), std::nullopt) << chip;
}

TEST(HwmonRules, KnowsTheGraphicsDrivers) {
    for (const char* chip : {"amdgpu", "nouveau", "xe", "i915"})
        EXPECT_EQ(gpuTemperatureRank(chip), 0) << chip;
    EXPECT_GT(gpuTemperatureRank("gpu_thermal"), gpuTemperatureRank("amdgpu"));
    for (const char* chip : {"coretemp", "xen", "cpu_thermal", ""})
        EXPECT_EQ(gpuTemperatureRank(chip), std::nullopt) << chip;
}

TEST(HwmonRules, TheListBeginsWithProcessorsThenGraphics) {
    EXPECT_EQ(chipGroup("coretemp"), 0);
    EXPECT_EQ(chipGroup("k10temp"), 0);
    EXPECT_EQ(chipGroup("cpu_thermal"), 0);
    EXPECT_EQ(chipGroup("amdgpu"), 1);
    EXPECT_EQ(chipGroup("acpitz"), 2);
    EXPECT_EQ(chipGroup("nvme"), 2);
}

class HwmonDeviceTest : public ::testing::Test {
protected:
    HwmonTree tree;

    /// The device of the only chip, registered on `devicePath`.
    HwmonDevice deviceOf(const std::string& devicePath) {
        tree.chip(5, devicePath, "chip", {{"temp1_input", "40000"}});
        return findHwmonDevice(tree.root(), tree.root() / HwmonTree::chipFolder(5));
    }
};

TEST_F(HwmonDeviceTest, ADriveSitsAtThePCIAddressOfItsController) {
    tree.device("pci0000:00/0000:00:01.1", "pci");
    tree.device("pci0000:00/0000:00:01.1/0000:01:00.0", "pci");
    tree.device("pci0000:00/0000:00:01.1/0000:01:00.0/nvme/nvme7", "nvme", "class");
    tree.write("sys/devices/pci0000:00/0000:00:01.1/0000:01:00.0/nvme/nvme7/model", "Drive 980   \n");
    const HwmonDevice device = deviceOf("pci0000:00/0000:00:01.1/0000:01:00.0/nvme/nvme7");
    EXPECT_EQ(device.place, "0000:01:00.0");
    EXPECT_EQ(device.model, "Drive 980");
}

TEST_F(HwmonDeviceTest, APlatformDeviceSitsAtItsOwnName) {
    tree.device("platform/coretemp.0", "platform");
    EXPECT_EQ(deviceOf("platform/coretemp.0").place, "coretemp.0");
}

TEST_F(HwmonDeviceTest, AnACPIDeviceSitsAtItsOwnName) {
    tree.device("LNXSYSTM:00/LNXSYBUS:00/ACPI000D:00", "acpi");
    EXPECT_EQ(deviceOf("LNXSYSTM:00/LNXSYBUS:00/ACPI000D:00").place, "ACPI000D:00");
}

TEST_F(HwmonDeviceTest, AnI2CAddressIsReportedWithoutTheAdaptersNumber) {
    tree.device("pci0000:00/0000:00:1f.4", "pci");
    tree.device("pci0000:00/0000:00:1f.4/i2c-11", "i2c");
    tree.device("pci0000:00/0000:00:1f.4/i2c-11/11-0051", "i2c");
    EXPECT_EQ(deviceOf("pci0000:00/0000:00:1f.4/i2c-11/11-0051").place, "0000:00:1f.4 i2c 0051");
}

TEST_F(HwmonDeviceTest, ADiskIsIdentifiedByThePortOfItsController) {
    const std::string port = "pci0000:00/0000:00:17.0/ata9";
    tree.device("pci0000:00/0000:00:17.0", "pci");
    tree.write("sys/devices/" + port + "/ata_port/ata9/port_no", "3\n");
    tree.device(port + "/host8/target8:0:0", "scsi");
    tree.device(port + "/host8/target8:0:0/8:0:0:0", "scsi");
    tree.write("sys/devices/" + port + "/host8/target8:0:0/8:0:0:0/model", "Disk One\n");
    const HwmonDevice device = deviceOf(port + "/host8/target8:0:0/8:0:0:0");
    EXPECT_EQ(device.place, "0000:00:17.0 port 3");
    EXPECT_EQ(device.model, "Disk One");
}

TEST_F(HwmonDeviceTest, AVirtualDeviceHasNoPlace) {
    tree.device("virtual/thermal/thermal_zone0", "thermal", "class");
    EXPECT_EQ(deviceOf("virtual/thermal/thermal_zone0").place, "");
}

TEST_F(HwmonDeviceTest, AddressesAreKnownByTheirFormWhereATreeLostItsLinks) {
    EXPECT_EQ(deviceOf("pci0000:00/0000:03:00.0").place, "0000:03:00.0");
    tree.remove("sys/class/hwmon");
    EXPECT_EQ(deviceOf("platform/nct6775.656").place, "nct6775.656");
}

TEST_F(HwmonDeviceTest, SleepIsAskedOfTheDeviceUpToItsBusAndNotBeyond) {
    tree.device("pci0000:00/0000:00:1f.4", "pci");
    tree.device("pci0000:00/0000:00:1f.4/i2c-11", "i2c");
    tree.device("pci0000:00/0000:00:1f.4/i2c-11/11-0051", "i2c");
    const HwmonDevice device = deviceOf("pci0000:00/0000:00:1f.4/i2c-11/11-0051");
    ASSERT_EQ(device.powerFolders.size(), 1u);
    EXPECT_TRUE(device.powerFolders[0].string().ends_with("11-0051/power"));
}

TEST_F(HwmonDeviceTest, ALinkThatLeavesTheTreeIsIgnored) {
    tree.write("sys/class/hwmon/hwmon0/name", "chip");
    tree.link("sys/class/hwmon/hwmon0/device", "/sys");
    const HwmonDevice device = findHwmonDevice(tree.root(), tree.root() / "sys/class/hwmon/hwmon0");
    EXPECT_EQ(device.place, "");
    EXPECT_TRUE(device.powerFolders.empty());
}

TEST_F(HwmonDeviceTest, AChipThatVanishedHasNoDevice) {
    EXPECT_EQ(findHwmonDevice(tree.root(), tree.root() / "sys/class/hwmon/hwmon0").place, "");
    tree.link("sys/class/hwmon/hwmon1", "../../devices/gone");
    EXPECT_EQ(findHwmonDevice(tree.root(), tree.root() / "sys/class/hwmon/hwmon1").place, "");
}

} // namespace
} // namespace orvelle::linux_platform
