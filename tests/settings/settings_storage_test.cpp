#include "settings/ini_text.h"
#include "settings/settings_storage.h"
#include "settings/shared_file.h"
#include "support/file_mode.h"
#include "support/temporary_settings.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

/// Sets the time of its last change to that many seconds ago.
void age(QFile& file, int seconds) {
    ASSERT_TRUE(file.isOpen() || file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-seconds),
                                 QFileDevice::FileModificationTime));
    file.close();
}

ino_t inodeOf(const QString& path) {
    struct stat status{};
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_ino;
}

class SettingsFileTest : public ::testing::Test {
protected:
    [[nodiscard]] std::optional<StoredValues> read() { return file.read({u"a"_s}); }
    [[nodiscard]] SaveResult save() { return file.write({{u"a"_s, true}}); }
    [[nodiscard]] bool write() { return save() == SaveResult::saved; }

    TemporarySettings settings;
    SettingsFile file{settings.path()};
};

TEST_F(SettingsFileTest, CreatesAMissingFileWithTheFirstWrite) {
    EXPECT_EQ(read(), StoredValues());
    EXPECT_TRUE(write());
    EXPECT_EQ(settings.text(), "[General]\na=true\n");
}

TEST_F(SettingsFileTest, CreatesMissingFoldersWithTheFirstWrite) {
    SettingsFile deepFile(settings.folderPath() + u"/x/y/orvelle.conf"_s);
    EXPECT_EQ(deepFile.read({u"a"_s}), StoredValues());
    EXPECT_EQ(deepFile.write({{u"a"_s, true}}), SaveResult::saved);
    EXPECT_EQ(deepFile.read({u"a"_s}), (StoredValues{{u"a"_s, u"true"_s}}));
}

TEST_F(SettingsFileTest, IsForItsUserAlone) {
    const WithoutMask withoutMask;
    const QString watched = settings.folderPath() + u"/watched"_s;
    SettingsFile(watched + u"/orvelle.conf"_s).watch({}, [] {});
    EXPECT_EQ(modeOf(watched), 0700U);
    const QString written = settings.folderPath() + u"/written"_s;
    EXPECT_EQ(SettingsFile(written + u"/orvelle.conf"_s).write({{u"a"_s, true}}), SaveResult::saved);
    EXPECT_EQ(modeOf(written), 0700U);
    EXPECT_EQ(modeOf(written + u"/orvelle.conf"_s), 0600U);
}

TEST_F(SettingsFileTest, ReadsAFileOfTheMaximumSizeAndLeavesALargerOneAlone) {
    const QByteArray line = "a=1\n";
    settings.writeInPlace(line + QByteArray(IniText::maximumSize - line.size(), ';'));
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"1"_s}}));

    const QByteArray tooLarge = line + QByteArray(IniText::maximumSize - line.size() + 1, ';');
    settings.writeInPlace(tooLarge);
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
    EXPECT_EQ(settings.text(), tooLarge);
}

TEST_F(SettingsFileTest, DoesNotWritePastTheMaximumSize) {
    const QByteArray full(IniText::maximumSize, '#');
    settings.writeInPlace(full);
    EXPECT_FALSE(write());
    EXPECT_EQ(settings.text(), full);
}

TEST_F(SettingsFileTest, ReadsAndKeepsAnEditOfTheSameSize) {
    // A reader must not rely on time and size; the edits are a second apart.
    int secondsAgo = 60;
    const auto edit = [&](const QByteArray& text) {
        settings.writeInPlace(text);
        QFile edited(settings.path());
        age(edited, --secondsAgo);
    };
    edit("a=1\nb=1\n");
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"1"_s}}));
    edit("a=2\nb=1\n");
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"2"_s}}));
    edit("a=2\nb=2\n");
    EXPECT_TRUE(write());
    EXPECT_EQ(settings.text(), "a=true\nb=2\n");
}

TEST_F(SettingsFileTest, KeepsTheValuesOfAProgramThatWritesAtTheSameTime) {
    const auto writeKeys = [this](QChar name) {
        for (int number = 0; number < 20; ++number) {
            while (file.write({{name + QString::number(number), u"x"_s}}) != SaveResult::saved)
                continue;
        }
    };
    const pid_t other = ::fork();
    ASSERT_GE(other, 0);
    writeKeys(other == 0 ? u'a' : u'b');
    if (other == 0)
        ::_exit(0);
    int status = 0;
    ASSERT_EQ(::waitpid(other, &status, 0), other);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(settings.text().count("=x\n"), 40) << settings.text().toStdString();
}

TEST_F(SettingsFileTest, DoesNotHangWhenTheLockIsNoFile) {
    settings.writeInPlace("a=1\n");
    const QString lockPath = settings.path() + u".lock"_s;
    ASSERT_TRUE(QDir().mkpath(lockPath));
    EXPECT_FALSE(write());
    ASSERT_TRUE(QDir().rmdir(lockPath));
    ASSERT_EQ(::mkfifo(lockPath.toLocal8Bit().constData(), 0600), 0);
    EXPECT_FALSE(write());
    ASSERT_TRUE(QFile::remove(lockPath));
    ASSERT_TRUE(QFile::link(u"/nonexistent"_s, lockPath));
    EXPECT_FALSE(write());
    ASSERT_TRUE(QFile::remove(lockPath));
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"1"_s}})) << "the failed writes changed nothing";
    EXPECT_EQ(settings.text(), "a=1\n");
    EXPECT_TRUE(write());
}

TEST_F(SettingsFileTest, TakesOverALockFileThatNobodyHolds) {
    QFile lock(settings.path() + u".lock"_s);
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    EXPECT_TRUE(write());
    EXPECT_FALSE(lock.exists());
}

TEST_F(SettingsFileTest, WritesNothingWhileAnotherProgramHoldsTheLock) {
    std::optional<FileLock> lock = FileLock::take(settings.path() + u".lock"_s);
    ASSERT_TRUE(lock);
    EXPECT_EQ(save(), SaveResult::locked);
    EXPECT_EQ(read(), StoredValues());
    EXPECT_EQ(file.failureReason(), u"another program keeps %1 locked"_s.arg(settings.path()));
    lock.reset();
    EXPECT_TRUE(write());
}

TEST_F(SettingsFileTest, DoesNotRewriteStoredValues) {
    settings.writeInPlace("a = \"true\" ; mine\n");
    EXPECT_TRUE(write());
    EXPECT_EQ(settings.text(), "a = true ; mine\n");
    const QDateTime before = QFileInfo(settings.path()).lastModified();
    const auto inode = inodeOf(settings.path());
    EXPECT_TRUE(write());
    EXPECT_EQ(inodeOf(settings.path()), inode);
    EXPECT_EQ(QFileInfo(settings.path()).lastModified(), before);
}

TEST_F(SettingsFileTest, ReadsTheOldTextAfterAPowerCut) {
    settings.writeInPlace("");
    QFile last(settings.folderPath() + u"/.orvelle.conf.last"_s);
    ASSERT_TRUE(last.open(QIODevice::WriteOnly));
    ASSERT_EQ(last.write("a=1\n"), 4);
    last.close();
    EXPECT_EQ(SettingsFile(settings.path()).read({u"a"_s}), (StoredValues{{u"a"_s, u"1"_s}}));
    EXPECT_EQ(settings.text(), "a=1\n");
}

TEST_F(SettingsFileTest, NeitherReadsNorReplacesAFolder) {
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
    EXPECT_TRUE(QFileInfo(settings.path()).isDir());
}

TEST_F(SettingsFileTest, DoesNotOpenAPipeOrADevice) {
    ASSERT_EQ(::mkfifo(settings.path().toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
    EXPECT_TRUE(file.failureReason().endsWith(u" is not a file"_s));
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, settings.path()));
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
}

TEST_F(SettingsFileTest, WritesTheTargetOfALink) {
    const QString target = settings.folderPath() + u"/target.conf"_s;
    ASSERT_TRUE(QFile::link(target, settings.path())); // broken until the first write
    EXPECT_EQ(read(), StoredValues());
    EXPECT_TRUE(write());
    EXPECT_TRUE(QFileInfo(settings.path()).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(target));
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"true"_s}}));
}

TEST_F(SettingsFileTest, ReadsABrokenLinkAsEmptyWithoutHanging) {
    ASSERT_TRUE(QFile::link(u"/nonexistent/folder/x.conf"_s, settings.path()));
    EXPECT_EQ(read(), StoredValues());
    EXPECT_FALSE(write());
    EXPECT_TRUE(file.failureReason().endsWith(u" is a link that leads nowhere"_s));
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QFile::link(settings.path(), settings.path()));
    EXPECT_EQ(read(), StoredValues());
}

TEST_F(SettingsFileTest, ReportsAFolderThatCannotBeCreated) {
    SettingsFile unwritable(u"/proc/no-such-folder/orvelle.conf"_s);
    EXPECT_EQ(unwritable.read({u"a"_s}), StoredValues());
    EXPECT_EQ(unwritable.write({{u"a"_s, true}}), SaveResult::failed);
    EXPECT_EQ(unwritable.failureReason(), u"the folder /proc/no-such-folder does not exist"_s);
    SettingsFile belowAFile(u"/proc/version/orvelle.conf"_s);
    EXPECT_EQ(belowAFile.read({u"a"_s}), std::nullopt);
    EXPECT_EQ(belowAFile.write({{u"a"_s, true}}), SaveResult::failed);
    EXPECT_EQ(belowAFile.failureReason(), u"/proc/version is not a folder"_s);
}

/// Exits with 0 if `check` holds for an ordinary user: file permissions do not apply to root.
template <class Check>
[[noreturn]] void exitAfterCheckAsOrdinaryUser(Check check) {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && ::setuid(nobody) != 0)
        ::_exit(2);
    ::_exit(check() ? 0 : 1); // not exit(): the leak check cannot inspect a process that changed its user
}

TEST_F(SettingsFileTest, NeitherReadsNorReplacesAnUnreadableFile) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0777), 0);
    ASSERT_EQ(::chmod(settings.path().toLocal8Bit().constData(), 0), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return !read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsFileTest, DoesNotTakeAFileInAForbiddenFolderForAMissingOne) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return !read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0700), 0);
}

TEST_F(SettingsFileTest, ReadsAReadOnlyFileButDoesNotReplaceIt) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0777), 0);
    ASSERT_EQ(::chmod(settings.path().toLocal8Bit().constData(), 0444), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsFileTest, WritesNothingInAReadOnlyFolder) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0555), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsFileTest, LeavesNoTemporaryFiles) {
    ASSERT_EQ(SettingsFile(settings.path()).write({{u"a"_s, true}}), SaveResult::saved);
    EXPECT_EQ(QDir(settings.folderPath()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList{u"orvelle.conf"_s});
}

} // namespace
} // namespace orvelle
