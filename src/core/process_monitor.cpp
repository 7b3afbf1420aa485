#include "core/process_monitor.h"

#include "core/checked.h"
#include "core/process_ranking.h"
#include "core/published.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double maximumUsagePercent = 800;

/// A process and its usage, before it is known whether it is published.
struct Candidate {
    const ProcessRecord* process = nullptr;
    double cpuUsage = 0;
};

template <class Weight>
using HeaviestProcesses = TopN<Candidate, Weight, ProcessMonitor::maximumListed>;

} // namespace

double cpuUsageBetween(const ProcessTimes& previous, const ProcessTimes& current) {
    const double elapsedSeconds = secondsBetween(previous.timestamp, current.timestamp);
    if (elapsedSeconds <= 0)
        return 0;
    const std::uint64_t used =
        checkedAdd(counterDelta(current.userNanoseconds, previous.userNanoseconds),
                   counterDelta(current.systemNanoseconds, previous.systemNanoseconds));
    const double percent = static_cast<double>(used) / double{nanosecondsPerSecond} / elapsedSeconds * 100;
    return std::min(percent, maximumUsagePercent);
}

ProcessMonitor::ProcessMonitor(ProcessSource& source, WallClock now, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_now(std::move(now))
    , m_totalMemory(source.readTotalMemory().value_or(0)) {}

void ProcessMonitor::update() {
    HeaviestProcesses<double> byUsage;
    HeaviestProcesses<std::uint64_t> byMemory;
    if (const auto processes = m_source.readProcesses(); processes && !processes->empty()) {
        const WallTime now = m_now();
        m_previousCPUTimes.beginSample(processes->size());
        for (const ProcessRecord& process : *processes) {
            if (process.pid <= 0)
                continue;
            if (process.name.empty()) {
                // Listed, so what was known of it is not forgotten.
                static_cast<void>(m_previousCPUTimes.see(process.pid));
                continue;
            }
            const Candidate candidate{.process = &process, .cpuUsage = updateTimes(process, now)};
            byUsage.offer(candidate, candidate.cpuUsage);
            byMemory.offer(candidate, process.residentBytes);
        }
        m_previousCPUTimes.forgetUnseen();
    }

    const auto infos = [this](const auto& heaviest) {
        QList<ProcessInfo> list;
        for (const auto& [candidate, weight] : heaviest.ranked())
            list.append(infoFrom(*candidate.process, candidate.cpuUsage));
        return list;
    };
    publish(this, m_topCPUProcesses, infos(byUsage), &ProcessMonitor::topCPUProcessesChanged);
    publish(this, m_topMemoryProcesses, infos(byMemory), &ProcessMonitor::topMemoryProcessesChanged);
}

double ProcessMonitor::updateTimes(const ProcessRecord& process, WallTime now) {
    const ProcessTimes current{.userNanoseconds = process.userNanoseconds,
                               .systemNanoseconds = process.systemNanoseconds,
                               .timestamp = now};
    ProcessTimes* previous = m_previousCPUTimes.see(process.pid);
    if (previous == nullptr) {
        m_previousCPUTimes.add(process.pid, current);
        return 0;
    }
    const double usage = cpuUsageBetween(*previous, current);
    *previous = current;
    return usage;
}

ProcessInfo ProcessMonitor::infoFrom(const ProcessRecord& process, double cpuUsage) const {
    ProcessInfo info{.pid = process.pid,
                     .name = QString::fromStdString(process.name),
                     .cpuUsage = cpuUsage,
                     .memoryBytes = process.residentBytes};
    if (m_totalMemory > 0)
        info.memoryPercent =
            static_cast<double>(process.residentBytes) / static_cast<double>(m_totalMemory) * 100;
    return info;
}

} // namespace orvelle
