#include "core/sources/network_source.h"
#include "darwin/simulated/addresses.h"
#include "darwin/typical_machine.h"

namespace orvelle {
namespace {

using namespace simulated;

constexpr unsigned int up = 1, loopback = 8;

class DarwinNetworkSourceTest : public DarwinTest {
protected:
    std::optional<std::vector<InterfaceEntry>> read() { return host().network->read(); }
    /// The answer to a list of one entry.
    InterfaceEntry readOnly(const Interface& interface) {
        machine().interfaces = {interface};
        return read().value().at(0);
    }
};

TEST_F(DarwinNetworkSourceTest, EveryEntryOfTheListIsOneOfTheAnswerInItsOrder) {
    EXPECT_EQ(read(), (std::vector<InterfaceEntry>{
                          {.name = "lo0", .isUp = true, .isLoopback = true},
                          {.name = "lo0", .isUp = true, .isLoopback = true},
                          {.name = "en0", .isUp = true, .bytesIn = 4000000000, .bytesOut = 3000000000},
                          {.name = "en0", .isUp = true, .ipv4Address = "192.168.1.20"},
                          {.name = "en0", .isUp = true, .ipv6Address = "2001:db8:0:0:0:0:0:7"},
                          {.name = "utun0"}}));
}

TEST_F(DarwinNetworkSourceTest, OnlyAddressesThatCanBeShownAreWrittenOut) {
    EXPECT_TRUE(read());
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"getifaddrs", "getnameinfo of IPv4", "getnameinfo of IPv6"}));
}

TEST_F(DarwinNetworkSourceTest, AnEmptyListIsAnEmptyAnswer) {
    machine().interfaces.clear();
    EXPECT_EQ(read(), std::vector<InterfaceEntry>{});
}

TEST_F(DarwinNetworkSourceTest, ALinkEntryWithoutDataHasNoBytes) {
    const InterfaceEntry entry = readOnly({.name = "en1", .flags = up, .address = linkAddress()});
    EXPECT_EQ(entry, (InterfaceEntry{.name = "en1", .isUp = true}));
}

TEST_F(DarwinNetworkSourceTest, DataOfAnotherFamilyIsNotTakenForCounters) {
    const InterfaceEntry entry =
        readOnly({.name = "en1", .flags = up, .address = ipv4Address({10, 1, 2, 3}), .bytes = {{5, 6}}});
    EXPECT_EQ(entry, (InterfaceEntry{.name = "en1", .isUp = true, .ipv4Address = "10.1.2.3"}));
}

TEST_F(DarwinNetworkSourceTest, AnUnknownFamilyReportsOnlyThatTheInterfaceIsUp) {
    const InterfaceEntry entry =
        readOnly({.name = "en1", .flags = up, .address = {{16, 99, 1, 2}}, .bytes = {{5, 6}}});
    EXPECT_EQ(entry, (InterfaceEntry{.name = "en1", .isUp = true}));
}

TEST_F(DarwinNetworkSourceTest, TheLengthOfAnAddressIsItsOwn) {
    std::vector<std::uint8_t> shortAddress = ipv6Address({0x2001, 0xdb8, 0, 0, 0, 0, 0, 7});
    shortAddress[0] = 16;
    EXPECT_EQ(readOnly({.name = "en1", .flags = up, .address = shortAddress}).ipv6Address, "");
}

TEST_F(DarwinNetworkSourceTest, LinkLocalAddressesArePassedOn) {
    const auto address = ipv6Address({0xfe80, 0, 0, 0, 0, 0, 0, 1});
    EXPECT_EQ(readOnly({.name = "en1", .flags = up, .address = address}).ipv6Address, "fe80:0:0:0:0:0:0:1");
}

TEST_F(DarwinNetworkSourceTest, AnEntryWithoutANameOrWithoutAnAddressIsLeftOut) {
    const std::optional<std::vector<InterfaceEntry>> whole = read();
    std::vector<Interface>& list = machine().interfaces;
    list.insert(list.begin(), {.flags = up, .address = linkAddress(), .bytes = {{5, 6}}});
    list.insert(list.begin() + 3, {.name = "utun9", .flags = up, .bytes = {{5, 6}}});
    list.push_back({.name = "lo9", .flags = loopback});
    list.push_back({});
    EXPECT_EQ(read(), whole);
}

} // namespace
} // namespace orvelle
