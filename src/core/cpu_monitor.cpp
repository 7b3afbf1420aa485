#include "core/cpu_monitor.h"

#include "core/checked.h"
#include "core/published.h"

#include <algorithm>

namespace orvelle {
namespace {

/// The shares of one core's time between two samples of its counters.
CPUCoreUsage usageBetween(qint64 id, const CoreTicks& previous, const CoreTicks& current) {
    // Time at low priority is user time.
    const std::uint64_t userDelta =
        counterDelta(checkedAdd(current.user, current.nice), checkedAdd(previous.user, previous.nice));
    const std::uint64_t systemDelta = counterDelta(current.system, previous.system);
    const std::uint64_t idleDelta = counterDelta(current.idle, previous.idle);
    const std::uint64_t total = checkedAdd(checkedAdd(userDelta, systemDelta), idleDelta);
    if (total == 0)
        return {.id = id};
    const auto share = [total](std::uint64_t delta) {
        return static_cast<double>(delta) / static_cast<double>(total);
    };
    return {.id = id, .user = share(userDelta), .system = share(systemDelta), .idle = share(idleDelta)};
}

} // namespace

CPUMonitor::CPUMonitor(ProcessorSource& source, WallClock now, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_now(std::move(now)) {
    m_previousTicks = m_source.readTicks().value_or(std::vector<CoreTicks>{});
}

void CPUMonitor::updateUsage() {
    std::optional<std::vector<CoreTicks>> ticks = m_source.readTicks();
    if (!ticks)
        return;

    QList<CoreUsage> usages;
    usages.reserve(static_cast<qsizetype>(ticks->size()));
    double sumUser = 0;
    double sumSystem = 0;
    for (std::size_t core = 0; core < ticks->size(); ++core) {
        const auto id = static_cast<qint64>(core);
        const bool isNew = core >= m_previousTicks.size();
        usages.append(isNew ? CoreUsage{.id = id} : usageBetween(id, m_previousTicks[core], (*ticks)[core]));
        sumUser += usages.back().user;
        sumSystem += usages.back().system;
    }

    const auto coreCount = static_cast<double>(std::max<qsizetype>(usages.size(), 1));
    publish(this, m_coreUsages, std::move(usages), &CPUMonitor::coreUsagesChanged);
    publish(this, m_userUsage, sumUser / coreCount, &CPUMonitor::userUsageChanged);
    publish(this, m_systemUsage, sumSystem / coreCount, &CPUMonitor::systemUsageChanged);
    publish(this, m_totalUsage, (sumSystem + sumUser) / coreCount, &CPUMonitor::totalUsageChanged);
    MetricHistory::append(m_usageHistory, m_totalUsage, maxHistoryCount);
    Q_EMIT usageHistoryChanged();
    m_previousTicks = std::move(*ticks);
}

void CPUMonitor::updateLoadAverages() {
    const auto load = m_source.readLoadAverages().value_or(std::array<double, 3>{});
    publish(this, m_loadAverage1, load[0], &CPUMonitor::loadAverage1Changed);
    publish(this, m_loadAverage5, load[1], &CPUMonitor::loadAverage5Changed);
    publish(this, m_loadAverage15, load[2], &CPUMonitor::loadAverage15Changed);
}

void CPUMonitor::updateUptime() {
    const std::optional<std::int64_t> bootTime = m_source.readBootTime();
    if (!bootTime)
        return;
    const double now = secondsBetween(WallTime{}, m_now());
    // A wall clock that was set may stand before the start.
    publish(this, m_uptime, std::max(now - static_cast<double>(*bootTime), 0.0), &CPUMonitor::uptimeChanged);
}

} // namespace orvelle
