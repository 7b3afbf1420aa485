#include "platform/linux/linux_volumes.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

using Volumes = std::vector<MountedVolume>;

class LinuxVolumesTest : public ::testing::Test {
protected:
    TemporaryTree tree;
    LinuxVolumes volumes{tree.root()};
};

TEST_F(LinuxVolumesTest, EmptyTreeHasNoAnswer) {
    EXPECT_FALSE(volumes.read());
}

TEST_F(LinuxVolumesTest, TellsPathNameAndSpaceOfEachVolume) {
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

TEST_F(LinuxVolumesTest, TellsNothingOfTheHost) {
    tree.write("proc/self/mountinfo", "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n");
    EXPECT_EQ(volumes.read(), Volumes{}); // though the host has a "/" with its space
}

TEST_F(LinuxVolumesTest, ListsTheRootDirectoryAlsoWhereTheKernelListsNoMountOfIt) {
    tree.write("proc/self/mountinfo", "22 27 0:21 / /proc rw - proc proc rw\n");
    tree.write("statfs", "/ 1000 400\n");
    EXPECT_EQ(volumes.read(),
              (Volumes{{.path = "/", .isLocal = true, .totalBytes = 1000, .freeBytes = 400}}));
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

TEST_F(LinuxVolumesTest, MakesNamesFitToBeShown) {
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

TEST(LinuxVolumesOfTheHost, ListTheRootDirectoryWithItsSpace) {
    LinuxVolumes volumes("/");
    const std::optional<Volumes> first = volumes.read();
    ASSERT_TRUE(first);
    const auto root = std::ranges::find(*first, "/", &MountedVolume::path);
    ASSERT_NE(root, first->end());
    EXPECT_EQ(root->totalBytes, hostVolumeSpace("/")->totalBytes);
    EXPECT_EQ(volumes.read()->size(), first->size());
}

} // namespace
} // namespace orvelle::linux_platform
