#pragma once

#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace orvelle::soak {

/// Numbers that are the same for the same seed on every system. The distributions of the standard library
/// differ between systems.
class Random {
public:
    explicit Random(std::uint64_t seed)
        : m_engine(seed) {}

    /// From 0 to `last`, which is included.
    [[nodiscard]] std::uint64_t upTo(std::uint64_t last) {
        const std::uint64_t number = m_engine();
        return last == UINT64_MAX ? number : number % (last + 1);
    }
    [[nodiscard]] std::uint64_t between(std::uint64_t first, std::uint64_t last) {
        return first + upTo(last - first);
    }
    /// True once in `count` calls on average.
    [[nodiscard]] bool oneIn(std::uint64_t count) { return upTo(count - 1) == 0; }

    /// One of the elements of a container that is not empty.
    template <class Container>
    [[nodiscard]] auto& oneOf(Container& container) {
        const auto last = static_cast<std::uint64_t>(std::size(container)) - 1;
        return *std::next(std::begin(container), static_cast<std::ptrdiff_t>(upTo(last)));
    }

    /// A name that does not come again, as container runtimes give to interfaces.
    [[nodiscard]] std::string name(const std::string& start) {
        return start + std::to_string(upTo(999'999'999));
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace orvelle::soak
