#include "platform/linux/net_dev.h"

#include "platform/linux/directory.h"
#include "platform/linux/saturating_sum.h"
#include "platform/linux/text.h"

namespace orvelle::linux_platform {
namespace {

/// Numbers between the received and the sent bytes: packets, errs, drop, fifo, frame, compressed, multicast.
constexpr int numbersBetween = 7;

/// A name is that of a directory in sysfs.
bool isPossibleName(std::string_view name) {
    return isEntryName(name) && name.find('/') == std::string_view::npos;
}

} // namespace

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
        if (bytesIn && bytesOut && isPossibleName(name))
            interfaces.push_back({name, budgetIn.take(*bytesIn), budgetOut.take(*bytesOut)});
    }
    return interfaces;
}

} // namespace orvelle::linux_platform
