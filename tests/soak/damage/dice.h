#pragma once

#include <cstddef>
#include <cstdint>

namespace orvelle::soak {

/// Numbers that look random and are the same on every machine for the same seed.
class Dice {
public:
    explicit Dice(std::uint64_t seed)
        : m_state(seed) {
        static_cast<void>(below(2));
    }

    /// From 0 up to `bound`, which is above 0, exclusively.
    std::size_t below(std::size_t bound) {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U; // Knuth's MMIX generator
        return static_cast<std::size_t>(m_state >> 33U) % bound;
    }
    /// Once in `count` times.
    bool oneIn(std::size_t count) { return below(count) == 0; }

    template <class List>
    auto& pick(List& list) {
        return list[below(list.size())];
    }

private:
    std::uint64_t m_state;
};

} // namespace orvelle::soak
