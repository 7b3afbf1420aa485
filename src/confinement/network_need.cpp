#include "confinement/network_need.h"

#include <cstdlib>

namespace orvelle {
namespace {

std::string_view variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

/// `host:number`, `protocol/host:number`. Without a host, or with the path of a socket, it is on this
/// machine.
bool isElsewhere(std::string_view display) {
    const std::string_view host = display.substr(0, display.rfind(':'));
    return display.find(':') != std::string_view::npos && !host.empty() && !host.starts_with('/') &&
           !host.starts_with("unix");
}

/// `tcp:` and `nonce-tcp:`, maybe among others.
bool isBusElsewhere(std::string_view address) {
    return address.find("tcp:") != std::string_view::npos;
}

/// `protocol/address`, separated by commas. A program takes the first that answers.
bool isManagerElsewhere(std::string_view manager) {
    return !manager.empty() && manager.find("local/") == std::string_view::npos &&
           manager.find("unix/") == std::string_view::npos;
}

} // namespace

DesktopAddresses DesktopAddresses::present() {
    return {.display = variable("DISPLAY"),
            .sessionBus = variable("DBUS_SESSION_BUS_ADDRESS"),
            .accessibility = variable("AT_SPI_BUS_ADDRESS"),
            .sessionManager = variable("SESSION_MANAGER")};
}

bool needsNetwork(const DesktopAddresses& addresses) {
    return isElsewhere(addresses.display) || isBusElsewhere(addresses.sessionBus) ||
           isBusElsewhere(addresses.accessibility) || isManagerElsewhere(addresses.sessionManager);
}

} // namespace orvelle
