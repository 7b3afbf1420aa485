#include "platform/darwin/darwin_network_source.h"

#include "platform/readable_name.h"

#include <array>
#include <cstddef>
#include <ifaddrs.h>
#include <memory>
#include <net/if.h>
#include <net/if_var.h>
#include <netdb.h>
#include <sys/socket.h>
#include <sys/types.h>

namespace orvelle::darwin_platform {
namespace {

struct InterfaceListReleaser {
    void operator()(ifaddrs* list) const { freeifaddrs(list); }
};

using InterfaceList = std::unique_ptr<ifaddrs, InterfaceListReleaser>;

/// The address in numeric form; empty when the system cannot write it.
std::string numericHost(const sockaddr& address) {
    std::array<char, NI_MAXHOST> host{};
    const int result =
        getnameinfo(&address, address.sa_len, host.data(), host.size(), nullptr, 0, NI_NUMERICHOST);
    return result == 0 ? std::string(host.data()) : std::string();
}

void takeCounters(InterfaceEntry& entry, const void* data) {
    static_assert(offsetof(if_data, ifi_ibytes) == 40 && offsetof(if_data, ifi_obytes) == 44);
    if (data == nullptr)
        return;
    const auto* counters = static_cast<const if_data*>(data);
    entry.bytesIn = counters->ifi_ibytes;
    entry.bytesOut = counters->ifi_obytes;
}

/// Of an entry that has a name and an address.
InterfaceEntry interfaceEntry(const ifaddrs& source) {
    InterfaceEntry entry;
    entry.name = readableName(source.ifa_name);
    entry.isUp = (source.ifa_flags & IFF_UP) != 0;
    entry.isLoopback = (source.ifa_flags & IFF_LOOPBACK) != 0;
    if (!entry.isUp || entry.isLoopback)
        return entry;
    switch (source.ifa_addr->sa_family) {
    case AF_INET:
        entry.ipv4Address = numericHost(*source.ifa_addr);
        break;
    case AF_INET6:
        entry.ipv6Address = numericHost(*source.ifa_addr);
        break;
    case AF_LINK:
        takeCounters(entry, source.ifa_data);
        break;
    default:
        break;
    }
    return entry;
}

} // namespace

std::optional<std::vector<InterfaceEntry>> DarwinNetworkSource::read() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0)
        return std::nullopt;
    const InterfaceList list(first);
    std::vector<InterfaceEntry> entries;
    for (const ifaddrs* source = list.get(); source != nullptr; source = source->ifa_next) {
        if (source->ifa_name == nullptr || source->ifa_addr == nullptr)
            continue;
        InterfaceEntry entry = interfaceEntry(*source);
        if (!entry.name.empty())
            entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace orvelle::darwin_platform
