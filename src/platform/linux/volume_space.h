#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle::linux_platform {

/// Capacity of a file system, never negative, and never more free than there is in all.
struct VolumeSpace {
    std::int64_t totalBytes = 0;
    std::int64_t freeBytes = 0;

    bool operator==(const VolumeSpace&) const = default;
};

/// The space of `totalBytes` and `freeBytes`, cut to what the record can say.
[[nodiscard]] VolumeSpace volumeSpace(std::uint64_t totalBytes, std::uint64_t freeBytes);

/// The space of the file system mounted at `path` of the running system (statvfs), free for those who are not
/// root; nothing when it cannot be asked.
[[nodiscard]] std::optional<VolumeSpace> hostVolumeSpace(const std::string& path);

/// The spaces that stand beside a tree of files, by mount path: on each line the path as mountinfo writes it,
/// the total and the free bytes. Anything else is left out.
[[nodiscard]] std::map<std::string, VolumeSpace> parseVolumeSpaces(std::string_view text);

} // namespace orvelle::linux_platform
