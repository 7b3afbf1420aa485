#include "platform/linux/interface_attributes.h"

#include "platform/linux/text.h"

#include <algorithm>
#include <array>
#include <linux/if_tun.h>
#include <net/if.h>
#include <net/if_arp.h>

namespace orvelle::linux_platform {
namespace {

/// Operational states in which no packet passes (RFC 2863, Documentation/networking/operstates.rst).
constexpr std::array<std::string_view, 4> deadStates{"down", "lowerlayerdown", "notpresent", "dormant"};

struct DeviceTypeKind {
    std::string_view deviceType;
    InterfaceKind kind;
};

/// What drivers call their devices (SET_NETDEV_DEVTYPE in the kernel).
constexpr std::array deviceTypeKinds{
    DeviceTypeKind{"wlan", InterfaceKind::wifi},           DeviceTypeKind{"bridge", InterfaceKind::bridge},
    DeviceTypeKind{"wireguard", InterfaceKind::vpnTunnel}, DeviceTypeKind{"wwan", InterfaceKind::cellular},
    DeviceTypeKind{"dsa", InterfaceKind::ethernet}, // a port of a switch that is built in
};

/// The value of DEVTYPE; empty without one.
std::string_view deviceTypeIn(std::string_view uevent) {
    constexpr std::string_view key = "DEVTYPE=";
    while (!uevent.empty()) {
        const std::string_view line = takeLine(uevent);
        if (line.starts_with(key))
            return trimmed(line.substr(key.size()));
    }
    return {};
}

/// The text of a file that may be missing, without blanks around it.
std::string_view attributeIn(OpenFolder& folder, const char* name) {
    return trimmed(folder.read(name).value_or(""));
}

} // namespace

InterfaceState interfaceState(std::string_view name, std::optional<std::string_view> flags,
                              std::optional<std::string_view> operationalState) {
    const bool isDead =
        std::ranges::find(deadStates, trimmed(operationalState.value_or(""))) != deadStates.end();
    const std::optional<std::uint32_t> bits = flags ? parseHexadecimal(trimmed(*flags)) : std::nullopt;
    if (!bits)
        return {.isUp = !isDead, .isLoopback = name == "lo"};
    return {.isUp = (*bits & unsigned{IFF_UP}) != 0 && !isDead,
            .isLoopback = (*bits & unsigned{IFF_LOOPBACK}) != 0};
}

InterfaceState readInterfaceState(OpenFolder& folder, std::string_view name) {
    if (folder.contains("master"))
        return {.isPort = true};
    const std::optional<std::string_view> flags = folder.read("flags");
    // The second text takes the place of the first.
    const std::optional<std::string> keptFlags = flags ? std::optional<std::string>(*flags) : std::nullopt;
    return interfaceState(name, keptFlags, folder.read("operstate"));
}

InterfaceKind interfaceKind(const InterfaceTraits& traits) {
    const std::string_view deviceType = deviceTypeIn(traits.uevent);
    const auto* named = std::ranges::find(deviceTypeKinds, deviceType, &DeviceTypeKind::deviceType);
    if (traits.isWireless)
        return InterfaceKind::wifi;
    if (traits.isBridge)
        return InterfaceKind::bridge;
    if (named != deviceTypeKinds.end())
        return named->kind;
    // A tap carries the frames of a virtual machine as well as those of a tunnel; which, the kernel cannot
    // know.
    if (traits.tunnelFlags)
        return (*traits.tunnelFlags & IFF_TUN) != 0 ? InterfaceKind::vpnTunnel : InterfaceKind::unknown;
    // Modems that speak plain IP, without a driver that names them.
    if (traits.linkType == ARPHRD_RAWIP)
        return InterfaceKind::cellular;
    // Of Ethernet's type are also bonds, virtual pairs and much else, which are of another type of device or
    // have none behind them.
    const bool isEthernet = traits.linkType == ARPHRD_ETHER && traits.hasDevice && deviceType.empty();
    return isEthernet ? InterfaceKind::ethernet : InterfaceKind::unknown;
}

InterfaceKind readInterfaceKind(OpenFolder& folder, std::string_view uevent) {
    return interfaceKind({.uevent = uevent,
                          .linkType = parseAttributeNumber(attributeIn(folder, "type")),
                          .tunnelFlags = parseHexadecimal(attributeIn(folder, "tun_flags")),
                          .isWireless = folder.contains("wireless"),
                          .isBridge = folder.contains("bridge"),
                          .hasDevice = folder.contains("device")});
}

std::string readInterfaceEvent(OpenFolder& folder) {
    return std::string(folder.read("uevent").value_or(""));
}

} // namespace orvelle::linux_platform
