#pragma once

#include "core/sources/disk_source.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/mountinfo.h"
#include "platform/linux/volume_space.h"

namespace orvelle::linux_platform {

/// The mounted volumes: chosen from `proc/self/mountinfo`, hidden by `etc/fstab`, named by
/// `dev/disk/by-label`. On the running system the choice is made anew when the kernel announces a change of
/// the mounts, and their space is asked of the kernel: of up to four volumes at each reading, of more in
/// turn, so that what is told of one is up to ten readings old. In another tree everything is read each time,
/// the space from its file `statfs`.
class LinuxVolumes {
public:
    explicit LinuxVolumes(std::filesystem::path root);

    /// The volumes whose space is known, in mount order; nothing when the mounts cannot be read.
    [[nodiscard]] std::optional<std::vector<MountedVolume>> read();

private:
    struct Volume {
        std::string path; ///< as the kernel knows it
        MountedVolume published;
        std::optional<VolumeSpace> space;
    };

    [[nodiscard]] bool choose();
    [[nodiscard]] bool isSingleFile(const Mount& mount) const;
    void measure(std::size_t count);
    void measureFromTree();

    std::filesystem::path m_root;
    bool m_isHost;
    KeptFile m_mountinfo;
    std::vector<Volume> m_volumes;
    std::size_t m_nextToMeasure = 0;
    unsigned m_readingsUntilChoice = 0;
};

} // namespace orvelle::linux_platform
