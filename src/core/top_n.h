#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>

namespace orvelle {

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
