#pragma once

#include "core/sources/disk_source.h"
#include "platform/darwin/purgeable_space.h"

namespace orvelle::darwin_platform {

/// Answers from the file manager and from the statistics of the block-storage drivers in the registry.
class DarwinDiskSource final : public DiskSource {
public:
    /// `now` limits how often the system is asked for purgeable space.
    explicit DarwinDiskSource(PurgeableSpace::Now now = PurgeableSpace::Clock::now)
        : m_purgeable(std::move(now)) {}

    /// The volumes that the file manager lists and does not hide, in its order. A volume without a path or
    /// readable values is left out; nothing when there is no list. A capacity below 0 is unknown. Purgeable
    /// space counts as free on local volumes whose file system has any.
    [[nodiscard]] std::optional<std::vector<MountedVolume>> readVolumes() override;
    /// One entry for each "IOBlockStorageDriver" that keeps statistics; nothing when 64 bits cannot hold
    /// their sums.
    [[nodiscard]] std::optional<std::vector<DiskCounters>> readCounters() override;

private:
    PurgeableSpace m_purgeable;
};

} // namespace orvelle::darwin_platform
