#include "platform/linux/linux_memory_source.h"

#include "platform/linux/directory.h"
#include "platform/linux/text.h"

namespace orvelle::linux_platform {

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
