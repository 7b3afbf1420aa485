#pragma once

#include "platform/linux/mountinfo.h"

#include <filesystem>
#include <map>
#include <optional>

namespace orvelle::linux_platform {

/// The labels of the file systems on a machine's block devices, as udev lists them in `dev/disk/by-label`.
class VolumeLabels {
public:
    explicit VolumeLabels(std::filesystem::path root);

    /// The label of the file system that is mounted, fit to be shown; nothing when it has none.
    [[nodiscard]] std::optional<std::string> labelOf(const Mount& mount) const;

private:
    std::filesystem::path m_root;
    std::map<std::string, std::string> m_labelsByDevice;
};

} // namespace orvelle::linux_platform
