#pragma once

#include "core/sources/disk_source.h"
#include "platform/linux/files.h"
#include "platform/linux/linux_volumes.h"

#include <string_view>

namespace orvelle::linux_platform {

/// One line of `/proc/diskstats`. The name points into the text that was parsed.
struct BlockDeviceCounters {
    std::string_view name;
    DiskCounters counters;

    bool operator==(const BlockDeviceCounters&) const = default;
};

/// The block devices of `/proc/diskstats` (Documentation/admin-guide/iostats.rst) in its order, partitions
/// included. Lines without both counters and names that no device can have are left out.
[[nodiscard]] std::vector<BlockDeviceCounters> parseDiskstats(std::string_view text);

/// Whether a device of this name is a whole disk rather than a partition, judged by the name alone.
[[nodiscard]] bool isWholeDiskName(std::string_view name);

/// The disk that the kernel makes of the paths to one NVMe namespace, for the name of such a path
/// (nvme0c1n2 leads to nvme0n2); empty for any other name.
[[nodiscard]] std::string multipathDiskOf(std::string_view name);

/// The counters of the whole physical disks in `proc/diskstats`. Partitions, loop devices, memory disks and
/// what the device mapper and md make of other disks would count the same bytes again, so only devices that
/// sysfs links to hardware are counted; where sysfs has nothing, the name decides.
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

/// Answers from the mounts and the disk statistics under a root directory.
class LinuxDiskSource final : public DiskSource {
public:
    explicit LinuxDiskSource(const std::filesystem::path& root)
        : m_volumes(root)
        , m_counters(root) {}

    [[nodiscard]] std::optional<std::vector<MountedVolume>> readVolumes() override {
        return m_volumes.read();
    }
    [[nodiscard]] std::optional<std::vector<DiskCounters>> readCounters() override {
        return m_counters.read();
    }

private:
    LinuxVolumes m_volumes;
    LinuxDiskCounters m_counters;
};

} // namespace orvelle::linux_platform
