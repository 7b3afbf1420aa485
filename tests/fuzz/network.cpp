#include "parsers.h"
#include "platform/linux/files.h"
#include "platform/linux/interface_addresses.h"
#include "platform/linux/interface_attributes.h"
#include "platform/linux/proc_net.h"
#include "platform/linux/text.h"
#include "require.h"

namespace orvelle::fuzz {

using namespace linux_platform;

void fuzzNetDev(std::string_view text) {
    std::uint64_t sumIn = 0;
    std::uint64_t sumOut = 0;
    for (const InterfaceCounters& counters : parseNetDev(text)) {
        requireWithin(text, counters.name);
        require(!counters.name.empty() && counters.name.find('/') == std::string_view::npos,
                "a name can be a directory's");
        require(counters.bytesIn <= ~sumIn && counters.bytesOut <= ~sumOut, "sums fit into 64 bits");
        sumIn += counters.bytesIn;
        sumOut += counters.bytesOut;
    }
}

void fuzzAddresses(std::string_view text) {
    std::string written;
    const std::vector<InterfaceAddress> addresses = parseAddresses(text);
    for (const InterfaceAddress& address : addresses) {
        require(!address.text.empty(), "an address has a text");
        written += address.interfaceName + ' ' + address.text + '\n';
    }
    require(parseAddresses(written) == addresses, "an address that was read is read again as it is");
}

void fuzzDefaultRoutes(std::string_view text) {
    const DefaultRoutes metrics = parseDefaultRoutes(text);
    std::string written;
    for (const auto& [name, metric] : metrics) {
        require(!name.empty() && text.find(name) != std::string_view::npos, "a name stands in the text");
        written += name + "\t00000000\t0\t0001\t0\t0\t" + std::to_string(metric) + "\t00000000\n";
    }
    require(parseDefaultRoutes(written) == metrics, "a route that was read is read again as it is");
}

/// The first two lines are the texts of `type` and of `tun_flags`, the rest that of `uevent`.
void fuzzInterfaceKind(std::string_view text) {
    InterfaceTraits traits{.linkType = parseAttributeNumber(takeLine(text)),
                           .tunnelFlags = parseHexadecimal(takeLine(text))};
    traits.uevent = text;
    const InterfaceKind alone = interfaceKind(traits);
    require(alone != InterfaceKind::ethernet || text.find("dsa") != std::string_view::npos,
            "without a device only a switch's port is Ethernet");
    traits.hasDevice = true;
    const InterfaceKind withDevice = interfaceKind(traits);
    require(withDevice == alone || withDevice == InterfaceKind::ethernet, "a device makes Ethernet at most");
    traits.isBridge = true;
    require(interfaceKind(traits) == InterfaceKind::bridge, "a bridge is one whatever else it says");
    traits.isWireless = true;
    require(interfaceKind(traits) == InterfaceKind::wifi, "what is wireless is Wi-Fi");
}

/// The first line is the text of `flags`, the rest that of `operstate`.
void fuzzInterfaceState(std::string_view text) {
    const std::string_view flags = takeLine(text);
    const InterfaceState state = interfaceState("eth0", flags, text);
    require(!state.isPort, "what makes a port stands in neither text");
    require(!state.isLoopback || interfaceState("eth0", flags, std::nullopt).isLoopback,
            "the flags alone tell a loopback");
    require(!state.isUp || interfaceState("eth0", flags, std::nullopt).isUp,
            "an operational state sets nothing up");
    require(interfaceState("lo", std::nullopt, text).isLoopback, "without flags the name tells a loopback");
}

} // namespace orvelle::fuzz
