#include "platform/linux/interface_state.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

TEST(InterfaceState, IsUpWhenSetUpAndAbleToPassPackets) {
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

TEST(InterfaceState, TellsALoopbackByItsFlagAndElseByItsName) {
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
    tree.write("sys/class/net/eth0/flags", "0x1003\n");
    tree.write("sys/class/net/eth0/operstate", "up\n");
    EXPECT_EQ(readInterfaceState(tree.root(), "eth0"), (InterfaceState{.isUp = true}));
    tree.link("sys/class/net/eth0/master", "../br0"); // that br0 is not in the tree does not matter
    EXPECT_EQ(readInterfaceState(tree.root(), "eth0"), (InterfaceState{.isUp = true, .isPort = true}));
}

} // namespace
} // namespace orvelle::linux_platform
