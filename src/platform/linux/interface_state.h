#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace orvelle::linux_platform {

/// What sysfs tells of an interface (Documentation/ABI/testing/sysfs-class-net).
struct InterfaceState {
    bool isUp = false;
    bool isLoopback = false;
    /// Belongs to a bridge or a bond, which carries the same bytes.
    bool isPort = false;

    bool operator==(const InterfaceState&) const = default;
};

/// From the texts of `flags` and `operstate`. Up means set up by the administrator and able to pass packets:
/// the flags in sysfs never show RUNNING, so that is the operational state's to tell. Without flags only "lo"
/// is a loopback and the operational state alone decides.
[[nodiscard]] InterfaceState interfaceState(std::string_view name, std::optional<std::string_view> flags,
                                            std::optional<std::string_view> operationalState);

/// The state of the interface `name` in `sys/class/net` below `root`.
[[nodiscard]] InterfaceState readInterfaceState(const std::filesystem::path& root, std::string_view name);

} // namespace orvelle::linux_platform
