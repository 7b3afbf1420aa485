#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvelle::linux_platform {

/// The device that a hwmon chip belongs to.
struct HwmonDevice {
    /// Where the device sits, the same at every boot: the address of the nearest ancestor on the PCI,
    /// platform or ACPI bus ("0000:01:00.0", "coretemp.0"), followed by what tells devices behind one address
    /// apart (an I2C address, the port of a SATA controller). Numbers that the kernel deals out as devices
    /// appear (hwmon3, nvme0, ata2, i2c-5) never stand in it. Empty for a device without such an ancestor.
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

} // namespace orvelle::linux_platform
