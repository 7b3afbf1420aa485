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

/// `flags` is written as hexadecimal with a leading 0x.
std::optional<unsigned> parseFlags(std::string_view text) {
    text = trimmed(text);
    if (text.starts_with("0x"))
        text.remove_prefix(2);
    unsigned flags = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), flags, 16);
    return error == std::errc{} ? std::optional(flags) : std::nullopt;
}

} // namespace

InterfaceState interfaceState(std::string_view name, std::optional<std::string_view> flags,
                              std::optional<std::string_view> operationalState) {
    const bool isDead =
        std::ranges::find(deadStates, trimmed(operationalState.value_or(""))) != deadStates.end();
    const std::optional<unsigned> bits = flags ? parseFlags(*flags) : std::nullopt;
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
