#pragma once

#include "platform/linux/mountinfo.h"

#include <functional>
#include <set>

namespace orvelle::linux_platform {

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
