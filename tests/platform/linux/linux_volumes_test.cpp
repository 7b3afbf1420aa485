#include "platform/linux/linux_volumes.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <map>

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

TEST(VolumeSpace, OfTheHostIsKnownOnlyForExistingPaths) {
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

using Volumes = std::vector<MountedVolume>;

class LinuxVolumesTest : public ::testing::Test {
protected:
    TemporaryTree tree;
    LinuxVolumes volumes{tree.root()};
};

TEST_F(LinuxVolumesTest, EmptyTreeHasNoAnswer) {
    EXPECT_FALSE(volumes.read());
}

TEST_F(LinuxVolumesTest, ReportsPathNameAndSpaceOfEachVolume) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                      "2 1 8:17 / /mnt/My\\040Disk rw - ext4 /dev/sdb1 rw\n"
                                      "3 1 0:40 / /mnt/nas rw - nfs4 server:/ rw\n");
    tree.write("statfs", "/ 1000 400\n/mnt/My\\040Disk 2000 900\n/mnt/nas 3000 1000\n");
    tree.link("dev/disk/by-label/Old\\x20System", "../../sda1");
    const Volumes expected{
        {.path = "/", .name = "Old System", .isLocal = true, .totalBytes = 1000, .freeBytes = 400},
        {.path = "/mnt/My Disk", .isLocal = true, .totalBytes = 2000, .freeBytes = 900}};
    EXPECT_EQ(volumes.read(), expected);
}

TEST_F(LinuxVolumesTest, ReportsNothingOfTheHost) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    EXPECT_EQ(volumes.read(), Volumes{}); // though the host has a "/" with its space
}

TEST_F(LinuxVolumesTest, ListsTheRootDirectoryAlsoWhereTheKernelListsNoMountOfIt) {
    tree.write("statfs", "/ 1000 400\n");
    const Volumes expected{{.path = "/", .isLocal = true, .totalBytes = 1000, .freeBytes = 400}};
    tree.write("proc/self/mountinfo", "");
    EXPECT_EQ(volumes.read(), expected);
    tree.write("proc/self/mountinfo", "22 27 0:21 / /proc rw - proc proc rw\n");
    EXPECT_EQ(volumes.read(), expected);
}

TEST_F(LinuxVolumesTest, FollowsATreeThatChanges) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    tree.write("statfs", "/ 1000 400\n/mnt 50 5\n");
    EXPECT_EQ(volumes.read()->size(), 1u);
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                      "2 1 8:2 / /mnt rw - ext4 /dev/sda2 rw\n");
    EXPECT_EQ(volumes.read()->size(), 2u);
    tree.write("statfs", "/ 1000 300\n");
    EXPECT_EQ(volumes.read(),
              (Volumes{{.path = "/", .isLocal = true, .totalBytes = 1000, .freeBytes = 300}}));
    tree.write("etc/fstab", "/dev/sda2 /mnt ext4 x-gvfs-hide 0 0\n");
    tree.write("statfs", "/ 1000 300\n/mnt 50 5\n");
    EXPECT_EQ(volumes.read()->size(), 1u);
}

TEST_F(LinuxVolumesTest, LeavesOutWhatIsBoundIntoAContainer) {
    tree.write("proc/self/mountinfo", "1 0 0:50 / / rw - overlay overlay rw\n"
                                      "2 1 254:1 /c/hosts /etc/hosts rw - ext4 /dev/vda1 rw\n"
                                      "3 1 254:2 /f /app/settings rw - ext4 /dev/vdb rw\n"
                                      "4 1 254:3 /d /app/data rw - ext4 /dev/vdc rw\n");
    tree.write("statfs", "/ 100 40\n/etc/hosts 100 40\n/app/settings 100 40\n/app/data 100 40\n");
    tree.write("app/settings", "a file");
    tree.makeDirectory("app/data");
    const std::optional<Volumes> listed = volumes.read();
    ASSERT_TRUE(listed);
    ASSERT_EQ(listed->size(), 2u);
    EXPECT_EQ(listed->at(0).path, "/");
    EXPECT_EQ(listed->at(1).path, "/app/data");
}

TEST_F(LinuxVolumesTest, FindsTheLabelOverEachNameOfADevice) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/root rw\n"
                                      "2 1 253:0 / /a rw - ext4 /dev/mapper/group-volume rw\n"
                                      "3 1 0:40 / /b rw - btrfs /dev/sdc rw\n"
                                      "4 1 0:41 / /c rw - zfs sdc rw\n");
    tree.write("statfs", "/ 9 9\n/a 9 9\n/b 9 9\n/c 9 9\n");
    tree.link("sys/dev/block/8:1", "../../devices/pci0/block/sda/sda1");
    tree.link("dev/mapper/group-volume", "../dm-0");
    tree.link("dev/disk/by-label/first", "../../sda1");
    tree.link("dev/disk/by-label/second", "../../dm-0");
    tree.link("dev/disk/by-label/third", "../../sdc");
    const std::optional<Volumes> listed = volumes.read();
    ASSERT_TRUE(listed);
    ASSERT_EQ(listed->size(), 4u);
    EXPECT_EQ(listed->at(0).name, "first");
    EXPECT_EQ(listed->at(1).name, "second");
    EXPECT_EQ(listed->at(2).name, "third");
    EXPECT_FALSE(listed->at(3).name); // a pool of that name is no device
}

TEST_F(LinuxVolumesTest, MakesNamesReadable) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                      "2 1 8:2 / /mnt/a\\012b\xFF rw - ext4 /dev/sda2 rw\n");
    tree.write("statfs", "/ 9 9\n/mnt/a\\012b\xFF 9 9\n");
    tree.link("dev/disk/by-label/x\\x0a\xE2\x80\xAEy", "../../sda2");
    const std::optional<Volumes> listed = volumes.read();
    ASSERT_TRUE(listed);
    ASSERT_EQ(listed->size(), 2u);
    EXPECT_EQ(listed->at(1).path, "/mnt/a b\xEF\xBF\xBD");
    EXPECT_EQ(listed->at(1).name, "x y");
}

TEST_F(LinuxVolumesTest, DoesNotLeaveTheTree) {
    tree.write("proc/self/mountinfo",
               "1 0 8:1 / / rw - ext4 /dev/../../../../../../sda1 rw\n"
               "2 1 8:2 /x /../../../../../../../../etc/passwd rw - ext4 /dev/sdb rw\n");
    tree.write("statfs", "/ 9 9\n/../../../../../../../../etc/passwd 9 9\n");
    tree.link("dev/disk/by-label/label", "../../sda1");
    EXPECT_EQ(volumes.read()->size(), 2u); // the second is no file in this tree
}

/// Five volumes on an answering machine, of which some may be slow.
class MeasuredVolumesTest : public ::testing::Test {
protected:
    MeasuredVolumesTest() { mount(17); }

    /// Mounts the volumes, the last of them from the disk of this number.
    void mount(int lastDisk) const {
        std::string mounts = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";
        for (int number = 2; number <= 4; ++number) {
            const std::string digit = std::to_string(number);
            mounts += digit + " 1 8:" + digit + " / /v" + digit + " rw - ext4 /dev/sda" + digit + " rw\n";
        }
        mounts += "5 1 8:" + std::to_string(lastDisk) + " / /slow rw - fuseblk /dev/sdb rw\n";
        tree.write("proc/self/mountinfo", mounts);
    }
    SpaceAnswer answer(const std::string& path) {
        ++timesAsked[path];
        return {.space = VolumeSpace{.totalBytes = 1000, .freeBytes = timesAsked[path]}, .took = took[path]};
    }
    /// What is free on a volume according to the next reading; nothing when it is not listed.
    std::optional<std::int64_t> freeOn(const std::string& path) {
        const Volumes listed = volumes.read().value_or(Volumes());
        const auto found = std::ranges::find(listed, path, &MountedVolume::path);
        return found != listed.end() ? std::optional(found->freeBytes) : std::nullopt;
    }

    TemporaryTree tree;
    std::map<std::string, int> timesAsked;
    std::map<std::string, std::chrono::duration<double>> took;
    LinuxVolumes volumes{tree.root(), [this](const std::string& path) { return answer(path); }};
};

TEST_F(MeasuredVolumesTest, AreAllMeasuredAtEachReading) {
    for (int reading = 1; reading <= 25; ++reading) {
        EXPECT_EQ(freeOn("/slow"), reading);
        for (const char* path : {"/", "/v2", "/v3", "/v4"})
            EXPECT_EQ(timesAsked[path], reading) << path;
    }
}

TEST_F(MeasuredVolumesTest, AreAskedLessOftenWhileTheyTakeLong) {
    took["/slow"] = std::chrono::milliseconds(100);
    for (int reading = 1; reading <= 21; ++reading)
        EXPECT_EQ(freeOn("/slow"), 1) << "what it told first is kept at reading " << reading;
    took["/slow"] = std::chrono::milliseconds(1);
    EXPECT_EQ(freeOn("/slow"), 2);
    EXPECT_EQ(freeOn("/slow"), 3) << "it is quick again";
    EXPECT_EQ(timesAsked["/"], 23) << "the others are not held up";
}

TEST_F(MeasuredVolumesTest, AreAskedAtOnceWhenAnotherDiskIsMountedInTheirPlace) {
    took["/slow"] = std::chrono::seconds(5);
    EXPECT_EQ(freeOn("/slow"), 1);
    mount(33);
    EXPECT_EQ(freeOn("/slow"), 2);
}

TEST_F(MeasuredVolumesTest, AreNeverAskedWhileTheyMayHang) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                      "2 1 0:40 / /net rw - nfs4 server:/ rw\n"
                                      "3 2 8:17 / /net/disk rw - ext4 /dev/sdb1 rw\n");
    EXPECT_EQ(volumes.read()->size(), 1U);
    EXPECT_EQ(timesAsked, (std::map<std::string, int>{{"/", 1}}));
}

TEST(LinuxVolumesOfTheHost, ListTheRootDirectoryWithItsSpace) {
    LinuxVolumes volumes("/");
    const std::optional<Volumes> first = volumes.read();
    ASSERT_TRUE(first);
    const auto root = std::ranges::find(*first, "/", &MountedVolume::path);
    ASSERT_NE(root, first->end());
    EXPECT_EQ(root->totalBytes, hostVolumeSpace("/").space->totalBytes);
    EXPECT_EQ(volumes.read()->size(), first->size());
}

} // namespace
} // namespace orvelle::linux_platform
