#include "platform/linux/mountinfo.h"

#include <gtest/gtest.h>

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

TEST(Mountinfo, LeavesOutLinesThatAreCutOrMakeNoSense) {
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

TEST(Mountinfo, SurvivesAMegabyteOfAnything) {
    EXPECT_TRUE(parseMountinfo(std::string(std::size_t{1} << 20, '\\')).empty());
    EXPECT_TRUE(parseMountinfo(std::string(std::size_t{1} << 20, ' ')).empty());
    const std::string longPath(std::size_t{1} << 20, 'a');
    EXPECT_EQ(parseMountinfo("36 35 98:1 / /" + longPath + " rw - ext3 /dev/root rw").front().path,
              "/" + longPath);
}

} // namespace
} // namespace orvelle::linux_platform
