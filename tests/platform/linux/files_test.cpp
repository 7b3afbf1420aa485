#include "child_process.h"
#include "platform/linux/files.h"
#include "support/child_process.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sched.h>
#include <sys/mount.h>

namespace orvelle::linux_platform {
namespace {

TEST(Directory, ListsItsEntriesAndIsEmptyForAnythingElse) {
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

TEST(Directory, ADanglingLinkExists) {
    const TemporaryTree tree;
    tree.link("link", "nowhere");
    EXPECT_TRUE(existsUnfollowed(tree.root() / "link"));
    EXPECT_FALSE(existsUnfollowed(tree.root() / "link/beyond"));
    EXPECT_FALSE(existsUnfollowed(tree.root() / "missing"));
}

TEST(Directory, DotAndDotDotAreNoEntries) {
    for (const char* name : {"", ".", ".."})
        EXPECT_FALSE(isEntryName(name)) << name;
    for (const char* name : {"...", ".x", "sda", " "})
        EXPECT_TRUE(isEntryName(name)) << name;
}

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

TEST(KeptFile, FailsWhenItsDeviceVanishesAndReadsTheNextOne) {
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

enum class MountOutcome { asExpected, notPermitted, noFirstChange, neverQuiet, changeMissed, textNotNew };

/// Mounts a file system in memory at `path` among mounts of this process's own.
MountOutcome watchOwnMounts(const std::string& path) {
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return MountOutcome::notPermitted;
    KeptFile mountinfo("/proc/self/mountinfo", KeptFile::Layout::records);
    if (!mountinfo.hasAnnouncedChange())
        return MountOutcome::noFirstChange;
    if (!mountinfo.read() || mountinfo.hasAnnouncedChange())
        return MountOutcome::neverQuiet;
    if (::mount("tmpfs", path.c_str(), "tmpfs", 0, "size=4096k") != 0)
        return MountOutcome::notPermitted;
    if (!mountinfo.hasAnnouncedChange())
        return MountOutcome::changeMissed;
    if (mountinfo.read().value_or("").find(path) == std::string_view::npos)
        return MountOutcome::textNotNew;
    return mountinfo.hasAnnouncedChange() ? MountOutcome::neverQuiet : MountOutcome::asExpected;
}

TEST(MountAnnouncement, ReportsAMountOnce) {
    const TemporaryTree tree;
    const auto outcome = inChildProcess([&tree] { return watchOwnMounts(tree.root().string()); });
    if (outcome == MountOutcome::notPermitted)
        GTEST_SKIP() << "this system does not let a process have mounts of its own";
    EXPECT_EQ(outcome, MountOutcome::asExpected);
}

TEST(OpenFolder, ReadsItsFilesInTurn) {
    const TemporaryTree tree;
    tree.write("folder/one", "1\n");
    tree.write("folder/empty", "");
    tree.write("folder/long", std::string(10000, 'x'));
    tree.link("folder/dangling", "nowhere");
    tree.link("link", "folder");
    const OpenFolder parent(tree.root());
    for (OpenFolder folder(parent, "link"); const char* name : {"one", "one"})
        EXPECT_EQ(folder.read(name), "1\n");
    OpenFolder folder(tree.root() / "folder");
    EXPECT_EQ(folder.read("empty"), "");
    EXPECT_EQ(folder.read("long"), std::string(4096, 'x'));
    EXPECT_EQ(folder.read("missing"), std::nullopt);
    EXPECT_EQ(folder.read("."), std::nullopt);
    EXPECT_TRUE(folder.contains("one"));
    EXPECT_TRUE(folder.contains("dangling"));
    EXPECT_FALSE(folder.contains("missing"));
}

TEST(OpenFolder, ThatDoesNotExistHasNoFiles) {
    const TemporaryTree tree;
    tree.write("file", "text");
    OpenFolder missing(tree.root() / "missing");
    OpenFolder missingToo(missing, "file");
    OpenFolder file(tree.root() / "file");
    for (OpenFolder* folder : {&missing, &missingToo, &file}) {
        EXPECT_EQ(folder->read("file"), std::nullopt);
        EXPECT_FALSE(folder->contains("file"));
    }
}

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
