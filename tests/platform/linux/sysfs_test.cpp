#include "platform/linux/sysfs.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle::linux_platform {
namespace {

TEST(Sysfs, ANumberIsOneWholeNumberAndNothingElse) {
    EXPECT_EQ(parseAttributeNumber("45000\n"), 45000);
    EXPECT_EQ(parseAttributeNumber(" -274000 \n"), -274000);
    EXPECT_EQ(parseAttributeNumber("0"), 0);
    for (const char* text :
         {"", "\n", "-", "45abc", "4 5", "0x10", "1.5", "+3", "--3", "unknown", "\xFF\xFE"})
        EXPECT_EQ(parseAttributeNumber(text), std::nullopt) << text;
    EXPECT_EQ(parseAttributeNumber(std::string_view("4\0", 2)), std::nullopt);
}

TEST(Sysfs, ANumberBeyondItsTypeIsTheLargestOrLeast) {
    EXPECT_EQ(parseAttributeNumber("99999999999999999999"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(parseAttributeNumber("-99999999999999999999"), std::numeric_limits<std::int64_t>::min());
}

TEST(Sysfs, AKeptValueIsReadAfreshFromOneDescriptor) {
    const TemporaryTree tree;
    tree.write("value", "1\n");
    KeptFile file(tree.root() / "value", KeptFile::Layout::value);
    EXPECT_EQ(readNumber(file), 1);
    tree.write("value", "23\n");
    EXPECT_EQ(readNumber(file), 23);
    tree.write("value", "");
    EXPECT_EQ(readNumber(file), std::nullopt);
}

TEST(Sysfs, AValueLongerThanTheSmallBufferIsReadWhole) {
    const TemporaryTree tree;
    const std::string text(5000, 'x');
    tree.write("value", text);
    KeptFile file(tree.root() / "value", KeptFile::Layout::value);
    EXPECT_EQ(file.read(), text);
}

TEST(Sysfs, AFileThatIsMissingOrNoFileIsNothing) {
    const TemporaryTree tree;
    tree.write("folder/inside", "1");
    for (const char* name : {"missing", "folder"}) {
        KeptFile file(tree.root() / name, KeptFile::Layout::value);
        EXPECT_EQ(readNumber(file), std::nullopt) << name;
        EXPECT_EQ(readAttribute(tree.root() / name), "") << name;
    }
}

} // namespace
} // namespace orvelle::linux_platform
