#include "platform/linux/mount_tree.h"

#include <algorithm>
#include <array>

namespace orvelle::linux_platform {
namespace {

/// Mounts within mounts beyond this depth are taken for a damaged text.
constexpr int deepestNesting = 32;

/// File systems without a block device of their own that answer a look-up from memory or local disks.
constexpr std::array<std::string_view, 8> localFileSystems{"bcachefs", "btrfs",  "devtmpfs", "overlay",
                                                           "ramfs",    "rootfs", "tmpfs",    "zfs"};

/// Whether a path may be looked up inside the mount. Only what is known to be local is: any other may stand
/// for a server. The root directory is passed by every look-up of every program.
bool isSafeToPass(const Mount& mount) {
    return mount.path == "/" || mount.deviceMajor != 0 ||
           std::ranges::find(localFileSystems, mount.fileSystem) != localFileSystems.end();
}

} // namespace

MountTree::MountTree(std::span<const Mount> mounts) {
    for (const Mount& mount : mounts) {
        m_byId.try_emplace(mount.id, &mount);
        m_byParentAndPath.insert_or_assign({mount.parentId, mount.path}, &mount);
        m_lastAtPath.insert_or_assign(mount.path, &mount);
    }
}

const Mount* MountTree::parentOf(const Mount& mount) const {
    const auto position = m_byId.find(mount.parentId);
    const bool isKnown = position != m_byId.end() && position->first != mount.id;
    return isKnown ? position->second : nullptr;
}

const Mount* MountTree::mountedIn(const Mount& parent, std::string_view path) const {
    const auto position = m_byParentAndPath.find({parent.id, path});
    return position == m_byParentAndPath.end() ? nullptr : position->second;
}

bool MountTree::isReachable(const Mount& mount) const {
    if (isMountedOver(mount))
        return false;
    const Mount* child = &mount;
    for (int depth = 0; depth < deepestNesting; ++depth) {
        const Mount* parent = parentOf(*child);
        if (parent == nullptr)
            return true;
        // A mount at the same path is not passed through, only covered: an automount point, say.
        const bool isPassed = parent->path != child->path;
        if (isPassed && (!isSafeToPass(*parent) || isHiddenIn(*parent, *child)))
            return false;
        child = parent;
    }
    return false;
}

bool MountTree::isMountedOver(const Mount& mount) const {
    const Mount* above = mountedIn(mount, mount.path);
    if (above != nullptr && above->id != mount.id)
        return true;
    const Mount* last = m_lastAtPath.find(mount.path)->second;
    return last > &mount && last->id != mount.parentId;
}

/// Whether something is mounted in `parent` on the way to `child`, so that the look-up goes there instead:
/// something later than the child, or something moved there that must not be passed in any case.
bool MountTree::isHiddenIn(const Mount& parent, const Mount& child) const {
    const std::string_view path = child.path;
    for (std::size_t end = path.find('/', 1); end != std::string_view::npos; end = path.find('/', end + 1)) {
        const Mount* between = mountedIn(parent, path.substr(0, end));
        if (between == nullptr || between->id == parent.id)
            continue;
        if (between > &child || !isSafeToPass(*between))
            return true;
    }
    return false;
}

} // namespace orvelle::linux_platform
