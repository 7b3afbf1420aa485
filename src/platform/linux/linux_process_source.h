#pragma once

#include "core/sources/process_source.h"
#include "platform/linux/process_files.h"
#include "platform/linux/process_table.h"

#include <filesystem>

namespace orvelle::linux_platform {

/// Where the processor times of processes are taken from. A source keeps to one way for good, because the
/// two divide and round time differently and must not be subtracted from each other.
enum class ProcessTimesFrom {
    processClocks, ///< the sum as user time, in nanoseconds; `stat` is read only where the clock moved on
    statFiles,     ///< user and system time, each rounded down to a tick; every `stat` is read every time
};

/// The units in which the kernel counts. A tree of files does not contain its own, so it has the most common
/// ones.
struct ProcessUnits {
    std::uint64_t pageSize = 4096;      ///< bytes
    std::uint64_t ticksPerSecond = 100; ///< above 0
};

/// Answers from `proc/PID/stat`, `proc/PID/exe` and the CPU clocks of the processes. Zombies and processes
/// without a task are left out, and so are those that `/proc` hides from this user. The processor time of a
/// process in either way is the same to a tick of each kind. From one thread only.
class LinuxProcessSource final : public ProcessSource {
public:
    /// `processClocks` asks for the processes of the running system, so `root` must be its own (see
    /// `clocksTellOfListedProcesses`).
    LinuxProcessSource(const std::filesystem::path& root, ProcessTimesFrom timesFrom,
                       ProcessUnits units = {});

    [[nodiscard]] std::optional<std::uint64_t> readTotalMemory() override;
    [[nodiscard]] std::optional<std::span<const ProcessRecord>> readProcesses() override;

private:
    void refreshKnownProcesses();
    [[nodiscard]] bool refreshByClock(ProcessRecord& record, ProcessLife& life, bool isIdleTurn);
    [[nodiscard]] bool refreshByStat(ProcessRecord& record, ProcessLife& life);
    void takeName(ProcessRecord& record, ProcessLife& life, const ProcessStat& stat);
    void findNewProcesses(const NewProcessSearch& search);
    void addIfNew(std::int32_t pid);
    [[nodiscard]] std::uint64_t nanoseconds(std::uint64_t ticks) const;

    std::filesystem::path m_meminfoPath;
    ProcessTimesFrom m_timesFrom;
    ProcessUnits m_units;
    ProcessFiles m_files;
    NewestPid m_newestPid;
    NewProcessSearchPlan m_searchPlan;
    ProcessTable m_table;
    std::size_t m_idleTurn = 0; ///< index of the process whose `stat` is read next although it is idle
};

} // namespace orvelle::linux_platform
