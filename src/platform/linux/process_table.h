#pragma once

#include "core/sources/process_source.h"
#include "platform/linux/files.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace orvelle::linux_platform {

/// Identifies one life of a pid and the program in it; 0 before either is known.
using ProcessLife = std::uint64_t;

/// The known processes, ascending by pid. The records lie side by side in one piece of memory, so that they
/// can be handed out as they are, and what only the sampler needs lies beside them.
class ProcessTable {
public:
    [[nodiscard]] const std::vector<ProcessRecord>& records() const { return m_records; }

    [[nodiscard]] bool contains(std::int32_t pid) const {
        return std::ranges::binary_search(m_records, pid, {}, &ProcessRecord::pid);
    }

    /// Makes room for `count` processes.
    void reserve(std::size_t count) {
        m_records.reserve(count);
        m_lives.reserve(count);
    }

    /// Puts a process that the table does not contain at its place.
    void insert(ProcessRecord record, ProcessLife life) {
        // Doubling would leave up to half of the memory unused for as long as the program runs.
        if (m_records.size() == m_records.capacity())
            reserve(m_records.size() + m_records.size() / 16 + 16);
        const auto place = std::ranges::lower_bound(m_records, record.pid, {}, &ProcessRecord::pid);
        m_lives.insert(m_lives.begin() + (place - m_records.begin()), life);
        m_records.insert(place, std::move(record));
    }

    /// Drops every process for which `isKept(index, record, life)` is false; it may change both.
    template <class Predicate>
    void keepIf(Predicate isKept) {
        std::size_t kept = 0;
        for (std::size_t index = 0; index < m_records.size(); ++index) {
            if (!isKept(index, m_records[index], m_lives[index]))
                continue;
            if (kept != index) {
                m_records[kept] = std::move(m_records[index]);
                m_lives[kept] = m_lives[index];
            }
            ++kept;
        }
        m_records.resize(kept);
        m_lives.resize(kept);
    }

private:
    std::vector<ProcessRecord> m_records;
    std::vector<ProcessLife> m_lives; ///< of the record at the same place
};

/// Where a sample looks for processes that are new since the sample before.
struct NewProcessSearch {
    bool wholeListing = false; ///< in the whole listing of `/proc`, which shows everything
    std::int32_t first = 0;    ///< else among the pids from this one
    std::int32_t last = 0;     ///< to this one, which is included

    bool operator==(const NewProcessSearch&) const = default;
};

/// Decides where to look. The kernel hands out pids in ascending order and wraps at the end, so that the
/// newest pid shows where new processes are. Asking the clock of a pid that no process has costs a sixth of
/// listing one process, and on a desktop, where threads come and go all the time, the newest pid is different
/// in nearly every sample.
class NewProcessSearchPlan {
public:
    /// Samples between two whole listings: they find processes that the newest pid does not show, such as one
    /// whose pid was chosen by its parent.
    static constexpr unsigned samplesPerListing = 10;
    /// A pid is handed out a moment before its process can be seen, so that the last few of the sample before
    /// are asked once more.
    static constexpr std::int32_t askedAgain = 8;

    /// `newestPid` is nothing when unknown; `knownCount` is the number of known processes.
    [[nodiscard]] NewProcessSearch next(std::optional<std::int32_t> newestPid, std::size_t knownCount);

private:
    unsigned m_sampleCount = 0;
    std::optional<std::int32_t> m_newestPid; ///< at the sample before
};

/// The newest pid that the kernel handed out, from `proc/loadavg`; threads count too.
class NewestPid {
public:
    explicit NewestPid(const std::filesystem::path& root);
    /// Nothing when it cannot be read or the file is not the kernel's own: some containers replace it with a
    /// generated one, whose last number may belong to another pid namespace or never change.
    [[nodiscard]] std::optional<std::int32_t> read();

private:
    KeptFile m_loadAverages;
    bool m_isKernelFile;
};

/// The fifth field of `/proc/loadavg`; nothing when it is missing or no pid.
[[nodiscard]] std::optional<std::int32_t> parseNewestPid(std::string_view text);

} // namespace orvelle::linux_platform
