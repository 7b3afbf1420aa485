#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

// Which of the kernel's sensors stands for a whole processor (Documentation/hwmon/<driver>.rst has the
// labels).

/// How well a temperature stands for the processor, 0 the best; nothing when it does not. The die as a whole
/// comes before its parts, a processor's own sensor before one of the system on a chip, and what the
/// firmware calls a thermal zone (acpitz) comes last.
[[nodiscard]] std::optional<int> cpuTemperatureRank(std::string_view chip, std::string_view label);

/// The same for a graphics processor. All channels of one chip are equal: the first is the processor's own.
[[nodiscard]] std::optional<int> gpuTemperatureRank(std::string_view chip);

/// Where a chip stands in the list of all: 0 for processors, 1 for graphics processors, 2 for the rest.
[[nodiscard]] int chipGroup(std::string_view chip);

/// The device that a hwmon chip belongs to.
struct HwmonDevice {
    /// Where the device sits, the same at every boot: the address of the nearest ancestor on the PCI,
    /// platform or ACPI bus ("0000:01:00.0", "coretemp.0"), followed by what distinguishes devices behind one
    /// address (an I2C address, the port of a SATA controller). It never contains numbers that the kernel
    /// assigns as devices appear (hwmon3, nvme0, ata2, i2c-5). Empty for a device without such an ancestor.
    std::string place;
    /// The model's name as a disk gives it; empty when the device has none.
    std::string model;
    /// The `power` folders, which may not exist, that say whether the device sleeps: its own and those of its
    /// ancestors up to the first one on a bus. Beyond it they say nothing of this device: an I2C adapter
    /// counts as suspended whenever nobody uses it.
    std::vector<std::filesystem::path> powerFolders;
};

/// Follows the `device` link of a folder in `sys/class/hwmon` and looks at the device's ancestors, all within
/// `root`. (Documentation/ABI/stable/sysfs-devices, Documentation/driver-api/driver-model)
[[nodiscard]] HwmonDevice findHwmonDevice(const std::filesystem::path& root,
                                          const std::filesystem::path& hwmonFolder);

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

/// The chip's title and the kernel's label, for display. `isTitleShared`: another chip has the same title,
/// and the place is added.
[[nodiscard]] std::string sensorName(const HwmonChip& chip, const HwmonChannel& channel, bool isTitleShared);

} // namespace orvelle::linux_platform
