#pragma once

#include "core/sources/network_source.h"

#include <filesystem>
#include <optional>
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

/// The state of the interface `name` in `sys/class/net` below `root`.
[[nodiscard]] InterfaceState readInterfaceState(const std::filesystem::path& root, std::string_view name);

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

/// The kind of the interface `name` in `sys/class/net` below `root`, whose `uevent` was read already.
[[nodiscard]] InterfaceKind readInterfaceKind(const std::filesystem::path& root, std::string_view name,
                                              std::string_view uevent);

/// The text of the interface's `uevent`: its name, its index and its type of device. While it stays the same,
/// so does the interface. Empty when it cannot be read.
[[nodiscard]] std::string readInterfaceEvent(const std::filesystem::path& root, std::string_view name);

} // namespace orvelle::linux_platform
