#include "core/memory_monitor.h"

#include "core/checked.h"
#include "core/published.h"

#include <algorithm>

namespace orvelle {
namespace {

/// Memory that programs and the system hold, file-backed and purgeable pages left out.
quint64 usedBytes(const MemoryMonitorInfo& info, quint64 physicalMemory) {
    const quint64 held =
        checkedAdd(checkedAdd(info.active, info.inactive), checkedAdd(info.wired, info.compressed));
    const qint64 applicationMemory =
        checkedSubtract(checkedConvert<qint64>(held), checkedConvert<qint64>(info.cached));
    return applicationMemory < 0 ? 0 : std::min(physicalMemory, static_cast<quint64>(applicationMemory));
}

MemoryMonitorInfo infoFrom(const MemoryReading& reading) {
    const auto bytes = [&reading](std::uint64_t pages) -> quint64 {
        return checkedMultiply(pages, reading.pageSize);
    };
    MemoryMonitorInfo info;
    info.free = bytes(reading.freePages);
    info.active = bytes(reading.activePages);
    info.inactive = bytes(reading.inactivePages);
    info.wired = bytes(reading.wiredPages);
    info.compressed = bytes(reading.compressorPages);
    info.cached = checkedAdd(bytes(reading.purgeablePages), bytes(reading.externalPages));
    info.total = checkedConvert<quint64>(reading.physicalMemory);
    info.used = usedBytes(info, info.total);
    info.swapTotal = reading.swapTotal;
    info.swapUsed = reading.swapUsed;
    return info;
}

} // namespace

double usedFraction(const MemoryMonitorInfo& info) {
    return info.total == 0 ? 0 : static_cast<double>(info.used) / static_cast<double>(info.total);
}

double pressureFraction(const MemoryMonitorInfo& info) {
    if (info.total == 0)
        return 0;
    return static_cast<double>(checkedSubtract(info.used, info.cached)) / static_cast<double>(info.total);
}

MemoryMonitor::MemoryMonitor(MemorySource& source, QObject* parent)
    : QObject(parent)
    , m_source(source) {}

void MemoryMonitor::update() {
    const std::optional<MemoryReading> reading = m_source.read();
    if (!reading)
        return;
    publish(this, m_info, infoFrom(*reading), &MemoryMonitor::infoChanged);
    MetricHistory::append(m_pressureHistory, pressureFraction(m_info), maxHistoryCount);
    Q_EMIT pressureHistoryChanged();
}

} // namespace orvelle
