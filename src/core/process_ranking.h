#pragma once

#include "core/sources/clock.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
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
    /// Begins a sample of `processCount` processes, none of which has been seen yet.
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

/// Keeps the few items of greatest weight out of many that are offered one by one: what a stable sort by
/// descending weight would put first, without keeping or moving the others.
template <class Item, class Weight, std::size_t maximumCount>
class TopN {
public:
    struct Ranked {
        Item item{};
        Weight weight{};
    };

    /// Takes `item` in when it is heavier than the lightest one kept. Of equal weights the first offered
    /// comes first.
    void offer(const Item& item, const Weight& weight) {
        if (m_count == maximumCount && !(weight > m_ranked[maximumCount - 1].weight))
            return;
        m_count = std::min(m_count + 1, maximumCount);
        std::size_t place = m_count - 1;
        for (; place > 0 && weight > m_ranked[place - 1].weight; --place)
            m_ranked[place] = std::move(m_ranked[place - 1]);
        m_ranked[place] = {.item = item, .weight = weight};
    }

    /// The items kept, heaviest first.
    [[nodiscard]] std::span<const Ranked> ranked() const { return std::span(m_ranked).first(m_count); }

private:
    std::array<Ranked, maximumCount> m_ranked{};
    std::size_t m_count = 0;
};

} // namespace orvelle
