#include "core/network_monitor_fixture.h"

#include <QMetaProperty>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;
using Entries = std::vector<InterfaceEntry>;

TEST(InterfaceDisplayName, ComesFromTheFirstPrefixThatFits) {
    EXPECT_EQ(interfaceDisplayName(u"en0"_s), u"Wi-Fi"_s);
    EXPECT_EQ(interfaceDisplayName(u"en01"_s), u"Wi-Fi"_s);
    EXPECT_EQ(interfaceDisplayName(u"en1"_s), u"Ethernet"_s);
    EXPECT_EQ(interfaceDisplayName(u"enp3s0"_s), u"Ethernet"_s);
    EXPECT_EQ(interfaceDisplayName(u"bridge100"_s), u"Bridge"_s);
    EXPECT_EQ(interfaceDisplayName(u"awdl0"_s), u"AWDL"_s);
    EXPECT_EQ(interfaceDisplayName(u"llw0"_s), u"Low Latency WLAN"_s);
    EXPECT_EQ(interfaceDisplayName(u"utun3"_s), u"VPN Tunnel"_s);
    EXPECT_EQ(interfaceDisplayName(u"pdp_ip0"_s), u"Cellular"_s);
}

TEST(InterfaceDisplayName, IsTheNameItselfWhereNoPrefixFits) {
    EXPECT_EQ(interfaceDisplayName(u"wlan0"_s), u"wlan0"_s);
    EXPECT_EQ(interfaceDisplayName(u"EN0"_s), u"EN0"_s);
    EXPECT_EQ(interfaceDisplayName(u"e"_s), u"e"_s);
    EXPECT_EQ(interfaceDisplayName(QString()), QString());
}

TEST(InterfaceDisplayName, ComesFromTheKindWhereTheSystemKnowsIt) {
    EXPECT_EQ(interfaceDisplayName(u"wlp3s0"_s, InterfaceKind::wifi), u"Wi-Fi"_s);
    EXPECT_EQ(interfaceDisplayName(u"en0"_s, InterfaceKind::ethernet), u"Ethernet"_s);
    EXPECT_EQ(interfaceDisplayName(u"docker0"_s, InterfaceKind::bridge), u"Bridge"_s);
    EXPECT_EQ(interfaceDisplayName(u"wg0"_s, InterfaceKind::vpnTunnel), u"VPN Tunnel"_s);
    EXPECT_EQ(interfaceDisplayName(u"wwan0"_s, InterfaceKind::cellular), u"Cellular"_s);
}

InterfaceEntry ofKind(std::string name, InterfaceKind kind) {
    InterfaceEntry entry = up(std::move(name), 1, 1);
    entry.kind = kind;
    return entry;
}

QStringList displayNamesOf(const QList<NetworkInterfaceInfo>& interfaces) {
    QStringList names;
    for (const NetworkInterfaceInfo& info : interfaces)
        names.append(info.displayName);
    return names;
}

TEST_F(NetworkMonitorTest, InterfacesOfOneKindAreDistinguishedByTheirNames) {
    const InterfaceEntry card = ofKind("wlp3s0", InterfaceKind::wifi);
    const InterfaceEntry stick = ofKind("wlx0", InterfaceKind::wifi);
    const InterfaceEntry cable = ofKind("enp2s0", InterfaceKind::ethernet);
    updateWith({card, cable});
    EXPECT_EQ(displayNamesOf(monitor.interfaces()), QStringList({u"Ethernet"_s, u"Wi-Fi"_s}));
    updateWith({card, stick, cable});
    EXPECT_EQ(displayNamesOf(monitor.interfaces()),
              QStringList({u"Ethernet"_s, u"Wi-Fi (wlp3s0)"_s, u"Wi-Fi (wlx0)"_s}));
    InterfaceEntry quiet = stick;
    quiet.bytesIn = quiet.bytesOut = 0;
    updateWith({card, quiet, cable});
    EXPECT_EQ(displayNamesOf(monitor.interfaces()), QStringList({u"Ethernet"_s, u"Wi-Fi"_s}))
        << "what is not listed reads like nothing";
}

TEST_F(NetworkMonitorTest, InterfacesOfNoKnownKindKeepTheNamesOfTheTable) {
    updateWith({up("en1", 1, 1), up("en2", 1, 1), ofKind("x0", InterfaceKind::ethernet)});
    EXPECT_EQ(displayNamesOf(monitor.interfaces()),
              QStringList({u"Ethernet"_s, u"Ethernet"_s, u"Ethernet (x0)"_s}));
}

InterfaceEntry withRoute(std::string name, std::string address, std::uint32_t metric) {
    InterfaceEntry entry = withIPv4(std::move(name), std::move(address));
    entry.defaultRouteMetric = metric;
    return entry;
}

TEST_F(NetworkMonitorTest, PrimaryAddressesAreThoseOfTheDefaultRouteWithTheLowestMetric) {
    updateWith({withIPv4("docker0", "172.17.0.1"), withRoute("wlp2s0", "192.0.2.2", 600),
                withRoute("enp3s0", "192.0.2.3", 100), withIPv6("enp3s0", "2001:db8::3")});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.3"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"2001:db8::3"_s);
    updateWith({withIPv4("docker0", "172.17.0.1"), withRoute("wlp2s0", "192.0.2.2", 0xFFFFFFFF)});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.2"_s) << "the only route, however dear";
    EXPECT_EQ(monitor.primaryIPv6(), u"N/A"_s);
}

TEST_F(NetworkMonitorTest, PrimaryAddressesAreThoseOfTheFirstNameOfRoutesAlike) {
    updateWith({withRoute("b", "192.0.2.2", 0), withRoute("c", "192.0.2.3", 0), withIPv4("a", "192.0.2.1")});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.2"_s);
}

TEST_F(NetworkMonitorTest, PrimaryAddressesAreNotThoseOfARouteWithoutAnAddress) {
    InterfaceEntry tunnel = up("tun0", 5, 5);
    tunnel.defaultRouteMetric = 0;
    InterfaceEntry down = withRoute("eth1", "192.0.2.9", 1);
    down.isUp = false;
    updateWith({tunnel, down, withIPv4("docker0", "172.17.0.1"), withRoute("eth0", "192.0.2.1", 5)});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.1"_s);
    updateWith({tunnel, down, withIPv4("docker0", "172.17.0.1")});
    EXPECT_EQ(monitor.primaryIPv4(), u"172.17.0.1"_s);
}

TEST_F(NetworkMonitorTest, LeavesOutLoopbacksAndWhatIsDown) {
    InterfaceEntry loopback = up("lo0", 10, 10);
    loopback.isLoopback = true;
    loopback.ipv4Address = "127.0.0.1";
    InterfaceEntry down = up("en1", 20, 20);
    down.isUp = false;
    down.ipv4Address = "192.0.2.1";
    updateWith({loopback, down, up("en0", 1, 2)});
    EXPECT_EQ(namesOf(monitor.interfaces()), QStringList({u"en0"_s}));
    EXPECT_EQ(monitor.totalBytesIn(), 1u);
    EXPECT_EQ(monitor.totalBytesOut(), 2u);
    EXPECT_EQ(monitor.primaryIPv4(), u"N/A"_s);
}

TEST_F(NetworkMonitorTest, GroupsTheEntriesOfOneInterface) {
    updateWith({up("en0", 100, 10), withIPv4("en0", "192.0.2.1"), up("en1", 1, 1),
                withIPv6("en0", "2001:db8::1"), up("en0", 23, 4), withIPv4("en0", "192.0.2.2"),
                withIPv6("en0", "2001:db8::2")});
    ASSERT_EQ(monitor.interfaces().size(), 2);
    const NetworkInterfaceInfo& info = monitor.interfaces()[0];
    EXPECT_EQ(info.bytesIn, 123u);
    EXPECT_EQ(info.bytesOut, 14u);
    EXPECT_EQ(info.ipv4Address, u"192.0.2.2"_s);
    EXPECT_EQ(info.ipv6Address, u"2001:db8::2"_s);
    EXPECT_EQ(info.displayName, u"Wi-Fi"_s);
}

TEST_F(NetworkMonitorTest, NeverShowsALinkLocalAddress) {
    updateWith({up("en0", 1, 1), withIPv4("en0", "192.0.2.1"), withIPv6("en0", "fe80::1%en0")});
    EXPECT_FALSE(monitor.interfaces()[0].ipv6Address);
    EXPECT_EQ(monitor.primaryIPv6(), u"N/A"_s);

    updateWith({up("en0", 1, 1), withIPv6("en0", "2001:db8::1"), withIPv6("en0", "fe80::1")});
    EXPECT_EQ(monitor.interfaces()[0].ipv6Address, u"2001:db8::1"_s);
}

TEST_F(NetworkMonitorTest, ListsWhatCarriedBytesOrHasAnIPv4AddressSortedByName) {
    updateWith({up("wlan0", 0, 1), up("idle0"), withIPv6("v6only", "2001:db8::1"),
                withIPv4("en9", "192.0.2.9"), up("en10", 1, 0), up("Zeta", 1, 0)});
    EXPECT_EQ(namesOf(monitor.interfaces()), QStringList({u"Zeta"_s, u"en10"_s, u"en9"_s, u"wlan0"_s}));
}

TEST_F(NetworkMonitorTest, OrderOfTheEntriesDoesNotMatterForTheList) {
    const Entries entries{up("a", 1, 1), up("b", 2, 2), up("c", 3, 3)};
    updateWith(entries);
    const QList<NetworkInterfaceInfo> forward = monitor.interfaces();
    updateWith({entries.rbegin(), entries.rend()});
    EXPECT_EQ(monitor.interfaces(), forward);
}

TEST_F(NetworkMonitorTest, PrimaryAddressesAreThoseOfTheFirstListedInterfaceWithIPv4) {
    updateWith({up("a", 1, 1), withIPv6("a", "2001:db8::a"), withIPv4("c", "192.0.2.3"),
                withIPv6("c", "2001:db8::c"), withIPv4("b", "192.0.2.2")});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.2"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"N/A"_s); // neither a's nor c's

    updateWith({withIPv4("c", "192.0.2.3"), withIPv6("c", "2001:db8::c")});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.3"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"2001:db8::c"_s);
}

TEST_F(NetworkMonitorTest, PrimaryAddressesStayWhileThereIsNoIPv4) {
    updateWith({up("en0", 1, 1), withIPv6("en0", "2001:db8::1")});
    EXPECT_EQ(monitor.primaryIPv4(), u"N/A"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"N/A"_s);

    updateWith({withIPv4("en0", "192.0.2.1"), withIPv6("en0", "2001:db8::1")});
    updateWith({up("en0", 1, 1)});
    EXPECT_EQ(monitor.primaryIPv4(), u"192.0.2.1"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"2001:db8::1"_s);
    EXPECT_FALSE(monitor.interfaces()[0].ipv4Address);
}

TEST_F(NetworkMonitorTest, ListOfLoopbacksOnlyIsASampleWithoutInterfaces) {
    updateWith({up("en0", 100, 100)});
    InterfaceEntry loopback = up("lo", 5, 5);
    loopback.isLoopback = true;
    updateWith({loopback});
    EXPECT_TRUE(monitor.interfaces().isEmpty());
    EXPECT_EQ(monitor.totalBytesIn(), 0u);
    EXPECT_EQ(monitor.downloadHistory().size(), 2);
}

TEST_F(NetworkMonitorTest, AbsentAddressReadsAsNull) {
    updateWith({up("en0", 1, 1), withIPv4("en0", "192.0.2.1")});
    const QMetaObject& record = NetworkInterfaceInfo::staticMetaObject;
    const auto valueOf = [&](const char* property) {
        return record.property(record.indexOfProperty(property)).readOnGadget(&monitor.interfaces()[0]);
    };
    EXPECT_EQ(valueOf("ipv4Address"), QVariant(u"192.0.2.1"_s));
    EXPECT_TRUE(valueOf("ipv6Address").isNull());
}

TEST_F(NetworkMonitorTest, ManyInterfacesAreListedInOrder) {
    Entries entries;
    for (int number = 999; number >= 0; --number)
        entries.push_back(up("veth" + std::to_string(1000 + number), 1, 1));
    updateWith(entries);
    ASSERT_EQ(monitor.interfaces().size(), 1000);
    EXPECT_EQ(monitor.interfaces().first().name, u"veth1000"_s);
    EXPECT_EQ(monitor.interfaces().last().name, u"veth1999"_s);
    EXPECT_EQ(monitor.totalBytesIn(), 1000u);
}

} // namespace
} // namespace orvelle
