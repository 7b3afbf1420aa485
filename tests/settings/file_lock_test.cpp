#include "settings/file_lock.h"
#include "support/temporary_settings.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {
namespace {

class FileLockTest : public ::testing::Test {
protected:
    [[nodiscard]] QString path() const { return settings.folderPath() + QStringLiteral("/lock"); }

    TemporarySettings settings;
};

TEST_F(FileLockTest, IsHeldByOneAtATimeAndLeavesNothing) {
    std::optional<FileLock> lock = FileLock::take(path());
    EXPECT_TRUE(lock);
    EXPECT_FALSE(FileLock::take(path()));
    lock.reset();
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_TRUE(FileLock::take(path()));
}

TEST_F(FileLockTest, OfAKilledProgramIsFreeAtOnce) {
    const pid_t other = ::fork();
    ASSERT_GE(other, 0);
    if (other == 0) {
        const std::optional<FileLock> lock = FileLock::take(path());
        ::raise(SIGKILL);
    }
    ASSERT_EQ(::waitpid(other, nullptr, 0), other);
    EXPECT_TRUE(QFile::exists(path()));
    EXPECT_TRUE(FileLock::take(path()));
}

TEST_F(FileLockTest, IsNeverHeldByTwoProgramsThatHurry) {
    const QString held = settings.folderPath() + QStringLiteral("/held");
    const auto takeOften = [&] {
        for (int taken = 0; taken < 200;) {
            const std::optional<FileLock> lock = FileLock::take(path());
            if (!lock)
                continue;
            ++taken;
            if (!QDir().mkdir(held) || !QDir().rmdir(held)) // only one can have the folder
                return false;
        }
        return true;
    };
    const pid_t other = ::fork();
    ASSERT_GE(other, 0);
    const bool isAlone = takeOften();
    if (other == 0)
        ::_exit(isAlone ? 0 : 1);
    int status = -1;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_TRUE(isAlone);
    EXPECT_EQ(status, 0);
}

TEST_F(FileLockTest, CannotBeHadWhereNoFileCanBeMade) {
    EXPECT_FALSE(FileLock::take(settings.folderPath() + QStringLiteral("/missing/lock")));
}

} // namespace
} // namespace orvelle
