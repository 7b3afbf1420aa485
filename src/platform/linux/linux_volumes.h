#pragma once

#include "core/sources/disk_source.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/mountinfo.h"
#include "platform/linux/volume_space.h"

namespace orvelle::linux_platform {

/// The mounted volumes: chosen from `proc/self/mountinfo`, hidden by `etc/fstab`, named by
/// `dev/disk/by-label`. On the running system the choice is made anew when the kernel announces a change of
/// the mounts, and their space is asked of the kernel at each reading; a volume that takes long to answer is
/// asked less often, and what it told last stays meanwhile. In another tree everything is read each time, the
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
    [[nodiscard]] bool isSingleFile(const Mount& mount) const;
    [[nodiscard]] Volume asKnownBefore(const Mount& mount) const;
    void measure();
    void measureFromTree();

    std::filesystem::path m_root;
    bool m_isHost;
    KeptFile m_mountinfo;
    SpaceReader m_readSpace; ///< none where the tree's file tells
    std::vector<Volume> m_volumes;
    unsigned m_readingsUntilChoice = 0;
};

} // namespace orvelle::linux_platform
