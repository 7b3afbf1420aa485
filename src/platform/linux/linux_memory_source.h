#pragma once

#include "core/sources/memory_source.h"
#include "platform/linux/files.h"
#include "platform/linux/search_pace.h"

#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// The lines of `/proc/meminfo` that the reading is made of, in bytes, or a count where the name says so.
/// A line that this kernel does not have counts as 0. (Documentation/filesystems/proc.rst, "meminfo")
struct Meminfo {
    std::uint64_t total = 0;
    std::uint64_t free = 0;
    std::uint64_t activeAnonymous = 0;   ///< `Active(anon)`, shared memory and swap cache included
    std::uint64_t inactiveAnonymous = 0; ///< `Inactive(anon)`
    std::uint64_t activeFile = 0;
    std::uint64_t inactiveFile = 0;
    std::uint64_t unevictable = 0;
    std::uint64_t reclaimableSlab = 0;
    std::uint64_t unreclaimableSlab = 0;
    std::uint64_t kernelStack = 0;
    std::uint64_t pageTables = 0;
    std::uint64_t secondaryPageTables = 0;
    std::uint64_t perProcessor = 0;
    std::uint64_t hugePageCount = 0;
    std::uint64_t hugePageSize = 0;
    std::uint64_t compressedSwapCache = 0; ///< `Zswap`: the pool of compressed pages
    std::uint64_t swapTotal = 0;
    std::uint64_t swapFree = 0;
};

/// Memory that stands in no line of `/proc/meminfo`, in bytes.
struct MemoryBesideMeminfo {
    std::uint64_t arcSize = 0;    ///< the ZFS cache now (`size` of arcstats)
    std::uint64_t arcMinimum = 0; ///< what ZFS keeps of it under pressure (`c_min`)
    std::uint64_t zramPools = 0;  ///< memory that compressed RAM disks occupy
};

/// Nothing when there is no usable `MemTotal` line.
[[nodiscard]] std::optional<Meminfo> parseMeminfo(std::string_view text);

/// Size and minimum of `/proc/spl/kstat/zfs/arcstats`; other fields stay 0.
[[nodiscard]] MemoryBesideMeminfo parseArcStatistics(std::string_view text);

/// The third number of a zram device's `mm_stat`: bytes of memory that the device occupies; 0 when malformed
/// (Documentation/admin-guide/blockdev/zram.rst).
[[nodiscard]] std::uint64_t parseZramMemoryUsed(std::string_view text);

/// Chooses the page counters so that "used" is memory that programs and the kernel cannot give back at once,
/// "cached" is the part of the cache in active use and "free" is memory that is available at once. The
/// kernel's page cache is often larger than everything else, so the cache is reported only up to the amount
/// that keeps used >= cached; what is cut counts as free. The parts never exceed the total, however odd the
/// text.
[[nodiscard]] MemoryReading memoryReading(const Meminfo& meminfo, const MemoryBesideMeminfo& beside,
                                          std::uint64_t pageSize);

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
