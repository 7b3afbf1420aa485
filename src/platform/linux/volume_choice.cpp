#include "platform/linux/volume_choice.h"

#include "platform/linux/escapes.h"
#include "platform/linux/mount_tree.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <array>
#include <map>

namespace orvelle::linux_platform {
namespace {

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
