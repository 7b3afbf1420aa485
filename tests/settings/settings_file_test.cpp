#include "settings/settings_file.h"
#include "settings/temporary_settings.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

class SettingsFileTest : public ::testing::Test {
protected:
    [[nodiscard]] std::optional<StoredValues> read() { return file.read({u"a"_s}); }
    [[nodiscard]] bool write() { return file.write({{u"a"_s, true}}); }

    TemporarySettings settings;
    SettingsFile file{settings.path()};
};

TEST_F(SettingsFileTest, AMissingFileIsEmptyAndIsCreatedByTheFirstWrite) {
    EXPECT_EQ(read(), StoredValues());
    EXPECT_TRUE(write());
    EXPECT_EQ(settings.text(), "[General]\na=true\n");
}

TEST_F(SettingsFileTest, MissingFoldersAreCreatedByTheFirstWrite) {
    SettingsFile deepFile(settings.folderPath() + u"/x/y/orvelle.conf"_s);
    EXPECT_EQ(deepFile.read({u"a"_s}), StoredValues());
    EXPECT_TRUE(deepFile.write({{u"a"_s, true}}));
    EXPECT_EQ(deepFile.read({u"a"_s}), (StoredValues{{u"a"_s, u"true"_s}}));
}

TEST_F(SettingsFileTest, AFileOfTheLargestSizeIsReadAndALargerOneIsLeftAlone) {
    const QByteArray line = "a=1\n";
    settings.writeInPlace(line + QByteArray(SettingsFile::maximumSize - line.size(), ';'));
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"1"_s}}));

    const QByteArray tooLarge = line + QByteArray(SettingsFile::maximumSize - line.size() + 1, ';');
    settings.writeInPlace(tooLarge);
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
    EXPECT_EQ(settings.text(), tooLarge);
}

TEST_F(SettingsFileTest, AFileIsNotWrittenPastTheLargestSize) {
    const QByteArray full(SettingsFile::maximumSize, '#');
    settings.writeInPlace(full);
    EXPECT_FALSE(write());
    EXPECT_EQ(settings.text(), full);
}

TEST_F(SettingsFileTest, AFolderInTheFilesPlaceIsNeitherReadNorReplaced) {
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
    EXPECT_TRUE(QFileInfo(settings.path()).isDir());
}

TEST_F(SettingsFileTest, APipeOrADeviceInTheFilesPlaceIsNotOpened) {
    ASSERT_EQ(::mkfifo(settings.path().toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, settings.path()));
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_FALSE(write());
}

TEST_F(SettingsFileTest, ALinkStaysALinkAndItsTargetIsWritten) {
    const QString target = settings.folderPath() + u"/target.conf"_s;
    ASSERT_TRUE(QFile::link(target, settings.path())); // broken until the first write
    EXPECT_EQ(read(), StoredValues());
    EXPECT_TRUE(write());
    EXPECT_TRUE(QFileInfo(settings.path()).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(target));
    EXPECT_EQ(read(), (StoredValues{{u"a"_s, u"true"_s}}));
}

TEST_F(SettingsFileTest, ALinkIntoAMissingFolderOrToItselfIsEmptyAndDoesNotHang) {
    ASSERT_TRUE(QFile::link(u"/nonexistent/folder/x.conf"_s, settings.path()));
    EXPECT_EQ(read(), StoredValues());
    EXPECT_FALSE(write());
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QFile::link(settings.path(), settings.path()));
    EXPECT_EQ(read(), StoredValues());
}

TEST_F(SettingsFileTest, WhereNoFolderCanBeMadeNothingIsWritten) {
    SettingsFile unwritable(u"/proc/no-such-folder/orvelle.conf"_s);
    EXPECT_EQ(unwritable.read({u"a"_s}), StoredValues());
    EXPECT_FALSE(unwritable.write({{u"a"_s, true}}));
    SettingsFile belowAFile(u"/proc/version/orvelle.conf"_s);
    EXPECT_EQ(belowAFile.read({u"a"_s}), StoredValues());
    EXPECT_FALSE(belowAFile.write({{u"a"_s, true}}));
}

/// Ends the process with 0 when `check` holds for a user whom file permissions stop, as they do not stop
/// root.
template <class Check>
[[noreturn]] void exitAfterCheckAsOrdinaryUser(Check check) {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && ::setuid(nobody) != 0)
        ::_exit(2);
    ::_exit(check() ? 0 : 1); // not exit(): the leak check cannot inspect a process that changed its user
}

TEST_F(SettingsFileTest, AFileThatMayNotBeReadIsNeitherReadNorReplaced) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0777), 0);
    ASSERT_EQ(::chmod(settings.path().toLocal8Bit().constData(), 0), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return !read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsFileTest, AReadOnlyFileIsReadButNotReplaced) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0777), 0);
    ASSERT_EQ(::chmod(settings.path().toLocal8Bit().constData(), 0444), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsFileTest, InAReadOnlyFolderNothingIsWritten) {
    settings.writeInPlace("a=1\n");
    ASSERT_EQ(::chmod(settings.folderPath().toLocal8Bit().constData(), 0555), 0);
    EXPECT_EXIT(exitAfterCheckAsOrdinaryUser([&] { return read().has_value() && !write(); }),
                ::testing::ExitedWithCode(0), "");
}

TEST_F(SettingsFileTest, NoTemporaryFilesStayBehind) {
    ASSERT_TRUE(write());
    EXPECT_EQ(QDir(settings.folderPath()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
              QStringList{u"orvelle.conf"_s});
}

} // namespace
} // namespace orvelle
