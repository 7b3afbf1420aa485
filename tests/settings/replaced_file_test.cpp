#include "settings/replaced_file.h"
#include "support/temporary_settings.h"
#include "support/waiting.h"

#include <QDateTime>

#include <csignal>
#include <semaphore>
#include <sys/resource.h>
#include <sys/stat.h>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

/// A disk that takes what it is given when the test says so.
class SlowDisk {
public:
    [[nodiscard]] ReplacedFile::Flush flush() {
        return [this](int) { m_allowed.acquire(); };
    }
    void finish() { m_allowed.release(100); }

private:
    std::counting_semaphore<> m_allowed{0};
};

class ReplacedFileTest : public ::testing::Test {
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

TEST_F(ReplacedFileTest, HoldsTheTextAndLeavesNothingBeside) {
    {
        ReplacedFile file(settings.path());
        EXPECT_TRUE(file.replace("one"));
        EXPECT_EQ(settings.text(), "one");
        EXPECT_TRUE(file.replace("two"));
        EXPECT_EQ(settings.text(), "two");
    }
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
}

TEST_F(ReplacedFileTest, DoesNotWaitForTheDisk) {
    settings.writeInPlace("old");
    SlowDisk disk;
    ReplacedFile file(settings.path(), disk.flush());
    for (const char* text : {"one", "two", "three"}) {
        EXPECT_TRUE(file.replace(text));
        EXPECT_EQ(settings.text(), text);
        EXPECT_EQ(textOf(beside(u".last"_s)), "old") << "what the disk has for certain is kept";
    }
    disk.finish();
    EXPECT_TRUE(waitUntil([&] { return names() == QStringList{u"orvelle.conf"_s}; }));
}

TEST_F(ReplacedFileTest, KeepsTheFileOfTheDiskUntilTheNewestIsThere) {
    settings.writeInPlace("old");
    int flushes = 0;
    QByteArray keptAtLast;
    {
        ReplacedFile* replaced = nullptr;
        ReplacedFile file(settings.path(), [&](int) {
            if (++flushes == 1) { // the disk is busy with the one before
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

TEST_F(ReplacedFileTest, TakesTheLastOneBackThatAPowerCutLeft) {
    settings.writeInPlace("");
    writeBeside(u".last"_s, "old");
    ReplacedFile file(settings.path());
    EXPECT_TRUE(file.isInterrupted());
    file.recover();
    EXPECT_EQ(settings.text(), "old");
    EXPECT_FALSE(file.isInterrupted());

    ASSERT_TRUE(QFile::rename(settings.path(), beside(u".last"_s)));
    file.recover();
    EXPECT_EQ(settings.text(), "old") << "where the new one has no name either";
}

TEST_F(ReplacedFileTest, KeepsANewOneThatSurvived) {
    settings.writeInPlace("new");
    writeBeside(u".last"_s, "old");
    writeBeside(u".next"_s, "half of the new");
    {
        ReplacedFile file(settings.path());
        file.recover();
    }
    EXPECT_EQ(settings.text(), "new");
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
}

TEST_F(ReplacedFileTest, AnEmptyFileWithoutALastOneStaysEmpty) {
    settings.writeInPlace("");
    ReplacedFile file(settings.path());
    EXPECT_FALSE(file.isInterrupted());
    file.recover();
    EXPECT_TRUE(QFile::exists(settings.path()));
}

TEST_F(ReplacedFileTest, ReplacesWhatAKilledProgramLeft) {
    settings.writeInPlace("old");
    writeBeside(u".next"_s, "half of the n");
    ReplacedFile file(settings.path());
    EXPECT_TRUE(file.replace("new"));
    EXPECT_EQ(settings.text(), "new");
}

TEST_F(ReplacedFileTest, LeavesTheFilesOfOthersAlone) {
    const QStringList others{u"orvelle.conf.AbCdEf"_s, u"orvelle.conf.MyCopy"_s, u"orvelle.conf.next"_s,
                             u"orvelle.conf~"_s, u".orvelle.conf.last2"_s};
    for (const QString& name : others) {
        QFile file(settings.folderPath() + u'/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(
            file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-1), QFileDevice::FileModificationTime));
    }
    {
        ReplacedFile file(settings.path());
        file.recover();
        EXPECT_TRUE(file.replace("one"));
        EXPECT_TRUE(file.replace("two"));
    }
    for (const QString& name : others)
        EXPECT_TRUE(names().contains(name)) << name.toStdString();
}

TEST_F(ReplacedFileTest, ANewFileIsItsOwnersAndAReplacedOneKeepsItsPermissions) {
    const auto mode = [&] {
        struct stat status{};
        EXPECT_EQ(::stat(QFile::encodeName(settings.path()).constData(), &status), 0);
        return status.st_mode & 0777U;
    };
    ReplacedFile file(settings.path());
    EXPECT_TRUE(file.replace("one"));
    EXPECT_EQ(mode(), 0600U);
    chmodFile(0644);
    EXPECT_TRUE(file.replace("two"));
    EXPECT_EQ(mode(), 0644U);
}

TEST_F(ReplacedFileTest, WhatCannotBeReplacedStaysAsItWas) {
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    ReplacedFile folder(settings.path());
    EXPECT_FALSE(folder.replace("new"));
    EXPECT_EQ(names(), QStringList{u"orvelle.conf"_s});
    ReplacedFile nowhere(settings.folderPath() + u"/missing/orvelle.conf"_s);
    EXPECT_FALSE(nowhere.replace("new"));
}

TEST_F(ReplacedFileTest, WhatDoesNotFitLeavesTheOldOne) {
    settings.writeInPlace("old");
    ReplacedFile file(settings.path());
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

TEST_F(ReplacedFileTest, ALinkInThePlaceOfTheNextIsNotFollowed) {
    settings.writeInPlace("old");
    const QString other = settings.folderPath() + u"/other"_s;
    ASSERT_TRUE(QFile::link(other, beside(u".next"_s)));
    ReplacedFile file(settings.path());
    EXPECT_TRUE(file.replace("new"));
    EXPECT_FALSE(QFile::exists(other));
    EXPECT_EQ(settings.text(), "new");
}

} // namespace
} // namespace orvelle
