#include "platform/linux/hwmon_scan.h"

#include "platform/linux/directory.h"
#include "platform/linux/hwmon_rules.h"
#include "platform/linux/sysfs.h"
#include "platform/linux/text.h"
#include "platform/names/sanitize.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <tuple>

namespace orvelle::linux_platform {
namespace {

namespace fs = std::filesystem;

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
                {.file = channel, .label = sanitizedName(readAttribute(folder / (channel + "_label")))});
    }
    std::ranges::sort(channels, comesBefore, &HwmonChannel::file);
    return channels;
}

HwmonChip readChip(const fs::path& root, const fs::path& hwmonFolder) {
    HwmonChip chip;
    chip.folder = hwmonFolder;
    chip.name = sanitizedName(readAttribute(hwmonFolder / "name"));
    if (chip.name.empty()) {
        // Drivers that register the old way keep the attributes with the device itself.
        chip.folder = hwmonFolder / "device";
        chip.name = sanitizedName(readAttribute(chip.folder / "name"));
    }
    const std::vector<std::string> files = namesIn(chip.folder);
    chip.temperatures = channelsOf(chip.folder, files, "temp");
    chip.fans = channelsOf(chip.folder, files, "fan");
    chip.device = findHwmonDevice(root, hwmonFolder);
    chip.device.place = sanitizedName(chip.device.place);
    chip.device.model = sanitizedName(chip.device.model);
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
