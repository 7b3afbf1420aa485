#include "platform/linux/default_routes.h"

#include "platform/linux/text.h"

#include <algorithm>
#include <net/route.h>

namespace orvelle::linux_platform {
namespace {

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
