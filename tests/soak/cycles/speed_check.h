#pragma once

#include "core/system_monitor.h"
#include "failures.h"
#include "watched_sources.h"

#include <map>

namespace orvelle::soak {

/// Checks the published speeds against what the counters allow. A speed is the difference of a counter
/// between two samples, divided by the time between them, and 0 if the counter went back, was not there
/// before or no time passed.
class SpeedCheck {
public:
    /// After each cycle. `now` is the clock that measures the time between samples.
    void check(SystemMonitor& monitor, const Answers& answers, WallTime now, Failures& failures);

private:
    struct Bytes {
        std::uint64_t in = 0;
        std::uint64_t out = 0;
    };
    struct Times {
        std::uint64_t user = 0;
        std::uint64_t system = 0;
        WallTime at;
        std::uint64_t sample = 0; ///< that listed the process last
    };
    using BytesByName = std::map<std::string, Bytes>;

    void checkNetwork(const NetworkMonitor& network, const Answers& answers, WallTime now,
                      Failures& failures);
    void checkInterfaces(const NetworkMonitor& network, const BytesByName& present, double elapsed,
                         Failures& failures);
    void checkDisk(const DiskMonitor& disk, const Answers& answers, WallTime now, Failures& failures);
    void checkProcesses(const ProcessMonitor& process, const Answers& answers, WallTime now,
                        Failures& failures);
    [[nodiscard]] double usageOf(const ProcessRecord& process, WallTime now);

    BytesByName m_interfaces; ///< of the sample before
    std::optional<WallTime> m_networkTime;
    HistoryCheck m_downloads{"the history of downloads"};
    HistoryCheck m_uploads{"the history of uploads"};

    DiskCounters m_disks;
    std::optional<WallTime> m_diskTime;
    DiskIOInfo m_diskIO;
    HistoryCheck m_reads{"the history of reads"};
    HistoryCheck m_writes{"the history of writes"};

    std::map<std::int32_t, Times> m_processes;
    std::uint64_t m_sample = 0;
};

} // namespace orvelle::soak
