#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

/// A mounted volume that the system does not hide.
struct MountedVolume {
    std::string path;                  ///< where it is mounted, fit to be shown
    std::optional<std::string> name{}; ///< its label; nothing when it has none
    bool isLocal = false;              ///< false for a network volume and when unknown
    std::int64_t totalBytes = 0;       ///< capacity, 0 when unknown
    /// What a user's files can still take, 0 when unknown. A source says no more than `totalBytes`.
    std::int64_t freeBytes = 0;

    bool operator==(const MountedVolume&) const = default;
};

/// Cumulative counters of one physical disk or of the driver that serves it. A counter that is not known is
/// 0. A source keeps the sums over all disks within 64 bits, or its system cannot reach them.
struct DiskCounters {
    std::uint64_t bytesRead = 0;
    std::uint64_t bytesWritten = 0;

    bool operator==(const DiskCounters&) const = default;
};

/// What `DiskMonitor` asks of an operating system.
class DiskSource {
public:
    virtual ~DiskSource() = default;

    /// The volumes in mount order, without those that could not be asked; nothing when there is no answer.
    [[nodiscard]] virtual std::optional<std::vector<MountedVolume>> readVolumes() = 0;

    /// One entry per disk; nothing when the counters cannot be read.
    [[nodiscard]] virtual std::optional<std::vector<DiskCounters>> readCounters() = 0;
};

} // namespace orvelle
