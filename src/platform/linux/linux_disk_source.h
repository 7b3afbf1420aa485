#pragma once

#include "platform/linux/linux_disk_counters.h"
#include "platform/linux/linux_volumes.h"

namespace orvelle::linux_platform {

/// Answers from the mounts and the disk statistics under a root directory.
class LinuxDiskSource final : public DiskSource {
public:
    explicit LinuxDiskSource(const std::filesystem::path& root)
        : m_volumes(root)
        , m_counters(root) {}

    [[nodiscard]] std::optional<std::vector<MountedVolume>> readVolumes() override {
        return m_volumes.read();
    }
    [[nodiscard]] std::optional<std::vector<DiskCounters>> readCounters() override {
        return m_counters.read();
    }

private:
    LinuxVolumes m_volumes;
    LinuxDiskCounters m_counters;
};

} // namespace orvelle::linux_platform
