#include "platform/linux/mounts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

TEST(Mountinfo, ReadsEachFieldWhateverTheNumberOfOptionalOnes) {
    const std::vector<Mount> expected{{.id = 36,
                                       .parentId = 35,
                                       .deviceMajor = 98,
                                       .deviceMinor = 1,
                                       .root = "/mnt1",
                                       .path = "/mnt 2",
                                       .fileSystem = "ext3",
                                       .source = "/dev/my root"}};
    EXPECT_EQ(parseMountinfo("36 35 98:1 /mnt1 /mnt\\0402 rw,noatime - ext3 /dev/my\\040root rw\n"),
              expected);
    EXPECT_EQ(parseMountinfo("36 35 98:1 /mnt1 /mnt\\0402 rw master:1 shared:2 - ext3 /dev/my\\040root rw"),
              expected);
}

TEST(Mountinfo, LeavesOutTruncatedAndMalformedLines) {
    const std::string line = "36 35 98:1 / /mnt rw - ext3 /dev/root rw";
    EXPECT_EQ(parseMountinfo(line).size(), 1u);
    for (std::size_t size = 0; size <= line.find('-'); ++size)
        EXPECT_TRUE(parseMountinfo(line.substr(0, size)).empty()) << line.substr(0, size);
    EXPECT_TRUE(parseMountinfo("x 35 98:1 / /mnt rw - ext3 /dev/root rw\n"
                               "36 x 98:1 / /mnt rw - ext3 /dev/root rw\n"
                               "36 35 98 / /mnt rw - ext3 /dev/root rw\n"
                               "36 35 :1 / /mnt rw - ext3 /dev/root rw\n"
                               "36 35 98:1 / mnt rw - ext3 /dev/root rw\n")
                    .empty());
}

TEST(Mountinfo, SurvivesAMegabyteOfArbitraryBytes) {
    EXPECT_TRUE(parseMountinfo(std::string(std::size_t{1} << 20, '\\')).empty());
    EXPECT_TRUE(parseMountinfo(std::string(std::size_t{1} << 20, ' ')).empty());
    const std::string longPath(std::size_t{1} << 20, 'a');
    EXPECT_EQ(parseMountinfo("36 35 98:1 / /" + longPath + " rw - ext3 /dev/root rw").front().path,
              "/" + longPath);
}

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
    // The later one counts where the numbers do not decide.
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

TEST(MountTree, IgnoresMountsBesideThePath) {
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

using Paths = std::vector<std::string>;

/// The paths of the volumes chosen from mounts of which each path in `files` is a single file.
Paths chosenPaths(std::string_view text, const HiddenPaths& hidden = {}, const HiddenPaths& files = {}) {
    Paths paths;
    const auto isSingleFile = [&files](const Mount& mount) { return files.contains(mount.path); };
    for (const Mount& mount : chosenVolumes(parseMountinfo(text), hidden, isSingleFile))
        paths.push_back(mount.path);
    return paths;
}

TEST(VolumeChoice, TakesLocalFileSystemsOnBlockDevicesInMountOrder) {
    EXPECT_EQ(chosenPaths("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "2 1 8:17 / /mnt/stick rw - fuseblk /dev/sdb1 rw\n"
                          "3 1 0:40 / /mnt/pool rw - btrfs /dev/sdc rw\n"
                          "4 1 0:41 / /mnt/cache rw - bcachefs /dev/sdd:/dev/sde rw\n"
                          "5 1 0:42 / /data rw - zfs tank rw\n"
                          "6 1 11:0 / /media/cd ro - iso9660 /dev/sr0 ro\n"),
              (Paths{"/", "/mnt/stick", "/mnt/pool", "/mnt/cache", "/data", "/media/cd"}));
}

TEST(VolumeChoice, NeverTakesNetworkMemoryOrImages) {
    EXPECT_EQ(chosenPaths("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "2 1 0:40 / /mnt/nfs rw - nfs4 server:/export rw\n"
                          "3 1 0:41 / /mnt/smb rw - cifs //server/share rw\n"
                          "4 1 0:42 / /mnt/ssh rw - fuse.sshfs user@host: rw\n"
                          "5 1 0:43 / /home/user/.cache/doc rw - fuse.portal portal rw\n"
                          "6 1 0:44 / /net rw - autofs /etc/auto.net rw\n"
                          "7 1 0:45 / /tmp rw - tmpfs tmpfs rw\n"
                          "8 1 0:46 / /proc rw - proc proc rw\n"
                          "9 1 0:47 / /dev rw - devtmpfs udev rw\n"
                          "10 1 7:0 / /mnt/image ro - ext4 /dev/loop0 ro\n"
                          "11 1 0:48 / /mnt/butter rw - btrfs /dev/loop1 rw\n"
                          "12 1 8:33 / /mnt/live ro - squashfs /dev/sdc1 ro\n"
                          "13 1 0:49 / /mnt/overlay rw - overlay overlay rw\n"
                          "14 1 7:1 / /mnt/named ro - iso9660 /dev/disk/by-label/image ro\n"),
              Paths{"/"});
}

TEST(VolumeChoice, AlwaysTakesTheRootDirectoryWhateverItIs) {
    for (const char* root : {"0:50 / / rw - overlay overlay rw", "0:50 / / rw - tmpfs tmpfs rw",
                             "7:0 / / ro - squashfs /dev/loop0 ro", "0:50 / / rw - nfs server:/ rw"})
        EXPECT_EQ(chosenPaths(std::string("1 0 ") + root, {"/"}), Paths{"/"}) << root;
}

TEST(VolumeChoice, TakesTheUppermostRootDirectory) {
    const std::vector<Mount> volumes = chosenVolumes(parseMountinfo("1 1 0:2 / / rw - rootfs rootfs rw\n"
                                                                    "2 1 8:1 / / rw - ext4 /dev/sda1 rw\n"),
                                                     {}, [](const Mount&) { return false; });
    ASSERT_EQ(volumes.size(), 1u);
    EXPECT_EQ(volumes[0].source, "/dev/sda1");
}

TEST(VolumeChoice, TakesOneMountForEachDevice) {
    EXPECT_EQ(chosenPaths("1 0 0:30 /@ / rw - btrfs /dev/sda2 rw\n"
                          "2 1 0:30 /@home /home rw - btrfs /dev/sda2 rw\n"
                          "3 1 8:17 / /mnt/data rw - ext4 /dev/sdb1 rw\n"
                          "4 1 8:17 /sub /b rw - ext4 /dev/sdb1 rw\n"
                          "5 1 8:17 / /c rw - ext4 /dev/sdb1 rw\n"),
              (Paths{"/", "/mnt/data"}));
}

TEST(VolumeChoice, PrefersTheRootDirectoryAndThenTheWholeFileSystem) {
    EXPECT_EQ(chosenPaths("1 2 8:1 /usr /usr rw - ext4 /dev/sda1 rw\n"
                          "2 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "3 2 8:17 /sub /a rw - ext4 /dev/sdb1 rw\n"
                          "4 2 8:17 / /mnt/data rw - ext4 /dev/sdb1 rw\n"),
              (Paths{"/", "/mnt/data"}));
    EXPECT_EQ(chosenPaths("1 0 0:30 / /mnt/all rw - btrfs /dev/sda2 rw\n"
                          "2 0 0:30 /@ / rw - btrfs /dev/sda2 rw\n"),
              Paths{"/"});
}

TEST(VolumeChoice, TakesTheShortestPathOfEachPool) {
    EXPECT_EQ(chosenPaths("1 0 0:30 / / rw - zfs rpool/ROOT/system rw\n"
                          "2 1 0:31 / /home rw - zfs rpool/home rw\n"
                          "3 1 0:32 / /tank/media/films rw - zfs tank/media/films rw\n"
                          "4 1 0:33 / /tank/media rw - zfs tank/media rw\n"
                          "5 1 0:34 / /other rw - zfs tanker rw\n"),
              (Paths{"/", "/tank/media", "/other"}));
}

TEST(VolumeChoice, LeavesOutTheBootLoaderAndLayers) {
    EXPECT_EQ(chosenPaths("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                          "2 1 8:2 / /boot rw - ext4 /dev/sda2 rw\n"
                          "3 2 8:3 / /boot/efi rw - vfat /dev/sda3 rw\n"
                          "4 1 8:4 / /bootleg rw - ext4 /dev/sda4 rw\n"
                          "5 1 8:5 / /var/lib/docker rw - ext4 /dev/sda5 rw\n"
                          "6 5 253:1 / /var/lib/docker/devicemapper/mnt/1 rw - xfs /dev/mapper/docker-1 rw\n"
                          "7 1 253:2 / /var/lib/containers/storage/1 rw - xfs /dev/mapper/podman-1 rw\n"
                          "8 1 253:3 / /var/lib/kubelet/pods/1/volumes rw - ext4 /dev/sdk rw\n"
                          "9 1 253:4 / /home/u/.local/share/containers/storage/1 rw - xfs /dev/sdl rw\n"
                          "10 1 253:5 / /snap/core/1 ro - ext4 /dev/sdm ro\n"),
              (Paths{"/", "/bootleg", "/var/lib/docker"}));
}

TEST(VolumeChoice, LeavesOutWhatTheFileSystemTableHides) {
    constexpr std::string_view mounts = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                        "2 1 8:2 / /mnt/My\\040Disk rw - ext4 /dev/sda2 rw\n"
                                        "3 1 8:3 / /mnt/shown rw - ext4 /dev/sda3 rw\n";
    EXPECT_EQ(chosenPaths(mounts, {"/", "/mnt/My Disk"}), (Paths{"/", "/mnt/shown"}));
}

TEST(VolumeChoice, TakesNoDeviceOfWhichOnlySingleFilesAreBound) {
    constexpr std::string_view mounts = "1 0 0:50 / / rw - overlay overlay rw\n"
                                        "2 1 254:1 /c/hosts /etc/hosts rw - ext4 /dev/vda1 rw\n"
                                        "3 1 254:1 /c/resolv.conf /etc/resolv.conf rw - ext4 /dev/vda1 rw\n";
    EXPECT_EQ(chosenPaths(mounts, {}, {"/etc/hosts", "/etc/resolv.conf"}), Paths{"/"});
    EXPECT_EQ(chosenPaths(std::string(mounts) + "4 1 254:1 /volumes/data /data rw - ext4 /dev/vda1 rw\n", {},
                          {"/etc/hosts", "/etc/resolv.conf"}),
              (Paths{"/", "/data"}));
}

TEST(VolumeChoice, AsksNothingOfWhatCannotBeReached) {
    const auto neverAsked = [](const Mount& mount) {
        ADD_FAILURE() << "asked of " << mount.path;
        return false;
    };
    const auto volumes = chosenVolumes(parseMountinfo("1 0 8:1 / / rw - ext4 /dev/sda1 rw\n"
                                                      "2 1 0:40 / /nas rw - nfs4 server:/ rw\n"
                                                      "3 2 8:2 /sub /nas/disk rw - ext4 /dev/sdb rw\n"
                                                      "4 1 8:3 /sub /mnt rw - ext4 /dev/sdc rw\n"
                                                      "5 4 0:41 / /mnt rw - cifs //server/share rw\n"),
                                       {}, neverAsked);
    EXPECT_EQ(volumes.size(), 1u);
}

TEST(VolumeChoice, ManagesTenThousandMounts) {
    std::string text = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";
    for (int number = 2; number <= 10'000; ++number)
        text += std::to_string(number) + " 1 259:" + std::to_string(number) + " / /mnt/" +
                std::to_string(number) + " rw - ext4 /dev/disk rw\n";
    EXPECT_EQ(chosenPaths(text).size(), 10'000u);
    for (int number = 10'001; number <= 20'000; ++number) // each on top of the one before
        text += std::to_string(number) + " " + std::to_string(number - 1) +
                " 8:2 / /mnt/10000 rw - ext4 /dev/sdb rw\n";
    EXPECT_EQ(chosenPaths(text).size(), 9'999u);
}

TEST(FileSystemTable, HidesWhatItMarks) {
    EXPECT_EQ(hiddenPathsInFstab("# /dev/sda9 /commented ext4 x-gvfs-hide\n"
                                 "/dev/sda2 /mnt/My\\040Disk ext4 defaults,x-gvfs-hide,noatime 0 2\n"
                                 "\t/dev/sda3\t/tabs/\text4\tx-gvfs-hide\n"
                                 "/dev/sda4 /shown ext4 x-gvfs-show,x-gvfs-hidden 0 2\n"
                                 "/dev/sda5 /short\n"
                                 "\n"),
              (HiddenPaths{"/mnt/My Disk", "/tabs"}));
    EXPECT_TRUE(hiddenPathsInFstab(std::string(std::size_t{1} << 20, ',')).empty());
}

} // namespace
} // namespace orvelle::linux_platform
