#include "platform/linux/diskstats.h"

#include "platform/linux/directory.h"
#include "platform/linux/text.h"

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

/// The unit of the counters, whatever the disk's own sectors are.
constexpr std::uint64_t bytesPerSector = 512;

/// Cuts off digits, at least one, at the start of `name`.
bool skipDigits(std::string_view& name) {
    const std::size_t end = std::min(name.find_first_not_of("0123456789"), name.size());
    name.remove_prefix(end);
    return end > 0;
}

bool skipText(std::string_view& name, std::string_view text) {
    if (!name.starts_with(text))
        return false;
    name.remove_prefix(text.size());
    return true;
}

bool isLetters(std::string_view text) {
    return !text.empty() &&
           std::ranges::all_of(text, [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

} // namespace

std::vector<BlockDeviceCounters> parseDiskstats(std::string_view text) {
    std::vector<BlockDeviceCounters> devices;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        takeWord(line); // major number
        takeWord(line); // minor number
        const std::string_view name = takeWord(line);
        takeWord(line); // reads completed
        takeWord(line); // reads merged
        const auto sectorsRead = takeNumber<std::uint64_t>(line);
        takeWord(line); // milliseconds spent reading
        takeWord(line); // writes completed
        takeWord(line); // writes merged
        const auto sectorsWritten = takeNumber<std::uint64_t>(line);
        if (!sectorsRead || !sectorsWritten || !isEntryName(name))
            continue;
        devices.push_back({name,
                           {.bytesRead = saturatingMultiply(*sectorsRead, bytesPerSector),
                            .bytesWritten = saturatingMultiply(*sectorsWritten, bytesPerSector)}});
    }
    return devices;
}

bool isWholeDiskName(std::string_view name) {
    // A longer prefix stands before one that it begins with.
    for (const std::string_view prefix : {"xvd", "sd", "vd", "hd"}) {
        if (skipText(name, prefix))
            return isLetters(name);
    }
    if (skipText(name, "nvme"))
        return skipDigits(name) && skipText(name, "n") && skipDigits(name) && name.empty();
    return skipText(name, "mmcblk") && skipDigits(name) && name.empty();
}

std::string multipathDiskOf(std::string_view name) {
    const std::string_view whole = name;
    if (!skipText(name, "nvme") || !skipDigits(name))
        return {};
    const std::string_view subsystem = whole.substr(0, whole.size() - name.size());
    if (!skipText(name, "c") || !skipDigits(name) || !name.starts_with('n'))
        return {};
    return std::string(subsystem) + std::string(name);
}

} // namespace orvelle::linux_platform
