#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
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

/// What asking a file system for its space came to.
struct SpaceAnswer {
    std::optional<VolumeSpace> space; ///< nothing when it cannot be asked
    std::chrono::duration<double> took{};
};

/// Asks the file system that is mounted at a path.
using SpaceReader = std::function<SpaceAnswer(const std::string& path)>;

/// The space of the file system mounted at `path` of the running system (statvfs), free for those who are not
/// root.
[[nodiscard]] SpaceAnswer hostVolumeSpace(const std::string& path);

/// How many readings a file system is left alone for after it took so long to answer: none up to 50 ms, and
/// beyond that the more the longer it took, so that waiting for it stays a small share of the time.
[[nodiscard]] unsigned readingsToSkipAfter(std::chrono::duration<double> took);

/// The spaces that stand beside a tree of files, by mount path: on each line the path as mountinfo writes it,
/// the total and the free bytes. Anything else is left out.
[[nodiscard]] std::map<std::string, VolumeSpace> parseVolumeSpaces(std::string_view text);

} // namespace orvelle::linux_platform
