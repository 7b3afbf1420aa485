#include "platform/linux/hwmon.h"

#include "platform/linux/files.h"
#include "platform/linux/text.h"
#include "platform/readable_name.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <tuple>

namespace orvelle::linux_platform {
namespace {

using namespace std::string_view_literals;
namespace fs = std::filesystem;

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

/// A copied tree may have lost its links; these two buses are recognized by the place of their devices.
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

/// Orders "temp2" before "temp10".
bool comesBefore(const std::string& left, const std::string& right) {
    return ::strverscmp(left.c_str(), right.c_str()) < 0;
}

/// The part of `temp3_input` before its ending, when the rest is the given kind and a number.
std::string channelIn(const std::string& file, std::string_view kind) {
    constexpr std::string_view ending = "_input";
    if (!file.starts_with(kind) || !file.ends_with(ending))
        return {};
    const std::string channel = file.substr(0, file.size() - ending.size());
    const std::string number = channel.substr(std::min(kind.size(), channel.size()));
    return isDigits(number) ? channel : std::string();
}

std::vector<HwmonChannel> channelsOf(const fs::path& folder, const std::vector<std::string>& files,
                                     std::string_view kind) {
    std::vector<HwmonChannel> channels;
    for (const std::string& file : files) {
        const std::string channel = channelIn(file, kind);
        if (!channel.empty())
            channels.push_back(
                {.file = channel, .label = readableName(readAttribute(folder / (channel + "_label")))});
    }
    std::ranges::sort(channels, comesBefore, &HwmonChannel::file);
    return channels;
}

HwmonChip readChip(const fs::path& root, const fs::path& hwmonFolder) {
    HwmonChip chip;
    chip.folder = hwmonFolder;
    chip.name = readableName(readAttribute(hwmonFolder / "name"));
    if (chip.name.empty()) {
        // Drivers that register the old way keep the attributes with the device itself.
        chip.folder = hwmonFolder / "device";
        chip.name = readableName(readAttribute(chip.folder / "name"));
    }
    const std::vector<std::string> files = namesIn(chip.folder);
    chip.temperatures = channelsOf(chip.folder, files, "temp");
    chip.fans = channelsOf(chip.folder, files, "fan");
    chip.device = findHwmonDevice(root, hwmonFolder);
    chip.device.place = readableName(chip.device.place);
    chip.device.model = readableName(chip.device.model);
    return chip;
}

void sortChips(std::vector<HwmonChip>& chips) {
    std::error_code ignored;
    std::vector<std::pair<std::string, HwmonChip>> byPath;
    for (HwmonChip& chip : chips) {
        // Behind one controller the kernel numbers devices in a fixed order, so the real path decides last.
        std::string path = fs::canonical(chip.folder, ignored).string();
        byPath.emplace_back(std::move(path), std::move(chip));
    }
    std::ranges::sort(byPath, [](const auto& left, const auto& right) {
        const auto& [leftPath, a] = left;
        const auto& [rightPath, b] = right;
        const int group = chipGroup(a.name) - chipGroup(b.name);
        const int name = ::strverscmp(a.name.c_str(), b.name.c_str());
        const int place = ::strverscmp(a.device.place.c_str(), b.device.place.c_str());
        const int path = ::strverscmp(leftPath.c_str(), rightPath.c_str());
        return std::tie(group, name, place, path) < std::make_tuple(0, 0, 0, 0);
    });
    for (std::size_t index = 0; index < chips.size(); ++index)
        chips[index] = std::move(byPath[index].second);
}

/// Numbers the chips that have the same name at the same place.
void tellPlacesApart(std::vector<HwmonChip>& chips) {
    std::map<std::pair<std::string, std::string>, int> counts;
    for (HwmonChip& chip : chips) {
        const int count = ++counts[{chip.name, chip.device.place}];
        if (count > 1)
            chip.device.place.append("#").append(std::to_string(count));
    }
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

std::vector<HwmonChip> scanHwmon(const fs::path& root) {
    const fs::path folder = root / "sys/class/hwmon";
    std::vector<HwmonChip> chips;
    for (const std::string& name : namesIn(folder))
        chips.push_back(readChip(root, folder / name));
    std::erase_if(chips,
                  [](const HwmonChip& chip) { return chip.temperatures.empty() && chip.fans.empty(); });
    sortChips(chips);
    tellPlacesApart(chips);
    return chips;
}

std::string sensorKey(const HwmonChip& chip, const HwmonChannel& channel) {
    const std::string& place = chip.device.place;
    return (place.empty() ? "" : place + "/") + chip.name + "/" + channel.file;
}

std::string sensorName(const HwmonChip& chip, const HwmonChannel& channel, bool isTitleShared) {
    std::string name = chip.title();
    if (isTitleShared && !chip.device.place.empty())
        name += " (" + chip.device.place + ")";
    if (!channel.label.empty())
        return name + " " + channel.label;
    return chip.temperatures.size() > 1 ? name + " " + channel.file : name;
}

} // namespace orvelle::linux_platform
