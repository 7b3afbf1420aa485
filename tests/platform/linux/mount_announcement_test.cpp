#include "platform/linux/kept_file.h"
#include "support/child_process.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>

namespace orvelle::linux_platform {
namespace {

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

TEST(MountAnnouncement, IsToldOnceForAMountAndQuietElse) {
    const TemporaryTree tree;
    const auto outcome = inChildProcess([&tree] { return watchOwnMounts(tree.root().string()); });
    if (outcome == MountOutcome::notPermitted)
        GTEST_SKIP() << "this system does not let a process have mounts of its own";
    EXPECT_EQ(outcome, MountOutcome::asExpected);
}

} // namespace
} // namespace orvelle::linux_platform
