#include "platform/linux/linux_network_source.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

using Entries = std::vector<InterfaceEntry>;

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

TEST_F(LinuxNetworkSourceTest, TellsCountersStateAndAddressesOfEachInterface) {
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

TEST_F(LinuxNetworkSourceTest, TellsNothingOfTheHost) {
    tree.write("proc/net/dev", "eth0: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n"
                               "  lo: 1 0 0 0 0 0 0 0 1 0 0 0 0 0 0 0\n");
    const std::optional<Entries> entries = source.read();
    ASSERT_TRUE(entries);
    EXPECT_EQ(entries->size(), 2u);
    for (const InterfaceEntry& entry : *entries) {
        EXPECT_EQ(entry.ipv4Address, "");
        EXPECT_EQ(entry.ipv6Address, "");
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

TEST_F(LinuxNetworkSourceTest, MakesNamesFitToBeShown) {
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

TEST(LinuxNetworkSourceOfTheHost, TellsTheSameWithAndWithoutAnAnnouncedChange) {
    LinuxNetworkSource source("/");
    const std::optional<Entries> first = source.read();
    const std::optional<Entries> second = source.read();
    ASSERT_EQ(first.has_value(), std::filesystem::exists("/proc/net/dev"));
    if (!first || !second)
        return;
    const auto isLoopback = [](const InterfaceEntry& entry) { return entry.isLoopback; };
    EXPECT_TRUE(std::ranges::any_of(*first, isLoopback));
    EXPECT_TRUE(std::ranges::any_of(*second, isLoopback));
}

} // namespace
} // namespace orvelle::linux_platform
