#include "platform/linux/interface_attributes.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

std::filesystem::path folderOf(const TemporaryTree& tree, const std::string& name) {
    return tree.root() / "sys/class/net" / name;
}

TEST(InterfaceState, IsUpWhenEnabledAndAbleToPassPackets) {
    EXPECT_TRUE(interfaceState("eth0", "0x1003\n", "up\n").isUp);
    EXPECT_TRUE(interfaceState("tun0", "0x10d1\n", "unknown\n").isUp);
    EXPECT_TRUE(interfaceState("eth0", "0x1003\n", "testing\n").isUp);
    EXPECT_TRUE(interfaceState("eth0", "0x1003\n", std::nullopt).isUp);
}

TEST(InterfaceState, IsDownWithoutTheFlagWhateverTheOperationalState) {
    EXPECT_FALSE(interfaceState("eth0", "0x1002\n", "up\n").isUp);
    EXPECT_FALSE(interfaceState("eth0", "0x1002\n", "unknown\n").isUp);
}

TEST(InterfaceState, IsDownInEveryStateInWhichNoPacketPasses) {
    for (const std::string_view state : {"down\n", "lowerlayerdown\n", "notpresent\n", "dormant\n"})
        EXPECT_FALSE(interfaceState("eth0", "0x1003\n", state).isUp) << state;
}

TEST(InterfaceState, RecognizesALoopbackByItsFlagOrItsName) {
    EXPECT_TRUE(interfaceState("lo", "0x9\n", "unknown\n").isLoopback);
    EXPECT_TRUE(interfaceState("dummy", "0x9", "unknown").isLoopback);
    EXPECT_FALSE(interfaceState("eth0", "0x1003\n", "up\n").isLoopback);
    EXPECT_TRUE(interfaceState("lo", std::nullopt, std::nullopt).isLoopback);
    EXPECT_FALSE(interfaceState("lo1", std::nullopt, std::nullopt).isLoopback);
}

TEST(InterfaceState, LetsTheOperationalStateDecideWithoutReadableFlags) {
    EXPECT_TRUE(interfaceState("eth0", std::nullopt, std::nullopt).isUp);
    EXPECT_FALSE(interfaceState("eth0", std::nullopt, "down\n").isUp);
    EXPECT_TRUE(interfaceState("eth0", "", "up").isUp);
    EXPECT_TRUE(interfaceState("eth0", "zz\n", "up").isUp);
}

TEST(InterfaceState, IsReadFromTheTreeWithItsMasterLink) {
    const TemporaryTree tree;
    const auto state = [&tree] {
        OpenFolder folder(folderOf(tree, "eth0"));
        return readInterfaceState(folder, "eth0");
    };
    tree.write("sys/class/net/eth0/flags", "0x1003\n");
    tree.write("sys/class/net/eth0/operstate", "up\n");
    EXPECT_EQ(state(), (InterfaceState{.isUp = true}));
    tree.link("sys/class/net/eth0/master", "../br0"); // that br0 is not in the tree does not matter
    EXPECT_EQ(state(), (InterfaceState{.isPort = true}));
}

using Kind = InterfaceKind;

constexpr std::int64_t ethernetLink = 1;
constexpr std::int64_t noLink = 65534;

/// The kind of an interface on top of others, whose driver says this type of device.
Kind kindOfType(const std::string& deviceType) {
    const std::string uevent = "DEVTYPE=" + deviceType + "\nINTERFACE=x0\nIFINDEX=3\n";
    return interfaceKind({.uevent = uevent, .linkType = ethernetLink});
}

TEST(InterfaceKind, FollowsTheDriversDeviceType) {
    EXPECT_EQ(kindOfType("wlan"), Kind::wifi);
    EXPECT_EQ(kindOfType("bridge"), Kind::bridge);
    EXPECT_EQ(kindOfType("wireguard"), Kind::vpnTunnel);
    EXPECT_EQ(kindOfType("wwan"), Kind::cellular);
    EXPECT_EQ(kindOfType("dsa"), Kind::ethernet);
}

TEST(InterfaceKind, IsUnknownForOtherDeviceTypes) {
    for (const char* deviceType :
         {"bond", "vlan", "vxlan", "macvlan", "ppp", "bluetooth", "WLAN", "wlan0", ""})
        EXPECT_EQ(kindOfType(deviceType), Kind::unknown) << deviceType;
    EXPECT_EQ(interfaceKind({.uevent = "DEVTYPE=bluetooth\n", .linkType = ethernetLink, .hasDevice = true}),
              Kind::unknown);
}

TEST(InterfaceKind, IsWiFiWithAWirelessFolder) {
    EXPECT_EQ(interfaceKind({.linkType = ethernetLink, .isWireless = true, .hasDevice = true}), Kind::wifi);
}

TEST(InterfaceKind, IsABridgeWithABridgeFolder) {
    EXPECT_EQ(interfaceKind({.linkType = ethernetLink, .isBridge = true}), Kind::bridge);
}

TEST(InterfaceKind, IsEthernetForItsLinkTypeAndADevice) {
    const std::string_view uevent = "INTERFACE=eth0\nIFINDEX=2\n";
    EXPECT_EQ(interfaceKind({.uevent = uevent, .linkType = ethernetLink, .hasDevice = true}), Kind::ethernet);
    EXPECT_EQ(interfaceKind({.uevent = uevent, .linkType = ethernetLink}), Kind::unknown)
        << "one end of a virtual pair, say";
    EXPECT_EQ(interfaceKind({.uevent = uevent, .linkType = 32, .hasDevice = true}), Kind::unknown)
        << "InfiniBand";
    EXPECT_EQ(interfaceKind({.uevent = uevent, .hasDevice = true}), Kind::unknown);
}

TEST(InterfaceKind, IsATunnelForATunDeviceButNotForATap) {
    EXPECT_EQ(interfaceKind({.linkType = noLink, .tunnelFlags = 0x1001}), Kind::vpnTunnel);
    EXPECT_EQ(interfaceKind({.linkType = ethernetLink, .tunnelFlags = 0x1002}), Kind::unknown);
}

TEST(InterfaceKind, IsCellularForAModemsLinkType) {
    EXPECT_EQ(interfaceKind({.linkType = 519}), Kind::cellular);
}

TEST(InterfaceKind, IsReadFromTheTree) {
    const TemporaryTree tree;
    const auto kindOf = [&tree](const std::string& name) {
        OpenFolder folder(folderOf(tree, name));
        return readInterfaceKind(folder, readInterfaceEvent(folder));
    };
    EXPECT_EQ(kindOf("missing"), Kind::unknown);
    tree.write("sys/class/net/enp3s0/type", "1\n");
    EXPECT_EQ(kindOf("enp3s0"), Kind::unknown);
    tree.link("sys/class/net/enp3s0/device",
              "../../../0000:03:00.0"); // that it leads nowhere does not matter
    EXPECT_EQ(kindOf("enp3s0"), Kind::ethernet);
    tree.makeDirectory("sys/class/net/enp3s0/wireless");
    EXPECT_EQ(kindOf("enp3s0"), Kind::wifi);
    tree.makeDirectory("sys/class/net/br0/bridge");
    EXPECT_EQ(kindOf("br0"), Kind::bridge);
    tree.write("sys/class/net/tun0/tun_flags", "0x1001\n");
    EXPECT_EQ(kindOf("tun0"), Kind::vpnTunnel);
    tree.write("sys/class/net/wg0/uevent", "DEVTYPE=wireguard\nINTERFACE=wg0\n");
    EXPECT_EQ(kindOf("wg0"), Kind::vpnTunnel);
}

TEST(InterfaceKind, SurvivesMalformedFiles) {
    const TemporaryTree tree;
    for (const std::string& text :
         {std::string(), std::string("\xFF\xFE"), std::string("-1"), std::string("0x"),
          std::string("DEVTYPE="), std::string(std::size_t{1} << 20, '9')}) {
        for (const char* file : {"uevent", "type", "tun_flags"})
            tree.write(std::string("sys/class/net/odd/") + file, text);
        OpenFolder folder(folderOf(tree, "odd"));
        const std::string uevent = readInterfaceEvent(folder);
        EXPECT_LE(uevent.size(), 4096U);
        EXPECT_EQ(readInterfaceKind(folder, uevent), Kind::unknown) << text.substr(0, 20);
    }
    tree.remove("sys/class/net/odd/uevent");
    tree.makeDirectory("sys/class/net/odd/uevent");
    OpenFolder folder(folderOf(tree, "odd"));
    EXPECT_EQ(readInterfaceEvent(folder), "");
}

} // namespace
} // namespace orvelle::linux_platform
