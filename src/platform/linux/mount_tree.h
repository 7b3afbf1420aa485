#pragma once

#include "platform/linux/mountinfo.h"

#include <map>
#include <span>
#include <unordered_map>

namespace orvelle::linux_platform {

/// Answers where a look-up of a mount's path really leads. A path may have been mounted over since, and the
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

} // namespace orvelle::linux_platform
