#include "darwin/simulated/kernel.h"

#include <cstddef>
#include <cstdio>
#include <deque>
#include <ifaddrs.h>
#include <net/if_var.h>
#include <netdb.h>
#include <string_view>

using namespace orvelle::simulated;

namespace {

struct Node {
    ifaddrs entry{};
    std::string name;
    std::vector<std::uint8_t> address;
    if_data data{};
};

/// A list whose first node is also its address.
struct InterfaceList {
    std::deque<Node> nodes;
};

std::map<const void*, InterfaceList> lists;

void addNode(InterfaceList& list, const Interface& interface) {
    Node& node = list.nodes.emplace_back();
    node.entry.ifa_flags = interface.flags;
    if (interface.name) {
        node.name = *interface.name;
        node.entry.ifa_name = node.name.data();
    }
    if (interface.address) {
        node.address = *interface.address;
        node.entry.ifa_addr = reinterpret_cast<sockaddr*>(node.address.data());
    }
    if (interface.bytes) {
        node.data.ifi_ibytes = interface.bytes->at(0);
        node.data.ifi_obytes = interface.bytes->at(1);
        node.entry.ifa_data = &node.data;
    }
    if (list.nodes.size() > 1)
        list.nodes[list.nodes.size() - 2].entry.ifa_next = &node.entry;
}

/// Numeric form of the address bytes; IPv6 without shortening.
std::string numericForm(sa_family_t family, const std::uint8_t* bytes) {
    std::array<char, 64> text{};
    if (family == AF_INET) {
        std::snprintf(text.data(), text.size(), "%d.%d.%d.%d", bytes[4], bytes[5], bytes[6], bytes[7]);
        return text.data();
    }
    std::string form;
    for (std::size_t group = 0; group < 8; ++group) {
        const std::uint8_t* pair = bytes + 8 + 2 * group;
        std::snprintf(text.data(), text.size(), "%s%x", group == 0 ? "" : ":", pair[0] << 8 | pair[1]);
        form += text.data();
    }
    return form;
}

} // namespace

int getifaddrs(ifaddrs** list) {
    if (!kernel().arrives("getifaddrs"))
        return -1;
    InterfaceList made;
    for (const Interface& interface : kernel().machine.interfaces)
        addNode(made, interface);
    *list = made.nodes.empty() ? nullptr : &made.nodes.front().entry;
    if (*list != nullptr) {
        kernel().lentInterfaceLists.insert(*list);
        lists.emplace(*list, std::move(made));
    }
    return 0;
}

void freeifaddrs(ifaddrs* list) {
    kernel().expect(kernel().lentInterfaceLists.erase(list) == 1, "freeifaddrs of a list that is not lent");
    lists.erase(list);
}

int getnameinfo(const sockaddr* address, socklen_t length, char* host, socklen_t hostSize, char* service,
                socklen_t serviceSize, int flags) {
    kernel().expect(hostSize == NI_MAXHOST, "getnameinfo with another buffer size");
    kernel().expect(service == nullptr && serviceSize == 0, "getnameinfo that asks for a service");
    kernel().expect(flags == NI_NUMERICHOST, "getnameinfo that looks names up");
    const bool isIPv4 = address->sa_family == AF_INET;
    if (!kernel().arrives(isIPv4 ? "getnameinfo of IPv4" : "getnameinfo of IPv6"))
        return EAI_FAMILY;
    if (length != (isIPv4 ? 16 : 28))
        return EAI_FAMILY;
    const std::string text = numericForm(address->sa_family, reinterpret_cast<const std::uint8_t*>(address));
    std::memcpy(host, text.c_str(), text.size() + 1);
    return 0;
}
