#include "platform/linux/linux_disk_counters.h"

#include "platform/linux/directory.h"
#include "platform/linux/saturating_sum.h"

#include <algorithm>
#include <set>

namespace orvelle::linux_platform {
namespace {

/// What sysfs tells of a block device: a `device` link leads to the hardware that it is on.
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
