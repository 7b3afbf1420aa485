#include "platform/linux/linux_process_source.h"

#include "platform/linux/files.h"
#include "platform/linux/linux_memory_source.h"
#include "platform/linux/process_clock.h"
#include "platform/linux/text.h"

#include <functional>
#include <utility>

namespace orvelle::linux_platform {
namespace {

/// An idle process can lose resident pages without running, so in every sample a share of the idle ones is
/// read, each in its turn.
constexpr std::size_t idleProcessesPerRead = 50;

std::uint64_t bounded(std::uint64_t nanoseconds) {
    return std::min(nanoseconds, ProcessRecord::maximumNanoseconds);
}

constexpr ProcessLife kernelThreadBit = 1;

/// The start time identifies a reused pid, the short name an exec. Both are in one number, since thousands
/// are kept. Its lowest bit is set for a thread of the kernel.
ProcessLife lifeOf(const ProcessStat& stat) {
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15; // 2^64 over the golden ratio
    const ProcessLife life = std::hash<std::string_view>{}(stat.comm) ^ (stat.startTime * spread);
    return isKernelThread(stat) ? life | kernelThreadBit : life & ~kernelThreadBit;
}

} // namespace

LinuxProcessSource::LinuxProcessSource(const std::filesystem::path& root, ProcessTimesFrom timesFrom,
                                       ProcessUnits units)
    : m_meminfoPath(root / "proc/meminfo")
    , m_timesFrom(timesFrom)
    , m_units(units)
    , m_files(root)
    , m_newestPid(root) {}

std::optional<std::uint64_t> LinuxProcessSource::readTotalMemory() {
    const std::optional<std::string> text = readFile(m_meminfoPath);
    const std::optional<Meminfo> meminfo = text ? parseMeminfo(*text) : std::nullopt;
    if (!meminfo)
        return std::nullopt;
    return meminfo->total;
}

std::optional<std::span<const ProcessRecord>> LinuxProcessSource::readProcesses() {
    if (!m_files.open())
        return std::nullopt;
    refreshKnownProcesses();
    if (m_timesFrom == ProcessTimesFrom::processClocks)
        findNewProcesses(m_searchPlan.next(m_newestPid.read(), m_table.records().size()));
    else
        findNewProcesses({.wholeListing = true});
    return std::span(m_table.records());
}

void LinuxProcessSource::refreshKnownProcesses() {
    if (m_timesFrom == ProcessTimesFrom::statFiles) {
        m_table.keepIf([this](std::size_t, ProcessRecord& record, ProcessLife& life) {
            return refreshByStat(record, life);
        });
        return;
    }
    const std::size_t count = m_table.records().size();
    if (m_idleTurn >= count)
        m_idleTurn = 0;
    const std::size_t turnEnd = m_idleTurn + (count + idleProcessesPerRead - 1) / idleProcessesPerRead;
    m_table.keepIf([this, turnEnd](std::size_t index, ProcessRecord& record, ProcessLife& life) {
        return refreshByClock(record, life, index >= m_idleTurn && index < turnEnd);
    });
    m_idleTurn = turnEnd;
}

bool LinuxProcessSource::refreshByClock(ProcessRecord& record, ProcessLife& life, bool isIdleTurn) {
    const std::optional<std::uint64_t> time = readProcessClock(record.pid);
    if (!time)
        return false;
    const std::uint64_t before = std::exchange(record.userNanoseconds, bounded(*time));
    // A thread of the kernel has no memory and runs no other program. A clock that went back is another's.
    const bool isKernelThread = (life & kernelThreadBit) != 0;
    const bool mayHaveChanged =
        isKernelThread ? record.userNanoseconds < before : record.userNanoseconds != before;
    return !(mayHaveChanged || isIdleTurn) || refreshByStat(record, life);
}

bool LinuxProcessSource::refreshByStat(ProcessRecord& record, ProcessLife& life) {
    const std::optional<std::string_view> text = m_files.readStat(record.pid);
    const std::optional<ProcessStat> stat = text ? parseProcessStat(*text) : std::nullopt;
    if (!stat || !isRunning(*stat))
        return false;
    if (m_timesFrom == ProcessTimesFrom::statFiles) {
        record.userNanoseconds = nanoseconds(stat->userTicks);
        record.systemNanoseconds = nanoseconds(stat->systemTicks);
    }
    record.residentBytes =
        std::min(saturatingMultiply(stat->residentPages, m_units.pageSize), ProcessRecord::maximumBytes);
    takeName(record, life, *stat);
    return true;
}

void LinuxProcessSource::takeName(ProcessRecord& record, ProcessLife& life, const ProcessStat& stat) {
    const ProcessLife present = lifeOf(stat);
    if (life == present)
        return;
    life = present;
    // The path takes the place of the text that `stat.comm` points into.
    const std::string comm(stat.comm);
    const std::optional<std::string_view> path =
        isKernelThread(stat) ? std::nullopt : m_files.readExecutablePath(record.pid);
    record.name = processName(path.value_or(std::string_view{}), comm);
}

void LinuxProcessSource::findNewProcesses(const NewProcessSearch& search) {
    if (search.wholeListing) {
        const std::vector<std::int32_t>& pids = m_files.list();
        m_table.reserve(pids.size());
        for (const std::int32_t pid : pids)
            addIfNew(pid);
        return;
    }
    for (std::int32_t pid = search.first; pid <= search.last; ++pid)
        addIfNew(pid);
}

void LinuxProcessSource::addIfNew(std::int32_t pid) {
    if (m_table.contains(pid))
        return;
    ProcessRecord record;
    record.pid = pid;
    ProcessLife life = 0;
    const bool isProcess = m_timesFrom == ProcessTimesFrom::processClocks ? refreshByClock(record, life, true)
                                                                          : refreshByStat(record, life);
    if (isProcess)
        m_table.insert(std::move(record), life);
}

std::uint64_t LinuxProcessSource::nanoseconds(std::uint64_t ticks) const {
    return bounded(saturatingMultiply(ticks, nanosecondsPerSecond / m_units.ticksPerSecond));
}

} // namespace orvelle::linux_platform
