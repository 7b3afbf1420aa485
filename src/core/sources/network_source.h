#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

/// What an interface is, where the system knows.
enum class InterfaceKind { unknown, wifi, ethernet, bridge, vpnTunnel, cellular };

/// One entry of the system's interface list. An interface may have several, for example one for each of its
/// addresses and one with its counters. The last address of each family counts; the counters of all its
/// entries are added. A source keeps the sums of all entries within 64 bits, or its system cannot reach them,
/// because a sum beyond stops the process.
struct InterfaceEntry {
    std::string name; ///< never empty, fit to be shown
    bool isUp = false;
    bool isLoopback = false;
    std::string ipv4Address{};  ///< in numeric form; empty when the entry has none
    std::string ipv6Address{};  ///< in numeric form, link-local ones included; empty when the entry has none
    std::uint64_t bytesIn = 0;  ///< received since the interface appeared
    std::uint64_t bytesOut = 0; ///< sent since the interface appeared
    InterfaceKind kind = InterfaceKind::unknown; ///< in every entry of the interface
    /// Metric of the IPv4 default route that leads to the interface, the lowest of several; nothing without
    /// such a route and when unknown. In every entry of the interface.
    std::optional<std::uint32_t> defaultRouteMetric{};

    bool operator==(const InterfaceEntry&) const = default;
};

/// What `NetworkMonitor` asks of an operating system.
class NetworkSource {
public:
    virtual ~NetworkSource() = default;

    /// The interface list in the system's order; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::vector<InterfaceEntry>> read() = 0;
};

} // namespace orvelle
