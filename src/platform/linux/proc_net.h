#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// Whether an interface can have the name: it is that of a directory in sysfs too.
[[nodiscard]] bool isInterfaceName(std::string_view name);

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

/// Metrics of the IPv4 default routes by the name of the interface that they lead to, of each the lowest.
using DefaultRoutes = std::map<std::string, std::uint32_t, std::less<>>;

/// The default routes of the main table, from the text of `proc/net/route`: interface, destination, gateway,
/// flags, reference count, use, metric and mask in columns, addresses and flags in hexadecimal. Routes that
/// are not up, or that reject what is sent, are left out.
[[nodiscard]] DefaultRoutes parseDefaultRoutes(std::string_view text);

} // namespace orvelle::linux_platform
