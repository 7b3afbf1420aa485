#pragma once

#include "platform/linux/hwmon_device.h"

namespace orvelle::linux_platform {

/// One channel of a chip: a temperature or a fan.
struct HwmonChannel {
    std::string file;  ///< name without its ending: "temp1", "fan2"
    std::string label; ///< the kernel's label; empty when it has none
};

/// One chip of `sys/class/hwmon` (Documentation/hwmon/sysfs-interface.rst).
struct HwmonChip {
    std::filesystem::path folder; ///< holds the attributes
    std::string name;             ///< the driver's name for the chip, such as "coretemp"
    HwmonDevice device;
    std::vector<HwmonChannel> temperatures; ///< by number
    std::vector<HwmonChannel> fans;         ///< by number

    /// What to call the chip: its device's model, else its own name.
    [[nodiscard]] const std::string& title() const { return device.model.empty() ? name : device.model; }
};

/// The chips below `root`: processors first, then graphics processors, then the others, in an order that does
/// not depend on how the kernel numbered them. No two have both name and place in common. No value is read,
/// so nothing is woken.
[[nodiscard]] std::vector<HwmonChip> scanHwmon(const std::filesystem::path& root);

/// Stands for the same sensor at every boot.
[[nodiscard]] std::string sensorKey(const HwmonChip& chip, const HwmonChannel& channel);

/// The chip's title and the kernel's label, for display. `isTitleShared` says that another chip has the same
/// title; the place then tells them apart.
[[nodiscard]] std::string sensorName(const HwmonChip& chip, const HwmonChannel& channel, bool isTitleShared);

} // namespace orvelle::linux_platform
