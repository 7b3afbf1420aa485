#pragma once

#include "core/sources/memory_source.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/meminfo.h"
#include "platform/linux/search_pace.h"

#include <vector>

namespace orvelle::linux_platform {

/// Answers from `proc/meminfo`, the ZFS cache's statistics and the zram devices under a root directory.
class LinuxMemorySource final : public MemorySource {
public:
    /// `pageSize` in bytes, above 0.
    LinuxMemorySource(std::filesystem::path root, std::uint64_t pageSize);

    [[nodiscard]] std::optional<MemoryReading> read() override;

private:
    void findRareFiles();
    [[nodiscard]] MemoryBesideMeminfo readBesideMeminfo();

    std::filesystem::path m_root;
    std::uint64_t m_pageSize;
    KeptFile m_meminfo;
    std::optional<KeptFile> m_arcStatistics;
    std::vector<KeptFile> m_zramStatistics;
    SearchPace m_searchPace; ///< whether ZFS or a compressed RAM disk exists changes rarely
};

} // namespace orvelle::linux_platform
