#include "platform/linux/proc_net.h"

#include "platform/linux/files.h"
#include "platform/linux/text.h"

#include <algorithm>
#include <net/route.h>

namespace orvelle::linux_platform {
namespace {

/// Numbers between the received and the sent bytes: packets, errs, drop, fifo, frame, compressed, multicast.
constexpr int numbersBetween = 7;

struct Route {
    std::string_view interfaceName;
    std::uint32_t destination = 0;
    std::uint32_t flags = 0;
    std::uint32_t metric = 0;
    std::uint32_t mask = 0;
};

/// Nothing for the heading and for a line that is cut.
std::optional<Route> routeFrom(std::string_view line) {
    const std::string_view name = takeWord(line);
    const auto destination = parseHexadecimal(takeWord(line));
    takeWord(line); // gateway
    const auto flags = parseHexadecimal(takeWord(line));
    takeWord(line); // reference count
    takeWord(line); // use
    const auto metric = takeNumber<std::int64_t>(line);
    const auto mask = parseHexadecimal(takeWord(line));
    if (!destination || !flags || !metric || !mask)
        return std::nullopt;
    // The kernel writes a metric beyond 2^31 as a negative number.
    return Route{.interfaceName = name,
                 .destination = *destination,
                 .flags = *flags,
                 .metric = static_cast<std::uint32_t>(*metric),
                 .mask = *mask};
}

bool isUsableDefault(const Route& route) {
    const bool isUsable = (route.flags & RTF_UP) != 0 && (route.flags & RTF_REJECT) == 0;
    return isUsable && route.destination == 0 && route.mask == 0;
}

} // namespace

bool isInterfaceName(std::string_view name) {
    return isEntryName(name) && name.find('/') == std::string_view::npos;
}

std::vector<InterfaceCounters> parseNetDev(std::string_view text) {
    std::vector<InterfaceCounters> interfaces;
    SaturatingSum budgetIn;
    SaturatingSum budgetOut;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        // The two heading lines have no colon.
        const std::size_t colon = line.rfind(':');
        if (colon == std::string_view::npos)
            continue;
        const std::string_view name = trimmed(line.substr(0, colon));
        line.remove_prefix(colon + 1);
        const auto bytesIn = takeNumber<std::uint64_t>(line);
        for (int skipped = 0; skipped < numbersBetween; ++skipped)
            takeWord(line);
        const auto bytesOut = takeNumber<std::uint64_t>(line);
        if (bytesIn && bytesOut && isInterfaceName(name))
            interfaces.push_back({name, budgetIn.take(*bytesIn), budgetOut.take(*bytesOut)});
    }
    return interfaces;
}

DefaultRoutes parseDefaultRoutes(std::string_view text) {
    DefaultRoutes metrics;
    while (!text.empty()) {
        const std::optional<Route> route = routeFrom(takeLine(text));
        if (!route || !isUsableDefault(*route))
            continue;
        const auto [position, isNew] = metrics.try_emplace(std::string(route->interfaceName), route->metric);
        if (!isNew)
            position->second = std::min(position->second, route->metric);
    }
    return metrics;
}

} // namespace orvelle::linux_platform
