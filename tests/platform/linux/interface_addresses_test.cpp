#include "platform/linux/interface_addresses.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

using Family = InterfaceAddress::Family;
using Addresses = std::vector<InterfaceAddress>;

TEST(InterfaceAddresses, AreReadFromATextOfNamesAndAddresses) {
    EXPECT_EQ(parseAddresses("eth0 192.0.2.7\n"
                             "  eth0\t2001:db8::7  \n"
                             "wlan0 fe80::1%wlan0"),
              (Addresses{{"eth0", Family::ipv4, "192.0.2.7"},
                         {"eth0", Family::ipv6, "2001:db8::7"},
                         {"wlan0", Family::ipv6, "fe80::1"}}));
}

TEST(InterfaceAddresses, AreNormalized) {
    EXPECT_EQ(parseAddresses("eth0 2001:0DB8:0:0:0:0:0:0001\neth0 FE80::A"),
              (Addresses{{"eth0", Family::ipv6, "2001:db8::1"}, {"eth0", Family::ipv6, "fe80::a"}}));
}

TEST(InterfaceAddresses, IgnoreMalformedAddresses) {
    EXPECT_TRUE(parseAddresses("").empty());
    EXPECT_TRUE(parseAddresses("\n\neth0\neth0 \n").empty());
    EXPECT_TRUE(parseAddresses("eth0 300.1.1.1\neth0 host.example\neth0 192.0.2.1/24\neth0 %eth0").empty());
    EXPECT_TRUE(parseAddresses(std::string(std::size_t{1} << 20, '1')).empty());
    EXPECT_TRUE(parseAddresses("eth0 " + std::string(std::size_t{1} << 20, ':')).empty());
}

TEST(InterfaceAddresses, OfTheHostAreNumericAndNameTheirInterface) {
    const std::optional<Addresses> addresses = hostAddresses();
    ASSERT_TRUE(addresses);
    for (const InterfaceAddress& address : *addresses) {
        EXPECT_FALSE(address.interfaceName.empty());
        EXPECT_EQ(parseAddresses(address.interfaceName + " " + address.text), Addresses{address});
    }
}

} // namespace
} // namespace orvelle::linux_platform
