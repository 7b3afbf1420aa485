#include "platform/linux/hwmon_rules.h"

#include <algorithm>
#include <array>

namespace orvelle::linux_platform {
namespace {

using namespace std::string_view_literals;

enum CPURank {
    wholeDie,
    offsetFreeDie,
    anotherPackage,
    unlabelledDie,
    partOfDie,
    processorZone,
    systemOnChipZone,
    boardSensor,
    firmwareZone,
};

/// Parts of a system on a chip, and devices beside it, that have thermal zones of their own.
constexpr std::array zonesOfOtherParts{"gpu"sv,     "npu"sv,     "vpu"sv,    "ddr"sv,  "mem"sv,
                                       "battery"sv, "charger"sv, "skin"sv,   "pmic"sv, "wifi"sv,
                                       "wlan"sv,    "modem"sv,   "camera"sv, "usb"sv};

bool isThermalZone(std::string_view chip) {
    return chip.find("thermal") != std::string_view::npos;
}

bool isZoneOfAnotherPart(std::string_view chip) {
    return std::ranges::any_of(zonesOfOtherParts, [chip](std::string_view part) {
        return chip.find(part) != std::string_view::npos;
    });
}

int intelRank(std::string_view label) {
    if (label == "Package id 0")
        return wholeDie;
    return label.starts_with("Package id") ? anotherPackage : partOfDie;
}

int amdRank(std::string_view label) {
    // Tctl is what the processor steers its fan by; on some models it stands a fixed offset above Tdie.
    if (label == "Tctl")
        return wholeDie;
    if (label == "Tdie")
        return offsetFreeDie;
    return label.empty() ? unlabelledDie : partOfDie;
}

} // namespace

std::optional<int> cpuTemperatureRank(std::string_view chip, std::string_view label) {
    if (chip == "coretemp")
        return intelRank(label);
    if (chip == "k10temp" || chip == "zenpower" || chip == "k8temp")
        return amdRank(label);
    if (chip == "acpitz")
        return firmwareZone;
    if (isThermalZone(chip) && !isZoneOfAnotherPart(chip))
        return chip.starts_with("cpu") ? processorZone : systemOnChipZone;
    if (label == "CPU")
        return boardSensor;
    return std::nullopt;
}

std::optional<int> gpuTemperatureRank(std::string_view chip) {
    constexpr std::array drivers{"amdgpu"sv, "nouveau"sv, "xe"sv, "i915"sv, "radeon"sv};
    if (std::ranges::find(drivers, chip) != drivers.end())
        return 0;
    if (isThermalZone(chip) && chip.starts_with("gpu"))
        return 1;
    return std::nullopt;
}

int chipGroup(std::string_view chip) {
    const std::optional<int> rank = cpuTemperatureRank(chip, {});
    if (rank && *rank < boardSensor)
        return 0;
    return gpuTemperatureRank(chip) ? 1 : 2;
}

} // namespace orvelle::linux_platform
