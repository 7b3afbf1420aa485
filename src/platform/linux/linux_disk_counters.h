#pragma once

#include "platform/linux/diskstats.h"
#include "platform/linux/kept_file.h"

namespace orvelle::linux_platform {

/// The counters of the whole physical disks in `proc/diskstats`. Partitions, loop devices, memory disks and
/// what the device mapper and md make of other disks would count the same bytes again, so only devices that
/// sysfs links to hardware are counted; where sysfs tells nothing, the name decides.
class LinuxDiskCounters {
public:
    explicit LinuxDiskCounters(std::filesystem::path root);

    /// One entry per disk; nothing when the text cannot be read. Sums of the counters fit into 64 bits.
    [[nodiscard]] std::optional<std::vector<DiskCounters>> read();

private:
    struct KnownDevice {
        std::string name;
        bool isCounted = false;
    };

    [[nodiscard]] bool knows(const std::vector<BlockDeviceCounters>& devices) const;
    void learn(const std::vector<BlockDeviceCounters>& devices);

    std::filesystem::path m_root;
    KeptFile m_diskstats;
    /// The devices of the last text in its order. What they are is asked anew only when their names change.
    std::vector<KnownDevice> m_known;
};

} // namespace orvelle::linux_platform
