#include "platform/linux/linux_processor_source.h"

#include "platform/linux/proc_stat.h"

namespace orvelle::linux_platform {

LinuxProcessorSource::LinuxProcessorSource(const std::filesystem::path& root)
    : m_stat(root / "proc/stat", KeptFile::Layout::single)
    , m_loadAverages(root / "proc/loadavg", KeptFile::Layout::single) {}

std::optional<std::vector<CoreTicks>> LinuxProcessorSource::readTicks() {
    m_bootTime.reset();
    const std::optional<std::string_view> text = m_stat.read();
    std::optional<ProcStat> stat = text ? parseProcStat(*text) : std::nullopt;
    if (!stat)
        return std::nullopt;
    m_bootTime = stat->bootTime;
    return std::move(stat->cores);
}

std::optional<std::array<double, 3>> LinuxProcessorSource::readLoadAverages() {
    const std::optional<std::string_view> text = m_loadAverages.read();
    return text ? parseLoadAverages(*text) : std::nullopt;
}

} // namespace orvelle::linux_platform
