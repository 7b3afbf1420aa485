#include "shell/painted/autostart.h"
#include "support/file_mode.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

TEST(AutostartEntryTest, QuotesTheProgramSoThatItIsReadBack) {
    for (const QString& path :
         {u"/usr/bin/orvelle"_s, u"/home/a b/orvelle"_s, u"/x/\"y\" $HOME `z` 100%/o"_s, u"/back\\slash/o"_s,
          u"/tab\there/o"_s, u"/line\nbreak/o"_s, u"/Bücher/日本/o"_s, u"/%f/%%/o"_s,
          u"/ends with blank /o "_s, u"/ends with two/o  "_s, u"/ends with a wide blank/o\u00A0"_s}) {
        const auto entry = parseAutostart(autostartText(path));
        ASSERT_TRUE(entry) << path.toStdString();
        EXPECT_EQ(entry->program, path) << path.toStdString();
        EXPECT_EQ(entry->tryProgram, path) << path.toStdString();
        EXPECT_TRUE(isStartedBy(*entry, {u"GNOME"_s}));
    }
}

TEST(AutostartEntryTest, EscapesWhatIsSpecialInQuotesTwice) {
    EXPECT_EQ(execArgument(u"/usr/bin/orvelle"_s), u"\"/usr/bin/orvelle\""_s);
    EXPECT_EQ(execArgument(u"/a\"b$c`d\\e%f"_s), u"\"/a\\\\\"b\\\\$c\\\\`d\\\\\\\\e%%f\""_s);
}

TEST(AutostartEntryTest, TakesTheFirstWordAsTheProgram) {
    EXPECT_EQ(execProgram(u"orvelle --x"_s), u"orvelle"_s);
    EXPECT_EQ(execProgram(u"  \"/a b/orvelle\" %u"_s), u"/a b/orvelle"_s);
    EXPECT_EQ(execProgram(u"\"/not closed"_s), QString());
    EXPECT_EQ(execProgram(QString()), QString());
}

TEST(AutostartEntryTest, IsStartedUnlessAKeyForbidsIt) {
    const QByteArray start = "[Desktop Entry]\nType=Application\nExec=orvelle\n";
    const auto starts = [&](const QByteArray& more) {
        const auto entry = parseAutostart(start + more);
        return entry && isStartedBy(*entry, {u"ubuntu"_s, u"GNOME"_s});
    };
    EXPECT_TRUE(starts(""));
    EXPECT_TRUE(starts("Hidden=false\nX-GNOME-Autostart-enabled=true\n"));
    EXPECT_FALSE(starts("Hidden=true\n"));
    EXPECT_FALSE(starts("  Hidden = true  \n"));
    EXPECT_FALSE(starts("X-GNOME-Autostart-enabled=false\n"));
    EXPECT_FALSE(starts("OnlyShowIn=KDE;XFCE;\n"));
    EXPECT_TRUE(starts("OnlyShowIn=KDE;GNOME;\n"));
    EXPECT_FALSE(starts("NotShowIn=GNOME;\n"));
    EXPECT_TRUE(starts("Hidden=false\nHidden=true\n")) << "the first counts";
    EXPECT_TRUE(starts("#Hidden=true\n"));
    EXPECT_TRUE(starts("[Desktop Action New]\nHidden=true\n")) << "of another group";
    EXPECT_FALSE(parseAutostart("[Desktop Entry]\nType=Link\nExec=orvelle\n"));
    EXPECT_FALSE(isStartedBy(parseAutostart(hiddenAutostartText()).value(), {}));
}

TEST(AutostartEntryTest, SurvivesAnyBytes) {
    for (const QByteArray& text :
         {QByteArray(), QByteArray("\0\0\0", 3), QByteArray("\xFF\xFE[Desktop Entry]"),
          QByteArray("[Desktop Entry]"), QByteArray("[Desktop Entry]\n=\n==\nExec"),
          QByteArray("[Desktop Entry]\nType=Application\nExec=\"\\"), QByteArray(1 << 16, '['),
          QByteArray(1 << 16, '\n')}) {
        const auto entry = parseAutostart(text);
        EXPECT_TRUE(!entry || !isStartedBy(*entry, {}));
    }
    const auto entry = parseAutostart("[Desktop Entry]\nType=Application\nExec=\xC3\x28\n");
    ASSERT_TRUE(entry);
    EXPECT_FALSE(entry->program.isEmpty());
}

class AutostartLoginItemTest : public ::testing::Test {
protected:
    AutostartLoginItemTest() {
        makeProgram(program);
        EXPECT_TRUE(QDir().mkpath(systemFolder));
    }
    static void makeProgram(const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    static void write(const QString& path, const QByteArray& text) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    [[nodiscard]] static QByteArray read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString program = folder.filePath(u"or velle"_s);
    QString userFile = folder.filePath(u"user/autostart/orvelle.desktop"_s);
    QString systemFolder = folder.filePath(u"system/autostart"_s);
    QString systemFile = systemFolder + u"/orvelle.desktop"_s;
    AutostartLoginItem item{
        {QFileInfo(userFile).path(), {folder.filePath(u"missing"_s), systemFolder}, {u"GNOME"_s}, program}};
};

TEST_F(AutostartLoginItemTest, WritesAndRemovesTheUsersEntry) {
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_EQ(read(userFile), autostartText(program));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(QFile::exists(userFile));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_TRUE(item.setEnabled(false)) << "there is nothing to do";
    EXPECT_EQ(QDir(QFileInfo(userFile).path()).entryList(QDir::Files), QStringList());
}

TEST_F(AutostartLoginItemTest, WritesAnEntryThatOnlyItsUserMayChange) {
    const WithoutMask withoutMask;
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_EQ(modeOf(userFile), 0600U);
    EXPECT_EQ(modeOf(QFileInfo(userFile).path()), 0700U);
    ASSERT_EQ(::chmod(QFile::encodeName(userFile).constData(), 0640), 0);
    write(userFile, autostartText(u"/gone/orvelle"_s));
    item.repair();
    EXPECT_EQ(read(userFile), autostartText(program));
    EXPECT_EQ(modeOf(userFile), 0640U) << "which the user wanted";
}

TEST_F(AutostartLoginItemTest, HidesAnEntryForAllUsers) {
    write(systemFile, autostartText(program));
    EXPECT_TRUE(item.isEnabled());
    EXPECT_TRUE(item.setEnabled(false));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_EQ(read(systemFile), autostartText(program));
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
}

TEST_F(AutostartLoginItemTest, StaysOffWhenADesktopSwitchedItOff) {
    write(userFile, autostartText(program).replace("enabled=true", "enabled=false"));
    EXPECT_FALSE(item.isEnabled());
    write(userFile, autostartText(program) + "Hidden=true\n");
    EXPECT_FALSE(item.isEnabled());
    const QByteArray before = read(userFile);
    item.repair();
    EXPECT_EQ(read(userFile), before);
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
}

TEST_F(AutostartLoginItemTest, IsRepairedWhenTheProgramHasMoved) {
    write(userFile, autostartText(folder.filePath(u"gone"_s)));
    EXPECT_FALSE(item.isEnabled());
    item.repair();
    EXPECT_EQ(read(userFile), autostartText(program));
    EXPECT_TRUE(item.isEnabled());
}

TEST_F(AutostartLoginItemTest, KeepsAnEntryThatStartsAnotherExistingProgram) {
    const QString other = folder.filePath(u"other"_s);
    makeProgram(other);
    write(userFile, autostartText(other) + "X-Own=kept\n");
    item.repair();
    EXPECT_EQ(read(userFile), autostartText(other) + "X-Own=kept\n");
    EXPECT_TRUE(item.isEnabled());
}

TEST_F(AutostartLoginItemTest, WritesNothingWhenThereIsNoEntryToRepair) {
    item.repair();
    EXPECT_FALSE(QFile::exists(userFile));
}

TEST_F(AutostartLoginItemTest, FailsWhenAFolderHasTheNameOfTheEntry) {
    ASSERT_TRUE(QDir().mkpath(userFile + u"/full"_s));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(item.setEnabled(true));
    EXPECT_FALSE(item.setEnabled(false)) << "a folder is not removed";
    EXPECT_TRUE(QFileInfo(userFile + u"/full"_s).isDir());
}

TEST_F(AutostartLoginItemTest, FailsWhenItsFolderCannotBeCreated) {
    write(folder.filePath(u"user"_s), "a file");
    EXPECT_FALSE(item.setEnabled(true));
    EXPECT_TRUE(item.setEnabled(false));
    AutostartLoginItem nowhere({u"/proc/no-such-folder"_s, {}, {}, program});
    EXPECT_FALSE(nowhere.setEnabled(true));
    EXPECT_FALSE(nowhere.isEnabled());
}

TEST_F(AutostartLoginItemTest, ReplacesABrokenLink) {
    ASSERT_TRUE(QDir().mkpath(QFileInfo(userFile).path()));
    ASSERT_TRUE(QFile::link(u"/nonexistent/orvelle.desktop"_s, userFile));
    write(systemFile, autostartText(program));
    EXPECT_FALSE(item.isEnabled()) << "it hides the one for all";
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_FALSE(QFileInfo(userFile).isSymLink());
    EXPECT_TRUE(item.isEnabled());
    ASSERT_TRUE(QFile::remove(userFile));
    ASSERT_TRUE(QFile::link(userFile, userFile));
    EXPECT_TRUE(item.setEnabled(false)) << "a link to itself";
    EXPECT_FALSE(item.isEnabled());
}

TEST_F(AutostartLoginItemTest, IsOffWhenTheFileIsNoDesktopEntry) {
    write(userFile, "\xFF\xFE nonsense");
    EXPECT_FALSE(item.isEnabled());
    ASSERT_TRUE(QFile::resize(userFile, 100 << 20));
    EXPECT_FALSE(item.isEnabled());
    item.repair();
    EXPECT_EQ(QFileInfo(userFile).size(), 100 << 20);
    EXPECT_TRUE(item.setEnabled(true));
    EXPECT_TRUE(item.isEnabled());
}

TEST_F(AutostartLoginItemTest, IsOffWhileTheProgramCannotBeStarted) {
    EXPECT_TRUE(item.setEnabled(true));
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner));
    EXPECT_FALSE(item.isEnabled());
    ASSERT_TRUE(QFile::remove(program));
    EXPECT_FALSE(item.isEnabled());
    EXPECT_FALSE(item.setEnabled(true)) << "the desktop would not start it";
}

} // namespace
} // namespace orvelle
