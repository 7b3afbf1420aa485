#include "platform/linux/hwmon_device.h"

#include "platform/linux/sysfs.h"
#include "platform/linux/text.h"

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

namespace fs = std::filesystem;

/// What a folder's `subsystem` link names.
struct Subsystem {
    std::string name;
    bool isBus = false; ///< a bus gives its devices addresses, a class only numbers them
};

/// Domain, bus, device and function in hexadecimal: "0000:01:00.0".
bool isPCIAddress(std::string_view name) {
    return name.size() >= 12 && name[name.size() - 8] == ':' && name[name.size() - 5] == ':' &&
           name[name.size() - 2] == '.' &&
           name.find_first_not_of("0123456789abcdefABCDEF:.") == std::string_view::npos;
}

/// A copied tree may have lost its links; these two buses are told by where their devices stand.
Subsystem subsystemByPlace(const fs::path& folder) {
    if (isPCIAddress(folder.filename().string()))
        return {.name = "pci", .isBus = true};
    if (folder.parent_path().filename() == "platform")
        return {.name = "platform", .isBus = true};
    return {};
}

Subsystem subsystemOf(const fs::path& folder) {
    std::error_code error;
    // Only the link's text is looked at: a tree need not hold what it leads to.
    const fs::path target = fs::read_symlink(folder / "subsystem", error);
    if (error)
        return subsystemByPlace(folder);
    return {.name = target.filename().string(), .isBus = target.parent_path().filename() == "bus"};
}

bool isController(const Subsystem& subsystem) {
    return subsystem.isBus &&
           (subsystem.name == "pci" || subsystem.name == "platform" || subsystem.name == "acpi");
}

/// What a device of the I2C bus adds to the place. "11-0050" is address 0x50 behind adapter 11, whose number
/// depends on what was found before it; the adapter itself, "i2c-11", adds nothing.
std::string placeOnI2C(const std::string& name) {
    const std::string address = name.substr(name.find('-') + 1);
    return name.starts_with("i2c-") && isDigits(address) ? std::string() : " i2c " + address;
}

/// The port of its controller that a folder such as `ata3` stands for; 0 when it is no such folder.
std::int64_t portNumber(const fs::path& folder) {
    const fs::path name = folder.filename();
    if (!name.string().starts_with("ata"))
        return 0;
    return parseAttributeNumber(readAttribute(folder / "ata_port" / name / "port_no")).value_or(0);
}

bool isBelow(const fs::path& folder, const fs::path& base) {
    return std::ranges::mismatch(base, folder).in1 == base.end() && folder != base;
}

/// Collects what the ancestors say, one at a time, from the device upward.
class AncestorWalk {
public:
    /// False when nothing more is wanted of the ancestors above.
    bool visit(const fs::path& folder) {
        const Subsystem subsystem = subsystemOf(folder);
        if (!m_hasPassedBus)
            lookAtDevice(folder);
        m_hasPassedBus = m_hasPassedBus || subsystem.isBus;
        if (isController(subsystem)) {
            m_device.place = folder.filename().string() + m_behindController;
            return false;
        }
        if (subsystem.isBus && subsystem.name == "i2c")
            m_behindController = placeOnI2C(folder.filename().string()) + m_behindController;
        else if (const std::int64_t port = portNumber(folder); port > 0)
            m_behindController = " port " + std::to_string(port) + m_behindController;
        return true;
    }

    [[nodiscard]] HwmonDevice result() && { return std::move(m_device); }

private:
    void lookAtDevice(const fs::path& folder) {
        m_device.powerFolders.push_back(folder / "power");
        if (m_device.model.empty())
            m_device.model = readAttribute(folder / "model");
    }

    HwmonDevice m_device;
    std::string m_behindController;
    bool m_hasPassedBus = false;
};

} // namespace

HwmonDevice findHwmonDevice(const fs::path& root, const fs::path& hwmonFolder) {
    std::error_code error;
    const fs::path base = fs::canonical(root / "sys", error);
    fs::path folder = fs::canonical(hwmonFolder / "device", error);
    if (error)
        folder = fs::canonical(hwmonFolder, error);
    if (error)
        return {};
    AncestorWalk walk;
    while (isBelow(folder, base) && walk.visit(folder))
        folder = folder.parent_path();
    return std::move(walk).result();
}

} // namespace orvelle::linux_platform
