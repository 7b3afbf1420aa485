#include "platform/linux/diskstats.h"
#include "platform/linux/escapes.h"
#include "platform/linux/interface_addresses.h"
#include "platform/linux/interface_state.h"
#include "platform/linux/net_dev.h"
#include "platform/linux/volume_choice.h"
#include "platform/linux/volume_space.h"
#include "platform/names/sanitize.h"

#include <gtest/gtest.h>

#include <random>

namespace orvelle::linux_platform {
namespace {

constexpr std::string_view netDev =
    "face |bytes packets errs|bytes packets errs\n"
    "  lo: 3319 30 0 0 0 0 0 0 3319 30 0 0 0 0 0 0\n"
    "eth0:18446744073709551615 2 0 0 0 0 0 0 18446744073709551615 1 0 0 0 0 0 0\n"
    "eth1:18446744073709551615 2 0 0 0 0 0 0 18446744073709551615 1 0 0 0 0 0 0\n";
constexpr std::string_view mountinfo = "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                                       "27 1 254:0 / / rw,relatime master:1 - ext4 /dev/vda rw\n"
                                       "28 27 0:40 / /mnt/n\\040as rw - nfs4 server:/ rw\n"
                                       "29 28 8:1 /a /mnt/n\\040as/b rw - ext4 /dev/sda1 rw\n"
                                       "30 27 8:1 / /mnt rw - ext4 /dev/sda1 rw\n"
                                       "31 30 0:41 / /mnt/pool rw - zfs tank/data rw\n";
constexpr std::string_view diskstats =
    " 254 0 vda 38339 10768 3190122 26161 32484 10562 1797848 4465 0 18580\n"
    "   8 0 sda 1 0 18446744073709551615 26161 3 0 18446744073709551615 4465\n"
    "   7 0 loop0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0\n";
constexpr std::string_view smallFiles = "/ 1000 400\n/mnt/My\\040Disk 18446744073709551615 900\n"
                                        "eth0 192.0.2.1\neth0 2001:db8::1%eth0\n0x1003\nlowerlayerdown\n"
                                        "/dev/sda2 /mnt/My\\040Disk ext4 defaults,x-gvfs-hide 0 2\n";

class DamagedText {
public:
    /// `text` with some bytes overwritten, cut out, doubled or cut off.
    std::string damaged(std::string_view text) {
        std::string result(text);
        for (std::size_t count = below(8) + 1; count > 0 && !result.empty(); --count) {
            const std::size_t position = below(result.size());
            const std::size_t length = below(40);
            switch (below(4)) {
            case 0:
                result[position] = static_cast<char>(below(256));
                break;
            case 1:
                result.erase(position, length);
                break;
            case 2:
                result.insert(below(result.size()), result.substr(position, length));
                break;
            default:
                result[position] = "\n\\ /:-.0"[below(8)];
            }
        }
        return below(4) == 0 ? result.substr(0, below(result.size() + 1)) : result;
    }

private:
    std::size_t below(std::size_t limit) { return m_engine() % limit; }

    std::mt19937 m_engine{20260101}; // the same texts at each run
};

class DamagedDiskAndNetworkTextTest : public ::testing::Test {
protected:
    static constexpr int textCount = 20'000;
    DamagedText text;
};

TEST_F(DamagedDiskAndNetworkTextTest, NeverLetsSumsOfInterfacesOverflow) {
    for (int count = 0; count < textCount; ++count) {
        const std::string damaged = text.damaged(netDev);
        std::uint64_t sumIn = 0;
        std::uint64_t sumOut = 0;
        for (const InterfaceCounters& counters : parseNetDev(damaged)) {
            ASSERT_FALSE(__builtin_add_overflow(sumIn, counters.bytesIn, &sumIn));
            ASSERT_FALSE(__builtin_add_overflow(sumOut, counters.bytesOut, &sumOut));
            ASSERT_FALSE(counters.name.empty());
        }
    }
}

TEST_F(DamagedDiskAndNetworkTextTest, NeverYieldsAVolumeThatIsNoneOfTheMounts) {
    for (int count = 0; count < textCount; ++count) {
        const std::vector<Mount> mounts = parseMountinfo(text.damaged(mountinfo));
        const std::vector<Mount> volumes =
            chosenVolumes(mounts, {"/mnt"}, [](const Mount&) { return false; });
        ASSERT_LE(volumes.size(), mounts.size());
        for (const Mount& volume : volumes) {
            ASSERT_TRUE(volume.path.starts_with('/'));
            ASSERT_NE(volume.path, "/mnt");
        }
    }
}

TEST_F(DamagedDiskAndNetworkTextTest, NeverYieldsADiskWithoutAName) {
    for (int count = 0; count < textCount; ++count) {
        const std::string damaged = text.damaged(diskstats);
        for (const BlockDeviceCounters& device : parseDiskstats(damaged)) {
            ASSERT_FALSE(device.name.empty());
            ASSERT_TRUE(multipathDiskOf(device.name).empty() || !isWholeDiskName(device.name));
        }
    }
}

TEST_F(DamagedDiskAndNetworkTextTest, NeverYieldsNonsenseFromSmallFiles) {
    for (int count = 0; count < textCount; ++count) {
        const std::string damaged = text.damaged(smallFiles);
        for (const auto& [path, space] : parseVolumeSpaces(damaged)) {
            ASSERT_GE(space.freeBytes, 0);
            ASSERT_LE(space.freeBytes, space.totalBytes);
        }
        for (const InterfaceAddress& address : parseAddresses(damaged))
            ASSERT_EQ(address.text.find_first_not_of("0123456789abcdef:."), std::string::npos);
        ASSERT_LE(hiddenPathsInFstab(damaged).size(), damaged.size());
        ASSERT_LE(withoutHexEscapes(damaged).size(), damaged.size());
        ASSERT_EQ(sanitizedName(damaged).find('\n'), std::string::npos);
        ASSERT_EQ(interfaceState("eth0", damaged, damaged).isPort, false);
    }
}

} // namespace
} // namespace orvelle::linux_platform
