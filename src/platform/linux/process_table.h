#pragma once

#include "core/sources/process_source.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace orvelle::linux_platform {

/// Tells one life of a pid from the next and one program in it from the next; 0 before either is known.
using ProcessLife = std::uint64_t;

/// The known processes, ascending by pid. The records lie side by side in one piece of memory, so that they
/// can be handed out as they are, and what only the sampler needs lies beside them.
class ProcessTable {
public:
    [[nodiscard]] const std::vector<ProcessRecord>& records() const { return m_records; }

    [[nodiscard]] bool contains(std::int32_t pid) const {
        return std::ranges::binary_search(m_records, pid, {}, &ProcessRecord::pid);
    }

    /// Makes room for so many processes.
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

} // namespace orvelle::linux_platform
