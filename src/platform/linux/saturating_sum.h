#pragma once

#include <algorithm>
#include <cstdint>

namespace orvelle::linux_platform {

/// Keeps the sum of a list of counters within 64 bits, whatever a damaged text says: each counter is cut at
/// what the ones before it left. No machine moves 2^63 bytes, so real counters are never cut.
class SaturatingSum {
public:
    [[nodiscard]] std::uint64_t take(std::uint64_t counter) {
        const std::uint64_t taken = std::min(counter, m_left);
        m_left -= taken;
        return taken;
    }

private:
    std::uint64_t m_left = std::uint64_t{1} << 63;
};

} // namespace orvelle::linux_platform
