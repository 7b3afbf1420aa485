#include "platform/linux/linux_disk_source.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

using Devices = std::vector<BlockDeviceCounters>;

TEST(Diskstats, CountsSectorsOfFiveHundredAndTwelveBytes) {
    EXPECT_EQ(
        parseDiskstats("   8       0 sda 38339 10768 3190122 26161 32484 10562 1797848 4465 0 18580 33766\n"
                       "   8       1 sda1 1 2 3 4 5 6 7\n"),
        (Devices{{"sda", {.bytesRead = 3190122ULL * 512, .bytesWritten = 1797848ULL * 512}},
                 {"sda1", {.bytesRead = 3ULL * 512, .bytesWritten = 7ULL * 512}}}));
}

TEST(Diskstats, LeavesOutTruncatedAndMalformedLines) {
    EXPECT_TRUE(parseDiskstats("").empty());
    EXPECT_TRUE(parseDiskstats("8 0 sda 1 2 3 4 5 6\n8 0 sda 1 2 3\n8 0 sda\n8 0\n8\n\n").empty());
    EXPECT_TRUE(parseDiskstats("8 0 sda 1 2 x 4 5 6 7\n8 0 sda 1 2 3 4 5 6 -7\n").empty());
    EXPECT_TRUE(parseDiskstats("8 0 .. 1 2 3 4 5 6 7\n").empty());
    EXPECT_TRUE(parseDiskstats(std::string(std::size_t{1} << 20, '7')).empty());
}

TEST(Diskstats, StaysAtTheLargestCounterWhereTheBytesDoNotFit) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(parseDiskstats("8 0 sda 1 2 18446744073709551615 4 5 6 99999999999999999999999"),
              (Devices{{"sda", {.bytesRead = largest, .bytesWritten = largest}}}));
}

TEST(WholeDiskName, IsDistinguishedFromAPartitions) {
    for (const std::string_view name :
         {"sda", "sdaa", "vda", "xvdb", "hdc", "nvme0n1", "nvme10n12", "mmcblk0"})
        EXPECT_TRUE(isWholeDiskName(name)) << name;
    for (const std::string_view name :
         {"sda1",   "sdaa12",    "vda1",      "xvdb2",        "hdc3",   "nvme0n1p1", "nvme0",
          "nvme0n", "nvme0c0n1", "mmcblk0p1", "mmcblk0boot0", "mmcblk", "sd",        "loop0",
          "ram0",   "zram0",     "dm-0",      "md0",          "sr0",    "SDA",       ""})
        EXPECT_FALSE(isWholeDiskName(name)) << name;
}

TEST(MultipathDisk, IsNamedWithoutTheController) {
    EXPECT_EQ(multipathDiskOf("nvme0c1n2"), "nvme0n2");
    EXPECT_EQ(multipathDiskOf("nvme12c3n1"), "nvme12n1");
    for (const std::string_view name : {"nvme0n1", "nvme0c1", "nvme0c", "nvmec0n1", "sda", ""})
        EXPECT_EQ(multipathDiskOf(name), "") << name;
}

using Disks = std::vector<DiskCounters>;

/// A line of diskstats of a device that read and wrote these sectors.
std::string lineOf(const std::string& name, std::uint64_t sectorsRead, std::uint64_t sectorsWritten) {
    return "8 0 " + name + " 1 0 " + std::to_string(sectorsRead) + " 9 1 0 " +
           std::to_string(sectorsWritten) + " 9 0 9 9\n";
}

class LinuxDiskCountersTest : public ::testing::Test {
protected:
    TemporaryTree tree;
    LinuxDiskCounters counters{tree.root()};

    void addHardware(const std::string& name) const {
        tree.link("sys/class/block/" + name + "/device", "../../../0:0:0:0");
    }
};

TEST_F(LinuxDiskCountersTest, EmptyTreeIsAFailedRead) {
    EXPECT_FALSE(counters.read());
}

TEST_F(LinuxDiskCountersTest, CountsOnlyWhatSysfsLinksToHardware) {
    tree.write("proc/diskstats", lineOf("sda", 10, 20) + lineOf("sda1", 9, 19) + lineOf("loop0", 5, 5) +
                                     lineOf("dm-0", 8, 18) + lineOf("md127", 7, 17) + lineOf("ram0", 3, 3) +
                                     lineOf("zram0", 6, 6) + lineOf("odd7", 1, 2));
    addHardware("sda");
    addHardware("odd7");
    for (const char* name : {"sda1", "loop0", "dm-0", "md127", "ram0", "zram0"})
        tree.makeDirectory(std::string("sys/class/block/") + name);
    EXPECT_EQ(counters.read(), (Disks{{.bytesRead = 10 * 512, .bytesWritten = 20 * 512},
                                      {.bytesRead = 512, .bytesWritten = 2 * 512}}));
}

TEST_F(LinuxDiskCountersTest, RecognizesDisksByNameWhereSysfsHasNoDevice) {
    tree.write("proc/diskstats", lineOf("sda", 1, 1) + lineOf("nvme0n1", 2, 2) + lineOf("nvme0n1p1", 2, 2) +
                                     lineOf("vdb", 4, 4) + lineOf("vdb1", 4, 4));
    addHardware("sda");
    EXPECT_EQ(counters.read()->size(), 3u); // sda by its link, nvme0n1 and vdb by their names
}

TEST_F(LinuxDiskCountersTest, RecognizesDisksByNameInATreeWithoutDeviceLinks) {
    tree.write("proc/diskstats", lineOf("sda", 1, 2) + lineOf("sda1", 1, 2) + lineOf("loop0", 3, 3));
    for (const char* name : {"sda", "sda/sda1", "loop0"})
        tree.makeDirectory(std::string("sys/block/") + name);
    EXPECT_EQ(counters.read(), (Disks{{.bytesRead = 512, .bytesWritten = 1024}}));
}

TEST_F(LinuxDiskCountersTest, FindsTheLinkInEitherDirectoryOfSysfs) {
    tree.write("proc/diskstats", lineOf("odd0", 1, 2) + lineOf("cciss/c0d0", 3, 4));
    tree.link("sys/block/odd0/device", "../../../1:0:0:0");
    tree.link("sys/block/cciss!c0d0/device", "../../../2:0:0:0");
    EXPECT_EQ(counters.read()->size(), 2u);
}

TEST_F(LinuxDiskCountersTest, CountsADiskWithSeveralPathsAtItsPaths) {
    tree.write("proc/diskstats", lineOf("nvme0n1", 30, 30) + lineOf("nvme0c0n1", 10, 10) +
                                     lineOf("nvme0c1n1", 20, 20) + lineOf("nvme1n1", 1, 1));
    for (const char* name : {"nvme0n1", "nvme0c0n1", "nvme0c1n1", "nvme1n1"})
        addHardware(name);
    EXPECT_EQ(counters.read(), (Disks{{.bytesRead = 10 * 512, .bytesWritten = 10 * 512},
                                      {.bytesRead = 20 * 512, .bytesWritten = 20 * 512},
                                      {.bytesRead = 512, .bytesWritten = 512}}));
}

TEST_F(LinuxDiskCountersTest, FollowsDisksThatAppearAndVanish) {
    tree.write("proc/diskstats", lineOf("sda", 1, 1));
    EXPECT_EQ(counters.read()->size(), 1u);
    tree.write("proc/diskstats", lineOf("sda", 1, 1) + lineOf("sdb", 2, 2) + lineOf("sdb1", 2, 2));
    EXPECT_EQ(counters.read()->size(), 2u);
    tree.write("proc/diskstats", lineOf("sdb", 2, 2));
    EXPECT_EQ(counters.read(), (Disks{{.bytesRead = 1024, .bytesWritten = 1024}}));
    tree.write("proc/diskstats", "");
    EXPECT_EQ(counters.read(), Disks{});
}

TEST_F(LinuxDiskCountersTest, KeepsSumsWithinSixtyFourBits) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    tree.write("proc/diskstats", lineOf("sda", largest, largest) + lineOf("sdb", largest, largest));
    const std::optional<Disks> disks = counters.read();
    ASSERT_TRUE(disks);
    ASSERT_EQ(disks->size(), 2u);
    EXPECT_GT(disks->front().bytesRead, 0u);
    EXPECT_LE(disks->back().bytesRead, largest - disks->front().bytesRead);
    EXPECT_LE(disks->back().bytesWritten, largest - disks->front().bytesWritten);
}

} // namespace
} // namespace orvelle::linux_platform
