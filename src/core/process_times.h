#pragma once

#include "core/sources/clock.h"

#include <cstdint>
#include <vector>

namespace orvelle {

/// The processor times of one process at an earlier sample.
struct ProcessTimes {
    std::uint64_t userNanoseconds = 0;
    std::uint64_t systemNanoseconds = 0;
    WallTime timestamp;
};

/// Process ids and their earlier times: a dictionary in one piece of memory, because thousands of processes
/// are looked up in every sample and nearly all of them are the ones of the sample before.
class ProcessTimesByPid {
public:
    /// Begins a sample of so many processes: from here on none of them has been seen.
    void beginSample(std::size_t processCount);
    /// The times of `pid`, which counts as seen from now on; null for an unknown process. Valid until the
    /// next call of any other member.
    [[nodiscard]] ProcessTimes* see(std::int32_t pid);
    /// Remembers a process that `see` did not know; it counts as seen, and is known from the next sample on.
    void add(std::int32_t pid, const ProcessTimes& times);
    /// Ends a sample: forgets every process that was not seen in it.
    void forgetUnseen();

    [[nodiscard]] std::size_t size() const { return m_entries.size(); }

private:
    struct Entry {
        std::int32_t pid = 0;
        std::uint32_t seenInSample = 0;
        ProcessTimes times;
    };

    std::vector<Entry> m_entries; ///< ascending by pid up to `m_sortedCount`, then those added in this sample
    std::size_t m_sortedCount = 0;
    std::size_t m_hint = 0; ///< where the next process is when they come in the order of the sample before
    std::uint32_t m_sample = 0;
};

} // namespace orvelle
