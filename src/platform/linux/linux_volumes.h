#pragma once

#include "core/sources/disk_source.h"
#include "platform/linux/files.h"
#include "platform/linux/mounts.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle::linux_platform {

/// Capacity of a file system, never negative and never more free than the total.
struct VolumeSpace {
    std::int64_t totalBytes = 0;
    std::int64_t freeBytes = 0;

    bool operator==(const VolumeSpace&) const = default;
};

/// The space of `totalBytes` and `freeBytes`, cut to what the record can say.
[[nodiscard]] VolumeSpace volumeSpace(std::uint64_t totalBytes, std::uint64_t freeBytes);

/// The answer of a file system that was asked for its space.
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

/// The mounted volumes: chosen from `proc/self/mountinfo`, hidden by `etc/fstab`, named by
/// `dev/disk/by-label`. On the running system the choice is made anew when the kernel announces a change of
/// the mounts, and their space is asked of the kernel at each reading; a volume that takes long to answer is
/// asked less often and keeps its last answer meanwhile. In another tree everything is read each time, the
/// space from its file `statfs`.
class LinuxVolumes {
public:
    explicit LinuxVolumes(const std::filesystem::path& root);
    /// Asks `readSpace` in place of the kernel or the file.
    LinuxVolumes(std::filesystem::path root, SpaceReader readSpace);

    /// The volumes whose space is known, in mount order; nothing when the mounts cannot be read.
    [[nodiscard]] std::optional<std::vector<MountedVolume>> read();

private:
    struct Volume {
        Mount mount;
        MountedVolume published;
        std::optional<VolumeSpace> space{};
        unsigned readingsToSkip = 0;
    };

    [[nodiscard]] bool choose();
    [[nodiscard]] std::vector<Mount> mountsOfVolumes(std::string_view mountinfo,
                                                     std::string_view fstab) const;
    [[nodiscard]] bool isSingleFile(const Mount& mount) const;
    [[nodiscard]] Volume asKnownBefore(const Mount& mount) const;
    void measure();
    void measureFromTree();

    std::filesystem::path m_root;
    bool m_isHost;
    KeptFile m_mountinfo;
    SpaceReader m_readSpace;           ///< none where the tree's file is read
    std::vector<Mount> m_chosenMounts; ///< of these texts, which seldom change
    std::string m_chosenMountinfo;
    std::string m_chosenFstab;
    std::vector<Volume> m_volumes;
    unsigned m_readingsUntilChoice = 0;
};

} // namespace orvelle::linux_platform
