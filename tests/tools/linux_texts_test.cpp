#include "platform/linux/process_files.h"
#include "probe/report/linux_texts.h"
#include "probe/report/pseudonyms.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using linux_platform::parseMountinfo;

class LinuxTexts : public testing::Test {
protected:
    Pseudonyms pseudonyms;
};

TEST_F(LinuxTexts, CountersKeepTheLinesThatAreReadAndNothingElse) {
    EXPECT_EQ(numbersOnly("cpu  1 2 3\ncpu0 1 2 3\nintr 5 6\nbtime 1767225000\nsecret 1\n"),
              "cpu  1 2 3\ncpu0 1 2 3\nbtime 1767225000\n");
    EXPECT_EQ(numbersOnly("MemTotal:  8000 kB\nActive(anon): 12 kB\nMemFree: secret\n"),
              "MemTotal:  8000 kB\nActive(anon): 12 kB\n");
    EXPECT_EQ(numbersOnly("0.52 0.50 0.40 1/234 5678\n"), "0.52 0.50 0.40 1/234 5678\n");
    EXPECT_EQ(numbersOnly("cpu0 1 2 secret\n"), "");
}

TEST_F(LinuxTexts, DisksKeepTheirCounters) {
    EXPECT_EQ(diskstatsText("   8       0 sda 1 2 3\n   9     127 md_secret 4 5 6\n   8 0 sdb 1 secret\n",
                            pseudonyms),
              "   8       0 sda 1 2 3\n   9     127 disk-1 4 5 6\n");
}

TEST_F(LinuxTexts, InterfacesKeepTheirCounters) {
    const std::string text = netDevText(
        "Inter-| secret\n face |secret\n  eth0: 1 2 3\nwg-secret: 4 5\n eth1: secret\n: 6 7\n a/b: 8\n",
        pseudonyms);
    EXPECT_EQ(text.substr(text.find("compressed\n") + 11), "  eth0: 1 2 3\n  wg-1: 4 5\n");
}

TEST_F(LinuxTexts, OnlyDefaultRoutesAreToldWithoutTheirGateways) {
    const std::string text =
        routeText("Iface\tDestination\nwlp3s0\t00000000\t01B2A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                  "wlp3s0\t00B2A8C0\t00000000\t0001\t0\t0\t600\t00FFFFFF\t0\t0\t0\n",
                  pseudonyms);
    EXPECT_EQ(text.substr(text.find("IRTT\n") + 5),
              "wlp3s0\t00000000\t00000000\t0003\t0\t0\t600\t00000000\t0\t0\t0\n");
}

TEST_F(LinuxTexts, MountsKeepTheirShape) {
    const auto mounts =
        parseMountinfo("27 1 252:1 / / rw,user=secret shared:7 - ext4 /dev/mapper/secret--root rw\n"
                       "61 27 8:1 / /media/secret/USB\\040KEY rw - exfat /dev/sda1 rw,uid=secret\n"
                       "60 27 0:55 / /mnt/secret rw - cifs //secret.example/share rw\n"
                       "62 27 0:56 net:[4026500003] /run/docker/netns/secret rw - nsfs nsfs rw\n");
    EXPECT_EQ(mountinfoText(mounts, pseudonyms),
              "27 1 252:1 / / rw - ext4 /dev/mapper/n1xxxxxxxxxx rw\n"
              "61 27 8:1 / /media/n2xxxx/n3xxxxx rw - exfat /dev/sda1 rw\n"
              "60 27 0:55 / /mnt/n2xxxx rw - cifs //n4xxxxxxxxxxxx/share rw\n"
              "62 27 0:56 n5xxxxxxxxxxxxxx /run/docker/netns/n2xxxx rw - nsfs nsfs rw\n");
}

TEST_F(LinuxTexts, OfFstabOnlyHiddenMountsAreTold) {
    EXPECT_EQ(fstabText("# secret\n#LABEL=secret /mnt/secret auto x-gvfs-hide 0 0\nUUID=secret /home ext4 "
                        "defaults 0 2\nLABEL=secret /mnt/secret\\040x auto "
                        "nofail,x-gvfs-hide 0 0\n",
                        pseudonyms),
              "none /mnt/n1xxxxxx auto x-gvfs-hide 0 0\n");
}

TEST_F(LinuxTexts, AProcessReadsAsBeforeUnderItsNewName) {
    const std::string text =
        "4301 (se) cret) S 4211 4301 4301 0 -1 4194304 321000 0 3210 0 6 7 0 0 20 0 2 0 1000 "
        "4601856000 160500 18446744073709551615 94858965073920 0 0 0\n";
    const std::string rewritten = *processStatText(text, 4301, "process-1");
    auto before = *linux_platform::parseProcessStat(text);
    const auto after = *linux_platform::parseProcessStat(rewritten);
    before.comm = "process-1";
    EXPECT_EQ(after, before);
    EXPECT_EQ(rewritten.find("9485896"), std::string::npos); // an address in the process's memory
    EXPECT_FALSE(processStatText("4301 (secret", 4301, "process-1"));
    EXPECT_FALSE(processStatText("1 (a) \xD3 0 0 0 0 -1 0 0 0 0 0 6 7 0 0 20 0 2 0 1000 0 5 0\n", 1, "a"));
}

TEST_F(LinuxTexts, OfAnInterfacesEventOnlyTheTypeIsTold) {
    EXPECT_EQ(ueventText("DEVTYPE=wlan\nINTERFACE=secret\nIFINDEX=4\nDEVTYPE=se cret\n"),
              "DEVTYPE=wlan\nIFINDEX=4\n");
}

} // namespace
} // namespace orvelle
