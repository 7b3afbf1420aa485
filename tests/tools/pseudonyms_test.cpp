#include "probe/report/pseudonyms.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

class PseudonymsTest : public testing::Test {
protected:
    Pseudonyms pseudonyms;
};

TEST_F(PseudonymsTest, AProcessIsANumber) {
    EXPECT_EQ(pseudonyms.process("secret"), "process-1");
    EXPECT_EQ(pseudonyms.process("other"), "process-2");
    EXPECT_EQ(pseudonyms.process("secret"), "process-1");
}

TEST_F(PseudonymsTest, InterfacesThatTheSystemNamesStay) {
    for (const char* name : {"lo", "eth0", "wlan1", "enp0s31f6", "wlp3s0", "eno1", "ens3", "enp5s0f1np1",
                             "docker0", "wg0", "tun0", "wwan0", "enp0s20f0u1u2", "en0"})
        EXPECT_EQ(pseudonyms.interface(name), name);
}

TEST_F(PseudonymsTest, InterfacesWithOtherWordsAndHardwareAddressesKeepTheirKindAlone) {
    EXPECT_EQ(pseudonyms.interface("enx00155d0a1b2c"), "enx-1");
    EXPECT_EQ(pseudonyms.interface("br-4e07408562be"), "br-2");
    EXPECT_EQ(pseudonyms.interface("wg-ann"), "wg-3");
    EXPECT_EQ(pseudonyms.interface("ann-laptop"), "net-4");
    EXPECT_EQ(pseudonyms.interface("vethc0ffee1"), "veth-5");
    EXPECT_EQ(pseudonyms.interface("wg-ann"), "wg-3");
}

TEST_F(PseudonymsTest, BlockDevicesOfTheSystemStay) {
    for (const char* name : {"sda", "sdb12", "nvme0n1", "nvme0n1p3", "nvme0c1n1", "mmcblk0p1", "mmcblk0boot0",
                             "dm-12", "loop3", "zram0", "md127", "vda1", "xvda", "cciss/c0d0"})
        EXPECT_EQ(pseudonyms.device(name), name);
    EXPECT_EQ(pseudonyms.device("md_annsraid"), "disk-1");
}

TEST_F(PseudonymsTest, PlacesOfEveryMachineStay) {
    EXPECT_EQ(pseudonyms.path("/"), "/");
    EXPECT_EQ(pseudonyms.path("/home"), "/home");
    EXPECT_EQ(pseudonyms.path("/var/lib/docker/overlay2"), "/var/lib/docker/overlay2");
}

TEST_F(PseudonymsTest, OtherPlacesKeepTheirLengthAlone) {
    EXPECT_EQ(pseudonyms.path("/media/annabel/Holiday 2024"), "/media/n1xxxxx/n2xxxxxxxxxx");
    EXPECT_EQ(pseudonyms.path("/home/annabel"), "/home/n1xxxxx");
    EXPECT_EQ(pseudonyms.place("x"), "n3");
    EXPECT_LT(pseudonyms.place(std::string(300, 'y')).size(), 30U);
}

TEST_F(PseudonymsTest, AddressesBecomeThoseOfDocumentation) {
    EXPECT_EQ(pseudonyms.address("192.168.178.42"), "192.0.2.1");
    EXPECT_EQ(pseudonyms.address("2a02:8109::1"), "2001:db8::2");
    EXPECT_EQ(pseudonyms.address("fe80::1234"), "fe80::3");
    EXPECT_EQ(pseudonyms.address("192.168.178.42"), "192.0.2.1");
    EXPECT_EQ(pseudonyms.address("127.0.0.1"), "127.0.0.1");
    EXPECT_EQ(pseudonyms.address("::1"), "::1");
}

TEST_F(PseudonymsTest, FoldersOfDevicesLoseTheirSerialNumbers) {
    EXPECT_EQ(pseudonyms.deviceFolder("0000:05:00.0"), "0000:05:00.0");
    EXPECT_EQ(pseudonyms.deviceFolder("hid-a4:c1:38:01:02:03-battery"), "hid-serial1-battery");
    EXPECT_EQ(pseudonyms.deviceFolder("wwid0123456789abcdef"), "wwiserial2");
    EXPECT_EQ(pseudonyms.deviceFolder("coretemp.0"), "coretemp.0");
}

TEST_F(PseudonymsTest, SuppliesOfTheSystemStay) {
    EXPECT_EQ(pseudonyms.powerSupply("BAT0"), "BAT0");
    EXPECT_EQ(pseudonyms.powerSupply("AC"), "AC");
    EXPECT_EQ(pseudonyms.powerSupply("hid-a4:c1:38:01:02:03-battery"), "supply-1");
}

} // namespace
} // namespace orvelle
