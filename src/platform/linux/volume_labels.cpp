#include "platform/linux/volume_labels.h"

#include "platform/linux/directory.h"
#include "platform/linux/escapes.h"
#include "platform/names/sanitize.h"

namespace orvelle::linux_platform {
namespace {

/// The last component of a link's target, which is not looked up; empty when there is no such link.
std::string linkedName(const std::filesystem::path& link) {
    std::error_code ignored;
    return std::filesystem::read_symlink(link, ignored).filename().string();
}

} // namespace

VolumeLabels::VolumeLabels(std::filesystem::path root)
    : m_root(std::move(root)) {
    const std::filesystem::path directory = m_root / "dev/disk/by-label";
    for (const std::string& link : namesIn(directory)) {
        const std::string device = linkedName(directory / link);
        if (!device.empty())
            m_labelsByDevice.emplace(device, withoutHexEscapes(link));
    }
}

std::optional<std::string> VolumeLabels::labelOf(const Mount& mount) const {
    const std::filesystem::path source = std::filesystem::path(mount.source).lexically_normal();
    if (m_labelsByDevice.empty() || !source.native().starts_with("/dev/"))
        return std::nullopt;
    // The source may be the device itself, a link that the device mapper made or a name that no device has
    // (/dev/root), where only the number leads to the device.
    const std::string number = std::to_string(mount.deviceMajor) + ':' + std::to_string(mount.deviceMinor);
    for (const std::string& device :
         {linkedName(m_root / "sys/dev/block" / number), source.filename().string(),
          linkedName(m_root / source.relative_path())}) {
        const auto position = m_labelsByDevice.find(device);
        if (position == m_labelsByDevice.end())
            continue;
        std::string label = sanitizedName(position->second);
        return label.empty() ? std::nullopt : std::optional(std::move(label));
    }
    return std::nullopt;
}

} // namespace orvelle::linux_platform
