#include "settings/shared_file.h"
#include "support/file_mode.h"
#include "support/temporary_settings.h"
#include "support/waiting.h"

#include <QDateTime>

#include <csignal>
#include <semaphore>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

class FileLockTest : public ::testing::Test {
protected:
    [[nodiscard]] QString path() const { return settings.folderPath() + QStringLiteral("/lock"); }

    TemporarySettings settings;
};

TEST_F(FileLockTest, HasOneHolderAndLeavesNoFile) {
    std::optional<FileLock> lock = FileLock::take(path());
    EXPECT_TRUE(lock);
    EXPECT_FALSE(FileLock::take(path()));
    lock.reset();
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_TRUE(FileLock::take(path()));
}

TEST_F(FileLockTest, IsReleasedWhenItsProgramIsKilled) {
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

TEST_F(FileLockTest, ExcludesAProgramThatCompetesForIt) {
    const QString held = settings.folderPath() + QStringLiteral("/held");
    const auto takeOften = [&] {
        for (int taken = 0; taken < 200;) {
            const std::optional<FileLock> lock = FileLock::take(path());
            if (!lock)
                continue;
            ++taken;
            if (!QDir().mkdir(held) || !QDir().rmdir(held)) // fails if both hold the lock
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

TEST_F(FileLockTest, IsRefusedWhenItsFileCannotBeCreated) {
    EXPECT_FALSE(FileLock::take(settings.folderPath() + QStringLiteral("/missing/lock")));
}

/// A disk that finishes writing when the test says so.
class SlowDisk {
public:
    [[nodiscard]] AtomicFile::Flush flush() {
        return [this](int) { m_allowed.acquire(); };
    }
    void finish() { m_allowed.release(100); }

private:
    std::counting_semaphore<> m_allowed{0};
};

class AtomicFileTest : public ::testing::Test {
protected:
    [[nodiscard]] QString beside(const QString& suffix) const {
        return settings.folderPath() + u"/.orvelle.conf"_s + suffix;
    }
    [[nodiscard]] QByteArray textOf(const QString& path) const {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void writeBeside(const QString& suffix, const QByteArray& text) const {
        QFile file(beside(suffix));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }
    [[nodiscard]] QStringList names() const {
        return QDir(settings.folderPath())
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System, QDir::Name);
    }
    void chmodFile(mode_t mode) const {
        ASSERT_EQ(::chmod(QFile::encodeName(settings.path()).constData(), mode), 0);
    }

    TemporarySettings settings;
};

TEST_F(AtomicFileTest, HoldsTheTextAndLeavesNoTemporaryFile) {
    {
        AtomicFile file(settings.path());
        EXPECT_TRUE(file.replace("one"));
        EXPECT_EQ(settings.text(), "one");
        EXPECT_TRUE(file.replace("two"));
        EXPECT_EQ(settings.text(), "two");
    }
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
}

TEST_F(AtomicFileTest, DoesNotWaitForTheDisk) {
    settings.writeInPlace("old");
    SlowDisk disk;
    AtomicFile file(settings.path(), disk.flush());
    for (const char* text : {"one", "two", "three"}) {
        EXPECT_TRUE(file.replace(text));
        EXPECT_EQ(settings.text(), text);
        EXPECT_EQ(textOf(beside(u".last"_s)), "old") << "the text that the disk has is kept";
    }
    disk.finish();
    EXPECT_TRUE(waitUntil([&] { return names() == QStringList{u"orvelle.conf"_s}; }));
}

TEST_F(AtomicFileTest, KeepsTheOldFileUntilTheNewestIsOnTheDisk) {
    settings.writeInPlace("old");
    int flushes = 0;
    QByteArray keptAtLast;
    {
        AtomicFile* replaced = nullptr;
        AtomicFile file(settings.path(), [&](int) {
            if (++flushes == 1) { // the disk is still writing this text
                EXPECT_TRUE(replaced->replace("newer"));
            }
            keptAtLast = textOf(beside(u".last"_s));
        });
        replaced = &file;
        EXPECT_TRUE(file.replace("new"));
    }
    EXPECT_EQ(keptAtLast, "old");
    EXPECT_EQ(settings.text(), "newer");
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
}

TEST_F(AtomicFileTest, RestoresTheOldFileAfterAPowerCut) {
    settings.writeInPlace("");
    writeBeside(u".last"_s, "old");
    AtomicFile file(settings.path());
    EXPECT_TRUE(file.isInterrupted());
    file.recover();
    EXPECT_EQ(settings.text(), "old");
    EXPECT_FALSE(file.isInterrupted());

    ASSERT_TRUE(QFile::rename(settings.path(), beside(u".last"_s)));
    file.recover();
    EXPECT_EQ(settings.text(), "old") << "when the new file is missing";
}

TEST_F(AtomicFileTest, KeepsANewFileThatSurvivedThePowerCut) {
    settings.writeInPlace("new");
    writeBeside(u".last"_s, "old");
    writeBeside(u".next"_s, "half of the new");
    {
        AtomicFile file(settings.path());
        file.recover();
    }
    EXPECT_EQ(settings.text(), "new");
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
}

TEST_F(AtomicFileTest, KeepsAnEmptyFileThatWasNotCutShort) {
    settings.writeInPlace("");
    AtomicFile file(settings.path());
    EXPECT_FALSE(file.isInterrupted());
    file.recover();
    EXPECT_TRUE(QFile::exists(settings.path()));
}

TEST_F(AtomicFileTest, ReplacesTheTemporaryFileOfAKilledProgram) {
    settings.writeInPlace("old");
    writeBeside(u".next"_s, "half of the n");
    AtomicFile file(settings.path());
    EXPECT_TRUE(file.replace("new"));
    EXPECT_EQ(settings.text(), "new");
}

TEST_F(AtomicFileTest, LeavesOtherFilesAlone) {
    const QStringList others{u"orvelle.conf.AbCdEf"_s, u"orvelle.conf.MyCopy"_s, u"orvelle.conf.next"_s,
                             u"orvelle.conf~"_s, u".orvelle.conf.last2"_s};
    for (const QString& name : others) {
        QFile file(settings.folderPath() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(
            file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-1), QFileDevice::FileModificationTime));
    }
    {
        AtomicFile file(settings.path());
        file.recover();
        EXPECT_TRUE(file.replace("one"));
        EXPECT_TRUE(file.replace("two"));
    }
    for (const QString& name : others)
        EXPECT_TRUE(names().contains(name)) << name.toStdString();
}

TEST_F(AtomicFileTest, KeepsPermissionsAndMakesANewFilePrivate) {
    AtomicFile file(settings.path());
    EXPECT_TRUE(file.replace("one"));
    EXPECT_EQ(modeOf(settings.path()), 0600U);
    chmodFile(0644);
    EXPECT_TRUE(file.replace("two"));
    EXPECT_EQ(modeOf(settings.path()), 0644U);
}

TEST_F(AtomicFileTest, StandsInFoldersOfItsOwnerAlone) {
    const QString upper = settings.folderPath() + u"/upper"_s;
    const WithoutMask withoutMask;
    EXPECT_TRUE(makePrivateFolders(upper + u"/lower"_s));
    EXPECT_EQ(modeOf(upper), 0700U);
    EXPECT_EQ(modeOf(upper + u"/lower"_s), 0700U);
    ASSERT_EQ(::chmod(QFile::encodeName(upper).constData(), 0755), 0);
    EXPECT_TRUE(makePrivateFolders(upper + u"/other"_s));
    EXPECT_EQ(modeOf(upper), 0755U) << "which the user wanted";
    EXPECT_EQ(modeOf(upper + u"/other"_s), 0700U);
    settings.writeInPlace("a file");
    EXPECT_FALSE(makePrivateFolders(settings.path() + u"/folder"_s));
    EXPECT_TRUE(QFile::link(upper, settings.folderPath() + u"/link"_s));
    EXPECT_TRUE(makePrivateFolders(settings.folderPath() + u"/link/deeper"_s));
    EXPECT_EQ(modeOf(upper + u"/deeper"_s), 0700U);
}

TEST_F(AtomicFileTest, ReportsAFileThatCannotBeReplaced) {
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    AtomicFile folder(settings.path());
    EXPECT_FALSE(folder.replace("new"));
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
    AtomicFile nowhere(settings.folderPath() + u"/missing/orvelle.conf"_s);
    EXPECT_FALSE(nowhere.replace("new"));
}

TEST_F(AtomicFileTest, KeepsTheOldFileWhenTheDiskIsFull) {
    settings.writeInPlace("old");
    AtomicFile file(settings.path());
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{.rlim_cur = 2, .rlim_max = before.rlim_max};
    const auto handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_FALSE(file.replace("new"));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, handlerBefore);
    EXPECT_EQ(settings.text(), "old");
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
}

TEST_F(AtomicFileTest, DoesNotFollowALinkInPlaceOfItsTemporaryFile) {
    settings.writeInPlace("old");
    const QString other = settings.folderPath() + u"/other"_s;
    ASSERT_TRUE(QFile::link(other, beside(u".next"_s)));
    AtomicFile file(settings.path());
    EXPECT_TRUE(file.replace("new"));
    EXPECT_FALSE(QFile::exists(other));
    EXPECT_EQ(settings.text(), "new");
}

} // namespace
} // namespace orvelle
