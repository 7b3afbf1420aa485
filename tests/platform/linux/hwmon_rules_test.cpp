#include "platform/linux/hwmon_rules.h"

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

} // namespace
} // namespace orvelle::linux_platform
