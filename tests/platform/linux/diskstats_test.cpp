#include "platform/linux/diskstats.h"

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

TEST(Diskstats, LeavesOutLinesThatAreCutOrMakeNoSense) {
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

TEST(WholeDiskName, IsToldFromAPartitions) {
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

} // namespace
} // namespace orvelle::linux_platform
