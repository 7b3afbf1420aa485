#pragma once

#include <string_view>

namespace orvelle {

/// Where a desktop says that its display, its message bus and its session manager are; empty where it does
/// not.
struct DesktopAddresses {
    std::string_view display{};        ///< `$DISPLAY`
    std::string_view sessionBus{};     ///< `$DBUS_SESSION_BUS_ADDRESS`
    std::string_view accessibility{};  ///< `$AT_SPI_BUS_ADDRESS`
    std::string_view sessionManager{}; ///< `$SESSION_MANAGER`

    [[nodiscard]] static DesktopAddresses present();
};

/// Whether one of them is reached by the network, as the display is through ssh.
[[nodiscard]] bool needsNetwork(const DesktopAddresses& addresses);

} // namespace orvelle
