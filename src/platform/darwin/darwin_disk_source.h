#pragma once

#include "core/sources/disk_source.h"

namespace orvelle::darwin_platform {

/// Answers from the file manager and from the statistics of the block-storage drivers in the registry.
class DarwinDiskSource final : public DiskSource {
public:
    /// The volumes that the file manager lists and does not hide, in its order. A volume without a path or
    /// readable values is left out; nothing when there is no list.
    [[nodiscard]] std::optional<std::vector<MountedVolume>> readVolumes() override;
    /// One entry for each "IOBlockStorageDriver" that keeps statistics.
    [[nodiscard]] std::optional<std::vector<DiskCounters>> readCounters() override;
};

} // namespace orvelle::darwin_platform
