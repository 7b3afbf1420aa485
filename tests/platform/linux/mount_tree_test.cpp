#include "platform/linux/mount_tree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

/// Whether the mount of `source` can be reached among the mounts of `text`.
bool isReachable(std::string_view text, std::string_view source) {
    const std::vector<Mount> mounts = parseMountinfo(text);
    const MountTree tree(mounts);
    const auto mount = std::ranges::find(mounts, source, &Mount::source);
    EXPECT_NE(mount, mounts.end());
    return tree.isReachable(*mount);
}

TEST(MountTree, ReachesAMountOverLocalFileSystems) {
    constexpr std::string_view mounts = "1 0 8:1 / / rw - ext4 /dev/root rw\n"
                                        "2 1 0:20 / /run rw - tmpfs run rw\n"
                                        "3 2 8:17 / /run/media/usb rw - vfat /dev/usb rw\n"
                                        "4 3 0:30 / /run/media/usb/pool rw - zfs pool rw\n"
                                        "5 4 8:33 / /run/media/usb/pool/disk rw - ext4 /dev/disk rw\n";
    for (const char* source : {"/dev/root", "/dev/usb", "pool", "/dev/disk"})
        EXPECT_TRUE(isReachable(mounts, source)) << source;
}

TEST(MountTree, DoesNotReachWhatIsMountedOver) {
    constexpr std::string_view mounts = "1 0 8:1 / / rw - ext4 /dev/root rw\n"
                                        "2 1 8:2 / /mnt rw - ext4 /dev/covered rw\n"
                                        "3 2 0:40 / /mnt rw - nfs4 server:/ rw\n";
    EXPECT_FALSE(isReachable(mounts, "/dev/covered"));
    EXPECT_TRUE(isReachable(mounts, "/dev/root"));
    // Moved there later though it was mounted first.
    EXPECT_FALSE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                             "2 3 0:40 / /mnt rw - nfs4 server:/ rw\n"
                             "3 1 8:2 / /mnt rw - ext4 /dev/covered rw\n",
                             "/dev/covered"));
    // The later one counts where the numbers do not tell.
    EXPECT_FALSE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                             "2 1 8:2 / /mnt rw - ext4 /dev/covered rw\n"
                             "3 1 0:40 / /mnt rw - nfs4 server:/ rw\n",
                             "/dev/covered"));
}

TEST(MountTree, ReachesWhatIsMountedOverANetworkMountOrAnAutomountPoint) {
    EXPECT_TRUE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                            "2 1 0:40 / /mnt rw - nfs4 server:/ rw\n"
                            "3 2 8:2 / /mnt rw - ext4 /dev/disk rw\n",
                            "/dev/disk"));
    EXPECT_TRUE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                            "2 1 0:40 / /home rw - autofs systemd-1 rw\n"
                            "3 2 8:2 / /home rw - ext4 /dev/disk rw\n",
                            "/dev/disk"));
}

TEST(MountTree, DoesNotReachThroughANetworkMount) {
    for (const char* fileSystem : {"nfs4", "cifs", "fuse.sshfs", "9p", "autofs", "unheard-of"}) {
        const std::string mounts = "1 0 8:1 / / rw - ext4 /dev/root rw\n"
                                   "2 1 0:40 / /net rw - " +
                                   std::string(fileSystem) +
                                   " server rw\n"
                                   "3 2 8:2 / /net/disk rw - ext4 /dev/disk rw\n"
                                   "4 3 8:3 / /net/disk/inner rw - ext4 /dev/inner rw\n";
        EXPECT_FALSE(isReachable(mounts, "/dev/disk")) << fileSystem;
        EXPECT_FALSE(isReachable(mounts, "/dev/inner")) << fileSystem;
    }
}

TEST(MountTree, DoesNotReachWhatALaterMountHidesWithADirectoryAbove) {
    EXPECT_FALSE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                             "2 1 8:2 / /mnt/disk rw - ext4 /dev/disk rw\n"
                             "3 1 0:40 / /mnt rw - nfs4 server:/ rw\n",
                             "/dev/disk"));
    EXPECT_FALSE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                             "2 1 8:2 / /mnt/disk rw - ext4 /dev/disk rw\n"
                             "3 1 0:40 / /mnt rw - tmpfs tmpfs rw\n",
                             "/dev/disk"));
    // Moved there later though it was mounted first.
    EXPECT_FALSE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                             "2 1 0:40 / /mnt rw - nfs4 server:/ rw\n"
                             "3 1 8:2 / /mnt/disk rw - ext4 /dev/disk rw\n",
                             "/dev/disk"));
}

TEST(MountTree, IsNotMisledByMountsBesideTheWay) {
    EXPECT_TRUE(isReachable("1 0 8:1 / / rw - ext4 /dev/root rw\n"
                            "2 1 8:2 / /mnt/disk rw - ext4 /dev/disk rw\n"
                            "3 1 0:40 / /mnt/di rw - nfs4 server:/ rw\n"
                            "4 2 0:41 / /mnt/disk/nas rw - nfs4 server:/ rw\n",
                            "/dev/disk"));
}

TEST(MountTree, PassesTheRootDirectoryWhateverItIs) {
    EXPECT_TRUE(isReachable("1 0 0:30 / / rw - nfs server:/ rw\n"
                            "2 1 8:2 / /mnt rw - ext4 /dev/disk rw\n",
                            "/dev/disk"));
}

TEST(MountTree, SurvivesNumbersThatMakeNoTree) {
    EXPECT_TRUE(isReachable("7 7 8:1 / / rw - ext4 /dev/root rw\n"
                            "7 7 8:2 / /mnt rw - ext4 /dev/disk rw\n"
                            "7 7 8:3 / /mnt/inner rw - ext4 /dev/inner rw\n",
                            "/dev/inner"));
    EXPECT_TRUE(isReachable("1 99 8:1 / / rw - ext4 /dev/root rw\n"
                            "2 98 8:2 / /mnt rw - ext4 /dev/disk rw\n",
                            "/dev/disk"));
    EXPECT_FALSE(isReachable("1 2 8:1 / /a rw - ext4 /dev/a rw\n" // each in the other
                             "2 1 8:2 / /b rw - ext4 /dev/b rw\n",
                             "/dev/a"));
}

} // namespace
} // namespace orvelle::linux_platform
