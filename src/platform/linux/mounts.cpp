#include "platform/linux/mounts.h"

#include "platform/linux/text.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>

namespace orvelle::linux_platform {
namespace {

/// Skips the optional fields, whose number varies, up to and with the dash that ends them.
bool skipOptionalFields(std::string_view& line) {
    while (!line.empty()) {
        if (takeWord(line) == "-")
            return true;
    }
    return false;
}

std::optional<Mount> parseMount(std::string_view line) {
    Mount mount;
    const auto id = takeNumber<std::int64_t>(line);
    const auto parentId = takeNumber<std::int64_t>(line);
    std::string_view device = takeWord(line);
    const auto deviceMajor = parseNumber<unsigned>(takeUntil(device, ':'));
    const auto deviceMinor = parseNumber<unsigned>(device);
    if (!id || !parentId || !deviceMajor || !deviceMinor)
        return std::nullopt;
    mount.id = *id;
    mount.parentId = *parentId;
    mount.deviceMajor = *deviceMajor;
    mount.deviceMinor = *deviceMinor;
    mount.root = withoutOctalEscapes(takeWord(line));
    mount.path = withoutOctalEscapes(takeWord(line));
    if (!mount.path.starts_with('/') || !skipOptionalFields(line))
        return std::nullopt;
    mount.fileSystem = withoutOctalEscapes(takeWord(line));
    mount.source = withoutOctalEscapes(takeWord(line));
    if (mount.fileSystem.empty())
        return std::nullopt;
    return mount;
}

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

constexpr unsigned loopMajor = 7; // Documentation/admin-guide/devices.txt

/// File systems over one or more block devices that show no device number of their own.
constexpr std::array<std::string_view, 3> manyDeviceFileSystems{"bcachefs", "btrfs", "zfs"};

/// Where container runtimes and snapd keep the layers that they mount.
constexpr std::array<std::string_view, 14> layerDirectories{
    "/run/containerd/",     "/run/containers/", "/run/docker/",
    "/run/snapd/",          "/snap/",           "/var/lib/containerd/",
    "/var/lib/containers/", "/var/lib/docker/", "/var/lib/incus/",
    "/var/lib/kubelet/",    "/var/lib/lxc/",    "/var/lib/lxd/",
    "/var/lib/snapd/",      "/var/snap/"};

/// The same of a user's own containers, below any home directory.
constexpr std::array<std::string_view, 2> userLayerDirectories{"/.local/share/containers/",
                                                               "/.local/share/docker/"};

bool isLocalDisk(const Mount& mount) {
    const bool isImage = mount.deviceMajor == loopMajor || mount.source.starts_with("/dev/loop");
    if (isImage || mount.fileSystem == "squashfs")
        return false;
    return mount.deviceMajor != 0 ||
           std::ranges::find(manyDeviceFileSystems, mount.fileSystem) != manyDeviceFileSystems.end();
}

bool isHidden(std::string_view path, const HiddenPaths& hidden) {
    return path == "/boot" || path.starts_with("/boot/") || hidden.contains(path) ||
           std::ranges::any_of(layerDirectories, [path](auto start) { return path.starts_with(start); }) ||
           std::ranges::any_of(userLayerDirectories,
                               [path](auto part) { return path.find(part) != std::string_view::npos; });
}

bool isCandidate(const Mount& mount, const HiddenPaths& hidden) {
    return mount.path == "/" || (isLocalDisk(mount) && !isHidden(mount.path, hidden));
}

/// Mounts with the same key hold the same bytes.
std::string deviceKey(const Mount& mount) {
    if (mount.fileSystem == "zfs") {
        std::string_view dataset = mount.source;
        return std::string(takeUntil(dataset, '/'));
    }
    return std::to_string(mount.deviceMajor) + ':' + std::to_string(mount.deviceMinor);
}

/// Whether `left` stands for its device rather than `right`; neither does when the earlier one is to.
bool isPreferred(const Mount* left, const Mount* right) {
    if ((left->path == "/") != (right->path == "/"))
        return left->path == "/";
    if ((left->root == "/") != (right->root == "/"))
        return left->root == "/";
    return left->fileSystem == "zfs" && left->path.size() < right->path.size();
}

} // namespace

std::vector<Mount> parseMountinfo(std::string_view text) {
    std::vector<Mount> mounts;
    while (!text.empty()) {
        if (std::optional<Mount> mount = parseMount(takeLine(text)))
            mounts.push_back(*std::move(mount));
    }
    return mounts;
}

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

HiddenPaths hiddenPathsInFstab(std::string_view fstab) {
    HiddenPaths hidden;
    while (!fstab.empty()) {
        std::string_view line = trimmed(takeLine(fstab));
        if (line.starts_with('#'))
            continue;
        takeWord(line); // the device
        std::string_view path = takeWord(line);
        while (path.size() > 1 && path.ends_with('/'))
            path.remove_suffix(1); // the kernel lists mounts without it
        takeWord(line);            // the file system
        std::string_view options = takeWord(line);
        while (!options.empty()) {
            if (takeUntil(options, ',') == "x-gvfs-hide")
                hidden.insert(withoutOctalEscapes(path));
        }
    }
    return hidden;
}

std::vector<Mount> chosenVolumes(const std::vector<Mount>& mounts, const HiddenPaths& hidden,
                                 const IsSingleFile& isSingleFile) {
    const MountTree tree(mounts);
    std::map<std::string, std::vector<const Mount*>> candidatesByDevice;
    for (const Mount& mount : mounts) {
        if (isCandidate(mount, hidden) && tree.isReachable(mount))
            candidatesByDevice[deviceKey(mount)].push_back(&mount);
    }
    std::vector<const Mount*> chosen;
    for (auto& [device, candidates] : candidatesByDevice) {
        std::ranges::stable_sort(candidates, isPreferred);
        const auto volume = std::ranges::find_if(candidates, [&isSingleFile](const Mount* mount) {
            return mount->root == "/" || !isSingleFile(*mount);
        });
        if (volume != candidates.end())
            chosen.push_back(*volume);
    }
    std::ranges::sort(chosen); // all point into one vector, so this is mount order
    std::vector<Mount> volumes;
    std::ranges::transform(chosen, std::back_inserter(volumes), [](const Mount* mount) { return *mount; });
    return volumes;
}

} // namespace orvelle::linux_platform
