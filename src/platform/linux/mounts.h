#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvelle::linux_platform {

/// One line of `/proc/self/mountinfo` (Documentation/filesystems/proc.rst, section 3.5), names without their
/// escapes.
struct Mount {
    std::int64_t id = 0;
    std::int64_t parentId = 0; ///< the mount that this one was mounted in, possibly outside the list
    unsigned deviceMajor = 0;  ///< 0 when no block device lies below, as for memory and network file systems
    unsigned deviceMinor = 0;
    std::string root; ///< the mounted directory of the file system: "/" for all of it, else a bind or a part
    std::string path; ///< where it is mounted
    std::string fileSystem;
    std::string source; ///< device, pool or server, in the file system's own notation

    bool operator==(const Mount&) const = default;
};

/// The mounts in the text's order, which is that of mounting. Truncated and malformed lines are left out.
[[nodiscard]] std::vector<Mount> parseMountinfo(std::string_view text);

/// Finds out where a look-up of a mount's path really leads. A path may have been mounted over since, and the
/// way to it may pass through a network mount that waits for a server that is gone.
class MountTree {
public:
    /// The mounts must stay where they are for as long as the tree is asked.
    explicit MountTree(std::span<const Mount> mounts);

    /// Whether looking up the mount's path ends at this mount and passes local file systems only. `mount` is
    /// one of the tree's own.
    [[nodiscard]] bool isReachable(const Mount& mount) const;

private:
    [[nodiscard]] const Mount* parentOf(const Mount& mount) const;
    [[nodiscard]] const Mount* mountedIn(const Mount& parent, std::string_view path) const;
    [[nodiscard]] bool isMountedOver(const Mount& mount) const;
    [[nodiscard]] bool isHiddenIn(const Mount& parent, const Mount& child) const;

    std::unordered_map<std::int64_t, const Mount*> m_byId;
    std::map<std::pair<std::int64_t, std::string_view>, const Mount*> m_byParentAndPath;
    std::unordered_map<std::string_view, const Mount*> m_lastAtPath;
};

/// Mount paths that must not be shown.
using HiddenPaths = std::set<std::string, std::less<>>;

/// The mount paths that `/etc/fstab` marks with the option `x-gvfs-hide` (fstab(5)).
[[nodiscard]] HiddenPaths hiddenPathsInFstab(std::string_view fstab);

/// Whether a mount is a bind of a single file, such as a container's `/etc/hosts`. Asked only of mounts whose
/// path can be looked up without waiting.
using IsSingleFile = std::function<bool(const Mount&)>;

/// The mounts that are the machine's volumes, in mount order: one for each device (for each pool of ZFS, the
/// shortest path), with a local file system on a block device, and "/" whatever it is. Left out are network
/// file systems and everything else in user space, memory, squashfs and loop images, the boot loader's and
/// container's and snap's mounts, what `hidden` says, and what cannot be reached without passing a mount that
/// may wait for a network.
[[nodiscard]] std::vector<Mount> chosenVolumes(const std::vector<Mount>& mounts, const HiddenPaths& hidden,
                                               const IsSingleFile& isSingleFile);

} // namespace orvelle::linux_platform
