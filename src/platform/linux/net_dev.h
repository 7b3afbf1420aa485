#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// One line of `/proc/net/dev`. The name points into the text that was parsed.
struct InterfaceCounters {
    std::string_view name;
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;

    bool operator==(const InterfaceCounters&) const = default;
};

/// The interfaces of `/proc/net/dev` (Documentation/filesystems/proc.rst, "Network info") in its order. Lines
/// without both counters and names that no interface can have are left out. Sums of the counters fit into 64
/// bits.
[[nodiscard]] std::vector<InterfaceCounters> parseNetDev(std::string_view text);

} // namespace orvelle::linux_platform
