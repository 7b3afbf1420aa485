#include "platform/linux/interface_addresses.h"

#include "platform/linux/text.h"

#include <arpa/inet.h>
#include <array>
#include <ifaddrs.h>
#include <memory>
#include <netinet/in.h>

namespace orvelle::linux_platform {
namespace {

using Family = InterfaceAddress::Family;

/// `address` is an in_addr or an in6_addr, as `family` says.
std::string numericText(int family, const void* address) {
    std::array<char, INET6_ADDRSTRLEN> text{};
    return ::inet_ntop(family, address, text.data(), text.size()) != nullptr ? text.data() : "";
}

std::optional<InterfaceAddress> addressFrom(const ifaddrs& entry) {
    if (entry.ifa_addr == nullptr || entry.ifa_name == nullptr)
        return std::nullopt;
    // An additional IPv4 address may carry a label of its own, "eth0:1"; the interface is still eth0.
    std::string_view label = entry.ifa_name;
    const std::string name(takeUntil(label, ':'));
    const void* socketAddress = entry.ifa_addr;
    if (entry.ifa_addr->sa_family == AF_INET) {
        const auto* ipv4 = static_cast<const sockaddr_in*>(socketAddress);
        return InterfaceAddress{name, Family::ipv4, numericText(AF_INET, &ipv4->sin_addr)};
    }
    if (entry.ifa_addr->sa_family == AF_INET6) {
        const auto* ipv6 = static_cast<const sockaddr_in6*>(socketAddress);
        return InterfaceAddress{name, Family::ipv6, numericText(AF_INET6, &ipv6->sin6_addr)};
    }
    return std::nullopt;
}

/// Rewritten in the one form that the kernel's addresses have here; nothing when it is no address.
std::optional<InterfaceAddress> addressFrom(std::string_view name, std::string_view text) {
    const std::string address(takeUntil(text, '%'));
    in_addr ipv4{};
    if (::inet_pton(AF_INET, address.c_str(), &ipv4) == 1)
        return InterfaceAddress{std::string(name), Family::ipv4, numericText(AF_INET, &ipv4)};
    in6_addr ipv6{};
    if (::inet_pton(AF_INET6, address.c_str(), &ipv6) == 1)
        return InterfaceAddress{std::string(name), Family::ipv6, numericText(AF_INET6, &ipv6)};
    return std::nullopt;
}

} // namespace

std::optional<std::vector<InterfaceAddress>> hostAddresses() {
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) != 0)
        return std::nullopt;
    const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> owner(first, &::freeifaddrs);
    std::vector<InterfaceAddress> addresses;
    for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next) {
        if (std::optional<InterfaceAddress> address = addressFrom(*entry))
            addresses.push_back(*std::move(address));
    }
    return addresses;
}

std::vector<InterfaceAddress> parseAddresses(std::string_view text) {
    std::vector<InterfaceAddress> addresses;
    while (!text.empty()) {
        std::string_view line = trimmed(takeLine(text));
        const std::string_view name = takeWord(line);
        if (std::optional<InterfaceAddress> address = addressFrom(name, takeWord(line)))
            addresses.push_back(*std::move(address));
    }
    return addresses;
}

} // namespace orvelle::linux_platform
