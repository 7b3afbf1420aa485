#pragma once

#include "support/temporary_tree.h"

#include <map>

namespace orvelle {

/// Builds hwmon chips as sysfs lays them out: devices below `sys/devices`, classes that link to them.
class HwmonTree : public TemporaryTree {
public:
    using Attributes = std::map<std::string, std::string>;

    /// A device on a bus (or, with `group` "class", of a class), at its path below `sys/devices`.
    void device(const std::string& path, const std::string& subsystem,
                const std::string& group = "bus") const {
        link("sys/devices/" + path + "/subsystem", "../../" + group + "/" + subsystem);
    }

    /// A chip of `devicePath`, registered as `hwmon<number>`.
    void chip(int number, const std::string& devicePath, const std::string& name,
              const Attributes& attributes) const {
        const std::string hwmon = "hwmon" + std::to_string(number);
        const std::string folder = "sys/devices/" + devicePath + "/hwmon/" + hwmon;
        write(folder + "/name", name + "\n");
        for (const auto& [file, text] : attributes)
            write(folder + "/" + file, text + "\n");
        link(folder + "/device", "../..");
        link("sys/class/hwmon/" + hwmon, "../../devices/" + devicePath + "/hwmon/" + hwmon);
    }

    /// An NVMe drive at a PCI address, with the chip that its driver registers.
    void nvme(int hwmonNumber, const std::string& address, int controller, const std::string& model,
              const std::string& composite) const {
        const std::string function = "pci0000:00/" + address;
        const std::string drive = function + "/nvme/nvme" + std::to_string(controller);
        device(function, "pci");
        device(drive, "nvme", "class");
        write("sys/devices/" + drive + "/model", model + "   \n");
        write("sys/devices/" + function + "/power/runtime_status", "active\n");
        chip(hwmonNumber, drive, "nvme", {{"temp1_input", composite}, {"temp1_label", "Composite"}});
    }

    /// A folder's path below the root for a chip made by `chip`.
    [[nodiscard]] static std::string chipFolder(int number) {
        return "sys/class/hwmon/hwmon" + std::to_string(number);
    }
};

} // namespace orvelle
