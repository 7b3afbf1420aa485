#include "core/process_ranking.h"

#include <algorithm>

namespace orvelle {

void ProcessTimesByPid::beginSample(std::size_t processCount) {
    // Doubling would leave up to half of the memory unused for as long as the program runs, and a few more
    // processes come sooner or later.
    if (processCount > m_entries.capacity())
        m_entries.reserve(processCount + processCount / 32 + 16);
    ++m_sample;
    m_hint = 0;
}

ProcessTimes* ProcessTimesByPid::see(std::int32_t pid) {
    if (m_hint >= m_sortedCount || m_entries[m_hint].pid != pid) {
        const auto sortedEnd = m_entries.begin() + static_cast<std::ptrdiff_t>(m_sortedCount);
        const auto found = std::ranges::lower_bound(m_entries.begin(), sortedEnd, pid, {}, &Entry::pid);
        if (found == sortedEnd || found->pid != pid)
            return nullptr;
        m_hint = static_cast<std::size_t>(found - m_entries.begin());
    }
    Entry& entry = m_entries[m_hint++];
    entry.seenInSample = m_sample;
    return &entry.times;
}

void ProcessTimesByPid::add(std::int32_t pid, const ProcessTimes& times) {
    m_entries.push_back({.pid = pid, .seenInSample = m_sample, .times = times});
}

void ProcessTimesByPid::forgetUnseen() {
    std::erase_if(m_entries, [this](const Entry& entry) { return entry.seenInSample != m_sample; });
    if (!std::ranges::is_sorted(m_entries, {}, &Entry::pid))
        std::ranges::sort(m_entries, {}, &Entry::pid);
    m_sortedCount = m_entries.size();
}

} // namespace orvelle
