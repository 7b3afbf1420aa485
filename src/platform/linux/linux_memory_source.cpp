#include "platform/linux/linux_memory_source.h"

#include "platform/linux/files.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <array>

namespace orvelle::linux_platform {
namespace {

/// No machine has more memory than this (4 EiB); a larger figure is nonsense and is cut here, which keeps
/// every later sum and product of byte counts within 64 bits.
constexpr std::uint64_t maximumBytes = std::uint64_t{1} << 62;

struct MeminfoLine {
    std::string_view label;
    std::uint64_t Meminfo::* field;
};

constexpr std::array meminfoLines{
    MeminfoLine{"MemTotal", &Meminfo::total},
    MeminfoLine{"MemFree", &Meminfo::free},
    MeminfoLine{"Active(anon)", &Meminfo::activeAnonymous},
    MeminfoLine{"Inactive(anon)", &Meminfo::inactiveAnonymous},
    MeminfoLine{"Active(file)", &Meminfo::activeFile},
    MeminfoLine{"Inactive(file)", &Meminfo::inactiveFile},
    MeminfoLine{"Unevictable", &Meminfo::unevictable},
    MeminfoLine{"SReclaimable", &Meminfo::reclaimableSlab},
    MeminfoLine{"SUnreclaim", &Meminfo::unreclaimableSlab},
    MeminfoLine{"KernelStack", &Meminfo::kernelStack},
    MeminfoLine{"PageTables", &Meminfo::pageTables},
    MeminfoLine{"SecPageTables", &Meminfo::secondaryPageTables},
    MeminfoLine{"Percpu", &Meminfo::perProcessor},
    MeminfoLine{"HugePages_Total", &Meminfo::hugePageCount},
    MeminfoLine{"Hugepagesize", &Meminfo::hugePageSize},
    MeminfoLine{"Zswap", &Meminfo::compressedSwapCache},
    MeminfoLine{"SwapTotal", &Meminfo::swapTotal},
    MeminfoLine{"SwapFree", &Meminfo::swapFree},
};

/// The figure of one line, in bytes where the line says kB.
std::uint64_t takeFigure(std::string_view line) {
    const std::uint64_t number = takeNumber<std::uint64_t>(line).value_or(0);
    const std::uint64_t unit = takeWord(line) == "kB" ? 1024 : 1;
    return std::min(saturatingMultiply(number, unit), maximumBytes);
}

std::uint64_t wiredBytes(const Meminfo& meminfo, const MemoryBesideMeminfo& beside) {
    std::uint64_t sum = saturatingMultiply(meminfo.hugePageCount, meminfo.hugePageSize);
    for (const std::uint64_t part :
         {meminfo.unevictable, meminfo.unreclaimableSlab, meminfo.kernelStack, meminfo.pageTables,
          meminfo.secondaryPageTables, meminfo.perProcessor, beside.arcSize})
        sum = saturatingAdd(sum, part);
    return sum;
}

} // namespace

std::optional<Meminfo> parseMeminfo(std::string_view text) {
    Meminfo meminfo;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        const std::string_view label = takeUntil(line, ':');
        const auto found = std::ranges::find(meminfoLines, label, &MeminfoLine::label);
        if (found != meminfoLines.end())
            meminfo.*found->field = takeFigure(line);
    }
    if (meminfo.total == 0)
        return std::nullopt;
    return meminfo;
}

MemoryBesideMeminfo parseArcStatistics(std::string_view text) {
    MemoryBesideMeminfo beside;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        const std::string_view name = takeWord(line);
        takeWord(line); // the type of the value
        if (name == "size")
            beside.arcSize = std::min(takeNumber<std::uint64_t>(line).value_or(0), maximumBytes);
        else if (name == "c_min")
            beside.arcMinimum = std::min(takeNumber<std::uint64_t>(line).value_or(0), maximumBytes);
    }
    return beside;
}

std::uint64_t parseZramMemoryUsed(std::string_view text) {
    std::string_view line = takeLine(text);
    takeWord(line); // original data size
    takeWord(line); // compressed data size
    return std::min(takeNumber<std::uint64_t>(line).value_or(0), maximumBytes);
}

MemoryReading memoryReading(const Meminfo& meminfo, const MemoryBesideMeminfo& beside,
                            std::uint64_t pageSize) {
    const std::uint64_t totalPages = meminfo.total / pageSize;
    std::uint64_t roomLeft = totalPages;
    // Takes pages out of what the machine has, so that nonsense in one line cannot push the sum over the
    // total.
    const auto take = [&roomLeft, pageSize](std::uint64_t bytes) {
        const std::uint64_t pages = std::min(bytes / pageSize, roomLeft);
        roomLeft -= pages;
        return pages;
    };

    MemoryReading reading;
    reading.pageSize = pageSize;
    reading.physicalMemory = static_cast<std::int64_t>(meminfo.total);
    reading.wiredPages = take(wiredBytes(meminfo, beside));
    reading.compressorPages = take(saturatingAdd(meminfo.compressedSwapCache, beside.zramPools));
    reading.activePages = take(meminfo.activeAnonymous);
    reading.inactivePages = take(meminfo.inactiveAnonymous);

    // The pressure rule takes the cache off twice. Held memory includes the purgeable part of the ARC, while
    // the active file pages are added to active below, so used = held - purgeable must stay >= purgeable +
    // external.
    std::uint64_t held =
        reading.wiredPages + reading.compressorPages + reading.activePages + reading.inactivePages;
    const std::uint64_t arcAboveMinimum = saturatingSubtract(beside.arcSize, beside.arcMinimum) / pageSize;
    reading.purgeablePages = std::min(arcAboveMinimum, reading.wiredPages);
    // The share beyond half of everything held cannot be shown as cache, so it is shown as free.
    const std::uint64_t cutArc = saturatingSubtract(2 * reading.purgeablePages, held);
    reading.purgeablePages -= cutArc;
    reading.wiredPages -= cutArc;
    held -= cutArc;
    roomLeft += cutArc;
    const std::uint64_t mostExternal = held - 2 * reading.purgeablePages;
    reading.externalPages = take(std::min(meminfo.activeFile, mostExternal * pageSize));
    reading.activePages += reading.externalPages;

    const std::uint64_t cutFile = saturatingSubtract(meminfo.activeFile, reading.externalPages * pageSize);
    std::uint64_t available = 0;
    for (const std::uint64_t part : {meminfo.free, meminfo.inactiveFile, meminfo.reclaimableSlab, cutFile,
                                     saturatingMultiply(cutArc, pageSize)})
        available = saturatingAdd(available, part);
    reading.freePages = take(available);
    reading.swapTotal = meminfo.swapTotal;
    reading.swapUsed = saturatingSubtract(meminfo.swapTotal, meminfo.swapFree);
    return reading;
}

LinuxMemorySource::LinuxMemorySource(std::filesystem::path root, std::uint64_t pageSize)
    : m_root(std::move(root))
    , m_pageSize(pageSize)
    , m_meminfo(m_root / "proc/meminfo", KeptFile::Layout::single) {}

std::optional<MemoryReading> LinuxMemorySource::read() {
    if (m_searchPace.isSearchDue())
        findRareFiles();
    const std::optional<std::string_view> text = m_meminfo.read();
    const std::optional<Meminfo> meminfo = text ? parseMeminfo(*text) : std::nullopt;
    if (!meminfo)
        return std::nullopt;
    return memoryReading(*meminfo, readBesideMeminfo(), m_pageSize);
}

void LinuxMemorySource::findRareFiles() {
    std::error_code ignored;
    const std::filesystem::path arcStatistics = m_root / "proc/spl/kstat/zfs/arcstats";
    if (!std::filesystem::exists(arcStatistics, ignored))
        m_arcStatistics.reset();
    else if (!m_arcStatistics)
        m_arcStatistics.emplace(arcStatistics, KeptFile::Layout::single);

    m_zramStatistics.clear();
    for (const std::string& device : namesIn(m_root / "sys/block")) {
        if (device.starts_with("zram"))
            m_zramStatistics.emplace_back(m_root / "sys/block" / device / "mm_stat",
                                          KeptFile::Layout::single);
    }
}

MemoryBesideMeminfo LinuxMemorySource::readBesideMeminfo() {
    MemoryBesideMeminfo beside;
    if (m_arcStatistics) {
        if (const auto text = m_arcStatistics->read())
            beside = parseArcStatistics(*text);
    }
    for (KeptFile& statistics : m_zramStatistics) {
        if (const auto text = statistics.read())
            beside.zramPools = saturatingAdd(beside.zramPools, parseZramMemoryUsed(*text));
    }
    return beside;
}

} // namespace orvelle::linux_platform
