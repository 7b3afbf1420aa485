#include "platform/linux/interface_state.h"

#include "platform/linux/directory.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <array>
#include <net/if.h>

namespace orvelle::linux_platform {
namespace {

/// Operational states in which no packet passes (RFC 2863, Documentation/networking/operstates.rst).
constexpr std::array<std::string_view, 4> deadStates{"down", "lowerlayerdown", "notpresent", "dormant"};

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

InterfaceState readInterfaceState(const std::filesystem::path& root, std::string_view name) {
    const std::filesystem::path directory = root / "sys/class/net" / name;
    const std::optional<std::string> flags = readFile(directory / "flags");
    const std::optional<std::string> operationalState = readFile(directory / "operstate");
    InterfaceState state = interfaceState(name, flags, operationalState);
    state.isPort = existsUnfollowed(directory / "master");
    return state;
}

} // namespace orvelle::linux_platform
