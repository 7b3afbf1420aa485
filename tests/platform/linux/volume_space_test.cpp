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
    EXPECT_TRUE(hostVolumeSpace("/").space);
    EXPECT_FALSE(hostVolumeSpace("/no such directory").space);
    EXPECT_GT(hostVolumeSpace("/").took.count(), 0);
}

TEST(VolumeSpace, IsAskedForLessOftenTheLongerTheAnswerTakes) {
    using std::chrono::milliseconds;
    EXPECT_EQ(readingsToSkipAfter(milliseconds(0)), 0U);
    EXPECT_EQ(readingsToSkipAfter(milliseconds(50)), 0U);
    EXPECT_EQ(readingsToSkipAfter(milliseconds(51)), 10U);
    EXPECT_EQ(readingsToSkipAfter(milliseconds(200)), 40U);
    EXPECT_EQ(readingsToSkipAfter(std::chrono::seconds(5)), 200U) << "ten minutes at most";
    EXPECT_EQ(readingsToSkipAfter(std::chrono::hours(24 * 365)), 200U);
}

} // namespace
} // namespace orvelle::linux_platform
