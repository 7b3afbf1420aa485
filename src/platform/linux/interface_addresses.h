#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// One address of an interface.
struct InterfaceAddress {
    enum class Family { ipv4, ipv6 };

    std::string interfaceName;
    Family family = Family::ipv4;
    std::string text; ///< in numeric form, without prefix length and zone

    bool operator==(const InterfaceAddress&) const = default;
};

/// Tells the addresses of all interfaces; nothing when the system does not answer.
using AddressReader = std::function<std::optional<std::vector<InterfaceAddress>>()>;

/// The addresses of the running system in the kernel's order (getifaddrs).
[[nodiscard]] std::optional<std::vector<InterfaceAddress>> hostAddresses();

/// The addresses that stand beside a tree of files: an interface name and a numeric address on each line.
/// Anything else is left out.
[[nodiscard]] std::vector<InterfaceAddress> parseAddresses(std::string_view text);

} // namespace orvelle::linux_platform
