#include "child_process.h"
#include "platform/linux/kept_file.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

TEST(KeptFile, ReadsTheTextThatIsThereAtEachCall) {
    const TemporaryTree tree;
    tree.write("file", "one");
    KeptFile file(tree.root() / "file", KeptFile::Layout::single);
    EXPECT_EQ(file.read(), "one");
    tree.write("file", "three");
    EXPECT_EQ(file.read(), "three");
    tree.write("file", "");
    EXPECT_EQ(file.read(), "");
}

TEST(KeptFile, IsNothingWhileTheFileIsMissingAndReadsItWhenItAppears) {
    const TemporaryTree tree;
    KeptFile file(tree.root() / "file", KeptFile::Layout::single);
    EXPECT_FALSE(file.read());
    tree.write("file", "here");
    EXPECT_EQ(file.read(), "here");
}

TEST(KeptFile, IsNothingForADirectory) {
    const TemporaryTree tree;
    EXPECT_FALSE(KeptFile(tree.root(), KeptFile::Layout::single).read());
}

TEST(KeptFile, ReadsTextsLongerThanItsBuffer) {
    for (const auto layout : {KeptFile::Layout::single, KeptFile::Layout::records}) {
        const TemporaryTree tree;
        const std::string text(100'000, 'x');
        tree.write("file", text);
        KeptFile file(tree.root() / "file", layout);
        EXPECT_EQ(file.read(), text);
        EXPECT_EQ(file.read(), text);
    }
}

TEST(KeptFile, CutsEnormousTexts) {
    const TemporaryTree tree;
    tree.write("file", std::string(KeptFile::maximumSize + 10, 'x'));
    KeptFile file(tree.root() / "file", KeptFile::Layout::records);
    EXPECT_EQ(file.read()->size(), KeptFile::maximumSize);
}

TEST(KeptFile, DoesNotWaitForAFifo) {
    const TemporaryTree tree;
    ASSERT_EQ(std::system(("mkfifo " + (tree.root() / "fifo").string()).c_str()), 0);
    EXPECT_EQ(KeptFile(tree.root() / "fifo", KeptFile::Layout::single).read().value_or(""), "");
}

TEST(KeptFile, IsNothingOnceWhatItTellsOfHasVanishedAndReadsItsSuccessor) {
    // As with a device in sysfs that is pulled out, the open file stays and reading it fails.
    const TemporaryTree tree;
    std::optional<ChildProcess> child(std::in_place);
    tree.link("file", "/proc/" + std::to_string(child->pid()) + "/stat");
    KeptFile file(tree.root() / "file", KeptFile::Layout::single);
    const std::string_view beginning = file.read().value_or("");
    EXPECT_TRUE(beginning.starts_with(std::to_string(child->pid())));
    child.reset();
    tree.remove("file");
    tree.write("file", "successor");
    EXPECT_FALSE(file.read());
    EXPECT_EQ(file.read(), "successor");
}

TEST(KeptFile, ReadsWholeKernelTexts) {
    KeptFile stat("/proc/stat", KeptFile::Layout::single);
    const auto text = stat.read();
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->starts_with("cpu "));
    EXPECT_TRUE(text->ends_with('\n'));
    EXPECT_NE(text->find("softirq"), std::string_view::npos);
}

} // namespace
} // namespace orvelle::linux_platform
