#pragma once

#include "core/sources/disk_source.h"

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

/// Whether a device of this name is a whole disk and no partition, where only the name can tell.
[[nodiscard]] bool isWholeDiskName(std::string_view name);

/// The disk that the kernel makes of the paths to one NVMe namespace, for the name of such a path
/// (nvme0c1n2 leads to nvme0n2); empty for any other name.
[[nodiscard]] std::string multipathDiskOf(std::string_view name);

} // namespace orvelle::linux_platform
