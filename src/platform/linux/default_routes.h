#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace orvelle::linux_platform {

/// Metrics of the IPv4 default routes by the name of the interface that they lead to, of each the lowest.
using DefaultRoutes = std::map<std::string, std::uint32_t, std::less<>>;

/// The default routes of the main table, from the text of `proc/net/route`: interface, destination, gateway,
/// flags, reference count, use, metric and mask in columns, addresses and flags in hexadecimal. Routes that
/// are not up, or that reject what is sent, are left out.
[[nodiscard]] DefaultRoutes parseDefaultRoutes(std::string_view text);

} // namespace orvelle::linux_platform
