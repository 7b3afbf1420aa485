#include "platform/linux/directory.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

TEST(Directory, ListsWhatItHoldsAndNothingWhenItIsNone) {
    const TemporaryTree tree;
    tree.write("file", "");
    tree.link("link", "nowhere");
    tree.makeDirectory("folder");
    std::vector<std::string> names = namesIn(tree.root());
    std::ranges::sort(names);
    EXPECT_EQ(names, (std::vector<std::string>{"file", "folder", "link"}));
    EXPECT_TRUE(namesIn(tree.root() / "missing").empty());
    EXPECT_TRUE(namesIn(tree.root() / "file").empty());
}

TEST(Directory, ALinkToNowhereExistsByItself) {
    const TemporaryTree tree;
    tree.link("link", "nowhere");
    EXPECT_TRUE(existsUnfollowed(tree.root() / "link"));
    EXPECT_FALSE(existsUnfollowed(tree.root() / "link/beyond"));
    EXPECT_FALSE(existsUnfollowed(tree.root() / "missing"));
}

TEST(Directory, ItsOwnAndItsParentsNamesAreNoEntries) {
    for (const char* name : {"", ".", ".."})
        EXPECT_FALSE(isEntryName(name)) << name;
    for (const char* name : {"...", ".x", "sda", " "})
        EXPECT_TRUE(isEntryName(name)) << name;
}

} // namespace
} // namespace orvelle::linux_platform
