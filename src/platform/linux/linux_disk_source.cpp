#include "platform/linux/linux_disk_source.h"

#include "platform/linux/files.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <set>

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

/// What sysfs shows of a block device: a `device` link leads to its hardware.
enum class Hardware { linked, none, unknown };

Hardware hardwareOf(const std::filesystem::path& root, std::string_view name) {
    // A slash in a name stands as an exclamation mark where the name is a directory.
    std::string directoryName(name);
    std::ranges::replace(directoryName, '/', '!');
    for (const char* directory : {"sys/class/block", "sys/block"}) {
        const std::filesystem::path device = root / directory / directoryName;
        if (existsUnfollowed(device / "device"))
            return Hardware::linked;
        if (existsUnfollowed(device))
            return Hardware::none;
    }
    return Hardware::unknown;
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

LinuxDiskCounters::LinuxDiskCounters(std::filesystem::path root)
    : m_root(std::move(root))
    , m_diskstats(m_root / "proc/diskstats", KeptFile::Layout::records) {}

std::optional<std::vector<DiskCounters>> LinuxDiskCounters::read() {
    const std::optional<std::string_view> text = m_diskstats.read();
    if (!text)
        return std::nullopt;
    const std::vector<BlockDeviceCounters> devices = parseDiskstats(*text);
    if (!knows(devices))
        learn(devices);
    std::vector<DiskCounters> disks;
    SaturatingSum budgetRead;
    SaturatingSum budgetWritten;
    for (std::size_t index = 0; index < devices.size(); ++index) {
        const DiskCounters& counters = devices[index].counters;
        if (m_known[index].isCounted)
            disks.push_back({.bytesRead = budgetRead.take(counters.bytesRead),
                             .bytesWritten = budgetWritten.take(counters.bytesWritten)});
    }
    return disks;
}

bool LinuxDiskCounters::knows(const std::vector<BlockDeviceCounters>& devices) const {
    return std::ranges::equal(m_known, devices, {}, &KnownDevice::name, &BlockDeviceCounters::name);
}

void LinuxDiskCounters::learn(const std::vector<BlockDeviceCounters>& devices) {
    std::vector<Hardware> hardware;
    std::set<std::string> disksMadeOfPaths;
    for (const BlockDeviceCounters& device : devices) {
        hardware.push_back(hardwareOf(m_root, device.name));
        disksMadeOfPaths.insert(multipathDiskOf(device.name));
    }
    // A tree may hold devices' directories without their links, which a running system never shows.
    const bool isTold = std::ranges::find(hardware, Hardware::linked) != hardware.end();
    m_known.clear();
    for (std::size_t index = 0; index < devices.size(); ++index) {
        const std::string_view name = devices[index].name;
        const bool isNamedSo = (!isTold || hardware[index] == Hardware::unknown) && isWholeDiskName(name);
        // The bytes of a disk with several paths are counted where they pass: at the paths.
        const bool isDisk = hardware[index] == Hardware::linked || isNamedSo;
        m_known.push_back({std::string(name), isDisk && !disksMadeOfPaths.contains(std::string(name))});
    }
}

} // namespace orvelle::linux_platform
