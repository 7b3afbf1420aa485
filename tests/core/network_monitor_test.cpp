#include "core/network_monitor.h"
#include "platform/fixed/fixed_sources.h"

#include <QMetaProperty>
#include <QStringList>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;
using Entries = std::vector<InterfaceEntry>;

class NetworkMonitorTest : public ::testing::Test {
protected:
    FixedNetworkSource source;
    FixedClock clock;
    NetworkMonitor monitor{source, clock.reader()};

    void updateWith(Entries entries) {
        source.entries = std::move(entries);
        monitor.update();
    }
};

InterfaceEntry up(std::string name, std::uint64_t bytesIn = 0, std::uint64_t bytesOut = 0) {
    return {.name = std::move(name), .isUp = true, .bytesIn = bytesIn, .bytesOut = bytesOut};
}

InterfaceEntry withIPv4(std::string name, std::string address) {
    return {.name = std::move(name), .isUp = true, .ipv4Address = std::move(address)};
}

InterfaceEntry withIPv6(std::string name, std::string address) {
    return {.name = std::move(name), .isUp = true, .ipv6Address = std::move(address)};
}

QStringList namesOf(const QList<NetworkInterfaceInfo>& interfaces) {
    QStringList names;
    for (const NetworkInterfaceInfo& info : interfaces)
        names.append(info.name);
    return names;
}

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

TEST_F(NetworkMonitorTest, HasNothingToTellAfterConstruction) {
    EXPECT_TRUE(monitor.interfaces().isEmpty());
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.totalUploadSpeed(), 0);
    EXPECT_EQ(monitor.totalBytesIn(), 0u);
    EXPECT_EQ(monitor.totalBytesOut(), 0u);
    EXPECT_TRUE(monitor.downloadHistory().isEmpty());
    EXPECT_TRUE(monitor.uploadHistory().isEmpty());
    EXPECT_EQ(monitor.primaryIPv4(), u"N/A"_s);
    EXPECT_EQ(monitor.primaryIPv6(), u"N/A"_s);
}

TEST_F(NetworkMonitorTest, FirstUpdateHasNoSpeedsAndTheSecondMeasuresOverTheElapsedTime) {
    updateWith({up("en0", 1000, 500)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0}));
    EXPECT_EQ(monitor.uploadHistory(), QList<double>({0}));

    clock.advance(std::chrono::seconds(4));
    updateWith({up("en0", 5000, 2500)});
    ASSERT_EQ(monitor.interfaces().size(), 1);
    EXPECT_EQ(monitor.interfaces()[0].bytesIn, 5000u);
    EXPECT_EQ(monitor.interfaces()[0].bytesOut, 2500u);
    EXPECT_DOUBLE_EQ(monitor.interfaces()[0].downloadSpeed, 1000);
    EXPECT_DOUBLE_EQ(monitor.interfaces()[0].uploadSpeed, 500);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0, 1000}));
    EXPECT_EQ(monitor.uploadHistory(), QList<double>({0, 500}));
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

TEST_F(NetworkMonitorTest, TotalsAreSumsOverTheInterfaces) {
    updateWith({up("en0", 100, 10), up("en1", 200, 20)});
    clock.advance(std::chrono::seconds(2));
    updateWith({up("en0", 300, 30), up("en1", 1200, 40)});
    EXPECT_EQ(monitor.totalBytesIn(), 1500u);
    EXPECT_EQ(monitor.totalBytesOut(), 70u);
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 600);
    EXPECT_DOUBLE_EQ(monitor.totalUploadSpeed(), 20);
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

TEST_F(NetworkMonitorTest, CounterThatWentBackwardsHasNoSpeedForOneSample) {
    updateWith({up("en0", 4'294'967'000, 100)});
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 200, 150)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.totalUploadSpeed(), 50);
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 300, 150)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 100);
}

TEST_F(NetworkMonitorTest, ClockThatDidNotAdvanceGivesNoSpeed) {
    updateWith({up("en0", 100, 100)});
    updateWith({up("en0", 200, 200)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);

    clock.advance(std::chrono::hours(-1));
    updateWith({up("en0", 300, 300)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    EXPECT_EQ(monitor.totalUploadSpeed(), 0);

    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 400, 500)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 100);
    EXPECT_DOUBLE_EQ(monitor.totalUploadSpeed(), 200);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0, 0, 0, 100}));
}

TEST_F(NetworkMonitorTest, NewInterfaceHasNoSpeedUntilItWasSeenTwice) {
    updateWith({up("en0", 1, 1)});
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1), up("usb0", 5000, 5000)});
    EXPECT_EQ(monitor.totalDownloadSpeed(), 0);
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1), up("usb0", 6000, 5000)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 1000);
}

TEST_F(NetworkMonitorTest, InterfaceThatComesBackIsMeasuredFromWhereItWasLastSeen) {
    updateWith({up("en0", 1, 1), up("usb0", 1000, 0)});
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1)});
    EXPECT_EQ(namesOf(monitor.interfaces()), QStringList({u"en0"_s}));
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 1, 1), up("usb0", 1600, 0)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 600);
}

TEST_F(NetworkMonitorTest, FailedOrEmptyReadChangesNothing) {
    updateWith({up("en0", 100, 100), withIPv4("en0", "192.0.2.1")});
    const QList<NetworkInterfaceInfo> before = monitor.interfaces();
    int announcements = 0;
    QObject::connect(&monitor, &NetworkMonitor::interfacesChanged, [&announcements] { ++announcements; });
    QObject::connect(&monitor, &NetworkMonitor::downloadHistoryChanged,
                     [&announcements] { ++announcements; });

    clock.advance(std::chrono::seconds(1));
    source.entries.reset();
    monitor.update();
    updateWith({});
    EXPECT_EQ(announcements, 0);
    EXPECT_EQ(monitor.interfaces(), before);
    EXPECT_EQ(monitor.downloadHistory(), QList<double>({0}));

    // The failed reads are no samples: the next speed spans the time since the last successful one.
    clock.advance(std::chrono::seconds(1));
    updateWith({up("en0", 300, 100)});
    EXPECT_DOUBLE_EQ(monitor.totalDownloadSpeed(), 100);
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

TEST_F(NetworkMonitorTest, AnnouncesEachPropertyAsItIsAssignedInOrder) {
    QStringList announced;
    const auto note = [&](auto signal, const QString& name) {
        QObject::connect(&monitor, signal, [&announced, name] { announced.append(name); });
    };
    note(&NetworkMonitor::primaryIPv6Changed, u"primaryIPv6"_s);
    note(&NetworkMonitor::primaryIPv4Changed, u"primaryIPv4"_s);
    note(&NetworkMonitor::uploadHistoryChanged, u"uploadHistory"_s);
    note(&NetworkMonitor::downloadHistoryChanged, u"downloadHistory"_s);
    note(&NetworkMonitor::totalBytesOutChanged, u"totalBytesOut"_s);
    note(&NetworkMonitor::totalBytesInChanged, u"totalBytesIn"_s);
    note(&NetworkMonitor::totalUploadSpeedChanged, u"totalUploadSpeed"_s);
    note(&NetworkMonitor::totalDownloadSpeedChanged, u"totalDownloadSpeed"_s);
    note(&NetworkMonitor::interfacesChanged, u"interfaces"_s);

    updateWith({withIPv4("en0", "192.0.2.1")});
    EXPECT_EQ(announced, QStringList({u"interfaces"_s, u"totalDownloadSpeed"_s, u"totalUploadSpeed"_s,
                                      u"totalBytesIn"_s, u"totalBytesOut"_s, u"primaryIPv4"_s,
                                      u"primaryIPv6"_s, u"downloadHistory"_s, u"uploadHistory"_s}));

    announced.clear();
    updateWith({up("en0", 1, 1)});
    EXPECT_FALSE(announced.contains(u"primaryIPv4"_s));
    EXPECT_FALSE(announced.contains(u"primaryIPv6"_s));
    EXPECT_TRUE(announced.contains(u"uploadHistory"_s));
}

TEST_F(NetworkMonitorTest, HistoriesKeepTheLastSixtySamples) {
    for (std::uint64_t sample = 0; sample <= 60; ++sample) {
        updateWith({up("en0", sample * sample, sample * 10)});
        clock.advance(std::chrono::seconds(1));
    }
    ASSERT_EQ(monitor.downloadHistory().size(), 60);
    ASSERT_EQ(monitor.uploadHistory().size(), 60);
    EXPECT_DOUBLE_EQ(monitor.downloadHistory().first(), 1); // the first sample, 0, is gone
    EXPECT_DOUBLE_EQ(monitor.downloadHistory().last(), 119);
    EXPECT_DOUBLE_EQ(monitor.uploadHistory().first(), 10);
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

using NetworkMonitorDeathTest = NetworkMonitorTest;

TEST_F(NetworkMonitorDeathTest, SumBeyondSixtyFourBitsStopsTheProcess) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    EXPECT_DEATH(updateWith({up("en0", largest, 0), up("en1", 1, 0)}), "addition");
    EXPECT_DEATH(updateWith({up("en0", 0, largest), up("en0", 0, 1)}), "addition");
}

} // namespace
} // namespace orvelle
