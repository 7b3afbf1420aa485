#pragma once

#include "core/sources/network_source.h"
#include "platform/linux/files.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvelle::linux_platform {

/// The state of an interface in sysfs (Documentation/ABI/testing/sysfs-class-net).
struct InterfaceState {
    bool isUp = false;
    bool isLoopback = false;
    /// Belongs to a bridge or a bond, which carries the same bytes.
    bool isPort = false;

    bool operator==(const InterfaceState&) const = default;
};

/// From the texts of `flags` and `operstate`. Up means enabled by the administrator and able to pass packets:
/// the flags in sysfs never show RUNNING, so the operational state decides that. Without flags only "lo" is a
/// loopback and the operational state alone decides.
[[nodiscard]] InterfaceState interfaceState(std::string_view name, std::optional<std::string_view> flags,
                                            std::optional<std::string_view> operationalState);

/// The state of the interface `name`, whose folder in `sys/class/net` is given. Of a port nothing else is
/// read: it is not shown, and a container host has a port for each container.
[[nodiscard]] InterfaceState readInterfaceState(OpenFolder& folder, std::string_view name);

/// The attributes in sysfs that reveal an interface's kind (Documentation/ABI/testing/sysfs-class-net).
struct InterfaceTraits {
    std::string_view uevent{};              ///< the text of `uevent`, whose DEVTYPE most kinds of drivers set
    std::optional<std::int64_t> linkType{}; ///< `type`, one of ARPHRD_
    std::optional<std::uint32_t> tunnelFlags{}; ///< `tun_flags`, which only the universal tunnel driver has
    bool isWireless = false;                    ///< has a folder `wireless`
    bool isBridge = false;                      ///< has a folder `bridge`
    bool hasDevice = false; ///< has a link `device`: hardware rather than a virtual interface
};

/// The kind that the kernel knows; unknown for kinds without a name here (bonds, virtual pairs, taps).
[[nodiscard]] InterfaceKind interfaceKind(const InterfaceTraits& traits);

/// The kind of the interface of this folder, whose `uevent` was read already.
[[nodiscard]] InterfaceKind readInterfaceKind(OpenFolder& folder, std::string_view uevent);

/// The text of the interface's `uevent`: its name, its index and its type of device. While it stays the same,
/// so does the interface. Empty when it cannot be read.
[[nodiscard]] std::string readInterfaceEvent(OpenFolder& folder);

} // namespace orvelle::linux_platform
