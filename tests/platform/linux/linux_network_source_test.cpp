#include "own_network.h"
#include "platform/linux/linux_network_source.h"
#include "support/child_process.h"
#include "support/opening_watch.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/resource.h>

namespace orvelle::linux_platform {
namespace {

using Kind = InterfaceKind;
using Entries = std::vector<InterfaceEntry>;
using Addresses = std::vector<InterfaceAddress>;

class LinuxNetworkSourceTest : public ::testing::Test {
protected:
    TemporaryTree tree;
    LinuxNetworkSource source{tree.root()};

    void addInterface(const std::string& name, const std::string& flags, const std::string& state) const {
        tree.write("sys/class/net/" + name + "/flags", flags + "\n");
        tree.write("sys/class/net/" + name + "/operstate", state + "\n");
    }
};

TEST_F(LinuxNetworkSourceTest, EmptyTreeIsAFailedRead) {
    EXPECT_FALSE(source.read());
}

TEST_F(LinuxNetworkSourceTest, ReportsCountersStateAndAddressesOfEachInterface) {
    tree.write("proc/net/dev", "  lo: 5 0 0 0 0 0 0 0 5 0 0 0 0 0 0 0\n"
                               "eth0: 100 0 0 0 0 0 0 0 40 0 0 0 0 0 0 0\n"
                               "eth1: 7 0 0 0 0 0 0 0 8 0 0 0 0 0 0 0\n");
    addInterface("lo", "0x9", "unknown");
    addInterface("eth0", "0x1003", "up");
    addInterface("eth1", "0x1003", "down");
    tree.write("addresses",
               "lo 127.0.0.1\neth0 192.0.2.1\neth0 2001:db8::1\neth0 fe80::1\nother 192.0.2.9\n");
    const Entries expected{
        {.name = "lo", .isUp = true, .isLoopback = true, .ipv4Address = "127.0.0.1"},
        {.name = "lo", .isUp = true, .isLoopback = true, .bytesIn = 5, .bytesOut = 5},
        {.name = "eth0", .isUp = true, .ipv4Address = "192.0.2.1"},
        {.name = "eth0", .isUp = true, .ipv6Address = "2001:db8::1"},
        {.name = "eth0", .isUp = true, .ipv6Address = "fe80::1"},
        {.name = "eth0", .isUp = true, .bytesIn = 100, .bytesOut = 40},
        {.name = "eth1", .bytesIn = 7, .bytesOut = 8},
    };
    EXPECT_EQ(source.read(), expected);
}

TEST_F(LinuxNetworkSourceTest, LeavesOutPortsOfABridgeWithTheirAddresses) {
    tree.write("proc/net/dev", "eth0: 100 0 0 0 0 0 0 0 40 0 0 0 0 0 0 0\n"
                               " br0: 100 0 0 0 0 0 0 0 40 0 0 0 0 0 0 0\n");
    addInterface("eth0", "0x1103", "up");
    addInterface("br0", "0x1003", "up");
    tree.link("sys/class/net/eth0/master", "../br0");
    tree.write("addresses", "eth0 192.0.2.1\n");
    EXPECT_EQ(source.read(), (Entries{{.name = "br0", .isUp = true, .bytesIn = 100, .bytesOut = 40}}));
}

TEST_F(LinuxNetworkSourceTest, ReportsTheKindOfAnInterface) {
    tree.write("proc/net/dev", "wlp3s0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n"
                               "mystery: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    tree.write("sys/class/net/wlp3s0/uevent", "DEVTYPE=wlan\nINTERFACE=wlp3s0\nIFINDEX=3\n");
    tree.write("addresses", "wlp3s0 192.0.2.1\n");
    const Entries expected{{.name = "wlp3s0", .isUp = true, .ipv4Address = "192.0.2.1", .kind = Kind::wifi},
                           {.name = "wlp3s0", .isUp = true, .bytesIn = 1, .bytesOut = 1, .kind = Kind::wifi},
                           {.name = "mystery", .isUp = true, .bytesIn = 1, .bytesOut = 1}};
    EXPECT_EQ(source.read(), expected);
}

TEST_F(LinuxNetworkSourceTest, ReadsTheKindOnlyOfAnInterfaceThatItDoesNotKnow) {
    tree.write("proc/net/dev", "eth0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    addInterface("eth0", "0x1003", "up");
    tree.write("sys/class/net/eth0/uevent", "INTERFACE=eth0\nIFINDEX=3\n");
    tree.write("sys/class/net/eth0/tun_flags", "0x1001\n");
    OpeningWatch watch(tree.root() / "sys/class/net/eth0");
    EXPECT_EQ(source.read()->front().kind, Kind::vpnTunnel);
    EXPECT_TRUE(watch.openedFiles().contains("tun_flags"));
    EXPECT_EQ(source.read()->front().kind, Kind::vpnTunnel);
    EXPECT_EQ(watch.openedFiles(), (std::set<std::string>{"flags", "operstate", "uevent"}));

    tree.write("sys/class/net/eth0/uevent", "INTERFACE=eth0\nIFINDEX=4\n");
    tree.write("sys/class/net/eth0/tun_flags", "0x1002\n");
    EXPECT_EQ(source.read()->front().kind, Kind::unknown) << "another one of the same name";
}

TEST_F(LinuxNetworkSourceTest, ReportsTheMetricOfTheDefaultRoute) {
    tree.write("proc/net/dev", "docker0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n"
                               " enp3s0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    tree.write("proc/net/route", "Iface\tDestination\tGateway\tFlags\tRefCnt\tUse\tMetric\tMask\n"
                                 "enp3s0\t00000000\t0102A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n");
    EXPECT_EQ(source.read()->front().defaultRouteMetric, std::nullopt);
    EXPECT_EQ(source.read()->back().defaultRouteMetric, 100U);
    tree.remove("proc/net/route");
    EXPECT_EQ(source.read()->back().defaultRouteMetric, std::nullopt);
}

TEST_F(LinuxNetworkSourceTest, ReportsNothingOfTheHost) {
    tree.write("proc/net/dev", "eth0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n"
                               "  lo: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    const std::optional<Entries> entries = source.read();
    ASSERT_TRUE(entries);
    EXPECT_EQ(entries->size(), 2u);
    for (const InterfaceEntry& entry : *entries) {
        EXPECT_EQ(entry.ipv4Address, "");
        EXPECT_EQ(entry.ipv6Address, "");
        EXPECT_EQ(entry.defaultRouteMetric, std::nullopt);
        EXPECT_EQ(entry.kind, Kind::unknown);
    }
}

TEST_F(LinuxNetworkSourceTest, FollowsATreeThatChanges) {
    tree.write("proc/net/dev", "eth0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    addInterface("eth0", "0x1003", "up");
    EXPECT_TRUE(source.read()->front().isUp);
    addInterface("eth0", "0x1003", "down");
    EXPECT_FALSE(source.read()->front().isUp);

    tree.write("proc/net/dev", "usb0: 9 0 0 0 0 0 0 0 9 0 0 0 0 0 0 0\n");
    addInterface("usb0", "0x1003", "unknown");
    EXPECT_EQ(source.read(), (Entries{{.name = "usb0", .isUp = true, .bytesIn = 9, .bytesOut = 9}}));
}

TEST_F(LinuxNetworkSourceTest, MakesNamesReadable) {
    tree.write("proc/net/dev", "a\x1B\xFF\xE2\x80\xAE: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    EXPECT_EQ(source.read()->front().name, "a \xEF\xBF\xBD");
}

TEST_F(LinuxNetworkSourceTest, ReadsAThousandInterfaces) {
    std::string text;
    std::string addresses;
    for (int number = 0; number < 1000; ++number) {
        const std::string name = "veth" + std::to_string(number);
        text += name + ": 1 0 0 0 0 0 0 0 2 0 0 0 0 0 0 0\n";
        addresses +=
            name + " 10.0." + std::to_string(number / 250) + "." + std::to_string(number % 250) + "\n";
    }
    tree.write("proc/net/dev", text);
    tree.write("addresses", addresses);
    EXPECT_EQ(source.read()->size(), 2000u);
}

/// What stays the same while packets pass.
Entries withoutCounters(Entries entries) {
    for (InterfaceEntry& entry : entries)
        entry.bytesIn = entry.bytesOut = 0;
    return entries;
}

TEST(LinuxNetworkSourceOfTheHost, AnswersTheSameWithAndWithoutAnAnnouncedChange) {
    LinuxNetworkSource source("/");
    const std::optional<Entries> first = source.read();
    const std::optional<Entries> second = source.read();
    const std::optional<Entries> afresh = LinuxNetworkSource("/").read();
    ASSERT_TRUE(first && second && afresh);
    EXPECT_FALSE(first->empty());
    EXPECT_EQ(withoutCounters(*second), withoutCounters(*first));
    EXPECT_EQ(withoutCounters(*afresh), withoutCounters(*first));
}

TEST(LinuxNetworkSourceOfTheHost, ReportsTheAddressesThatTheKernelLists) {
    std::vector<std::pair<std::string, std::string>> told;
    std::vector<std::pair<std::string, std::string>> listed;
    const std::optional<Entries> entries = LinuxNetworkSource("/").read();
    ASSERT_TRUE(entries);
    for (const InterfaceEntry& entry : *entries) {
        const std::string address = entry.ipv4Address + entry.ipv6Address;
        if (!address.empty())
            told.emplace_back(entry.name, address);
    }
    for (const InterfaceAddress& address : hostAddresses().value_or(Addresses()))
        listed.emplace_back(address.interfaceName, address.text);
    std::ranges::sort(told);
    std::ranges::sort(listed);
    EXPECT_FALSE(told.empty()) << "there is a loopback at least";
    EXPECT_TRUE(std::ranges::includes(listed, told))
        << "ports of a bridge may be missing, no more may be told";
}

TEST(LinuxNetworkSourceOfTheHost, FailsWhileAddressesFailAndRetriesAtEachReading) {
    int timesAsked = 0;
    bool isAnswering = false;
    LinuxNetworkSource source("/", [&]() -> std::optional<Addresses> {
        ++timesAsked;
        return isAnswering ? hostAddresses() : std::nullopt;
    });
    EXPECT_FALSE(source.read());
    EXPECT_FALSE(source.read());
    EXPECT_EQ(timesAsked, 2);
    isAnswering = true;
    const std::optional<Entries> answered = source.read();
    ASSERT_TRUE(answered);
    EXPECT_EQ(withoutCounters(*answered), withoutCounters(*LinuxNetworkSource("/").read()));
    EXPECT_EQ(timesAsked, 3);
}

enum class AddressOutcome {
    asExpected,
    notPermitted,
    cannotRead,
    wrongBefore,
    changedUnannounced,
    wrongAfter
};

/// The IPv4 addresses of the loopback in the present reading.
std::vector<std::string> loopbackAddresses(LinuxNetworkSource& source) {
    std::vector<std::string> addresses;
    for (const InterfaceEntry& entry : source.read().value_or(Entries())) {
        if (entry.name == "lo" && !entry.ipv4Address.empty())
            addresses.push_back(entry.ipv4Address);
    }
    return addresses;
}

AddressOutcome followAnAddress() {
    if (!enterOwnNetwork())
        return AddressOutcome::notPermitted;
    LinuxNetworkSource source("/");
    if (!source.read())
        return AddressOutcome::cannotRead;
    if (loopbackAddresses(source) != std::vector<std::string>{"127.0.0.1"})
        return AddressOutcome::wrongBefore;
    if (loopbackAddresses(source) != std::vector<std::string>{"127.0.0.1"})
        return AddressOutcome::changedUnannounced;
    if (!giveLoopbackAddress("127.0.0.2"))
        return AddressOutcome::notPermitted;
    return loopbackAddresses(source) == std::vector<std::string>{"127.0.0.2"} ? AddressOutcome::asExpected
                                                                              : AddressOutcome::wrongAfter;
}

/// Has no number left for another descriptor while it lives, as a program that has opened too many files.
class NoDescriptorLeft {
public:
    NoDescriptorLeft() {
        ::getrlimit(RLIMIT_NOFILE, &m_usual);
        rlimit none = m_usual;
        none.rlim_cur = 0;
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~NoDescriptorLeft() { ::setrlimit(RLIMIT_NOFILE, &m_usual); }
    NoDescriptorLeft(const NoDescriptorLeft&) = delete;
    NoDescriptorLeft& operator=(const NoDescriptorLeft&) = delete;

private:
    rlimit m_usual{};
};

AddressOutcome followAnAddressThatCannotBeAskedFor() {
    if (!enterOwnNetwork())
        return AddressOutcome::notPermitted;
    LinuxNetworkSource source("/");
    if (loopbackAddresses(source) != std::vector<std::string>{"127.0.0.1"})
        return AddressOutcome::wrongBefore;
    if (!giveLoopbackAddress("127.0.0.2"))
        return AddressOutcome::notPermitted;
    {
        const NoDescriptorLeft exhausted;
        if (source.read())
            return AddressOutcome::changedUnannounced;
    }
    return loopbackAddresses(source) == std::vector<std::string>{"127.0.0.2"} ? AddressOutcome::asExpected
                                                                              : AddressOutcome::wrongAfter;
}

TEST(LinuxNetworkSourceOfTheHost, ReportsANewAddressOnceItCanBeRead) {
    const auto outcome = inChildProcess(followAnAddressThatCannotBeAskedFor);
    if (outcome == AddressOutcome::notPermitted)
        GTEST_SKIP() << "this system does not let a process have a network of its own";
    EXPECT_EQ(outcome, AddressOutcome::asExpected);
}

enum class RouteOutcome { asExpected, notPermitted, routeTooEarly, routeMissed };

bool hasDefaultRoute(LinuxNetworkSource& source) {
    return std::ranges::any_of(source.read().value_or(Entries()), [](const InterfaceEntry& entry) {
        return entry.name == "lo" && entry.defaultRouteMetric == 0U;
    });
}

RouteOutcome followARoute() {
    if (!enterOwnNetwork())
        return RouteOutcome::notPermitted;
    LinuxNetworkSource source("/");
    if (hasDefaultRoute(source))
        return RouteOutcome::routeTooEarly;
    if (!addDefaultRoute())
        return RouteOutcome::notPermitted;
    return hasDefaultRoute(source) ? RouteOutcome::asExpected : RouteOutcome::routeMissed;
}

TEST(LinuxNetworkSourceOfTheHost, ReportsANewDefaultRouteAtTheNextReading) {
    const auto outcome = inChildProcess(followARoute);
    if (outcome == RouteOutcome::notPermitted)
        GTEST_SKIP() << "this system does not let a process have a network of its own";
    EXPECT_EQ(outcome, RouteOutcome::asExpected);
}

TEST(LinuxNetworkSourceOfTheHost, ReportsANewAddressAtTheNextReading) {
    const auto outcome = inChildProcess(followAnAddress);
    if (outcome == AddressOutcome::notPermitted)
        GTEST_SKIP() << "this system does not let a process have a network of its own";
    EXPECT_EQ(outcome, AddressOutcome::asExpected);
}

} // namespace
} // namespace orvelle::linux_platform
