#include "platform/linux/volume_space.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle::linux_platform {
namespace {

using Spaces = std::map<std::string, VolumeSpace>;

TEST(VolumeSpace, IsNeverNegativeAndNeverMoreFreeThanThereIs) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    constexpr std::int64_t mostBytes = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(volumeSpace(100, 40), (VolumeSpace{.totalBytes = 100, .freeBytes = 40}));
    EXPECT_EQ(volumeSpace(100, 101), (VolumeSpace{.totalBytes = 100, .freeBytes = 100}));
    EXPECT_EQ(volumeSpace(0, 5), VolumeSpace{});
    EXPECT_EQ(volumeSpace(largest, largest), (VolumeSpace{.totalBytes = mostBytes, .freeBytes = mostBytes}));
}

TEST(VolumeSpace, IsReadFromATextByMountPath) {
    EXPECT_EQ(parseVolumeSpaces("/ 1000 400\n"
                                "  /mnt/My\\040Disk\t2000   900  \n"),
              (Spaces{{"/", {1000, 400}}, {"/mnt/My Disk", {2000, 900}}}));
    EXPECT_TRUE(parseVolumeSpaces("\n/\n/ 5\n/ x 5\n/ -5 5\n").empty());
    EXPECT_TRUE(parseVolumeSpaces(std::string(std::size_t{1} << 20, '/')).empty());
}

TEST(VolumeSpace, OfTheHostIsToldOnlyWhereSomethingIs) {
    EXPECT_TRUE(hostVolumeSpace("/"));
    EXPECT_FALSE(hostVolumeSpace("/no such directory"));
}

} // namespace
} // namespace orvelle::linux_platform
