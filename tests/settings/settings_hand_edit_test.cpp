#include "settings/settings_store.h"
#include "settings/temporary_settings.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

constexpr int longestWait = 5000; // milliseconds, on a busy machine
constexpr int quietTime = 400;    // milliseconds in which the store would have read the file

class SettingsHandEditTest : public ::testing::Test {
protected:
    TemporarySettings settings;
};

TEST_F(SettingsHandEditTest, AWriteInPlaceIsPublished) {
    settings.writeInPlace("[General]\nshowCPU=true\n");
    SettingsStore store(settings.path());
    QSignalSpy showCPU(&store, &SettingsStore::showCPUChanged);
    QSignalSpy showDisk(&store, &SettingsStore::showDiskChanged);
    QSignalSpy changed(&store, &SettingsStore::changed);
    settings.writeInPlace("[General]\nshowCPU=false\nshowMemory=true\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !store.showCPU(); }, longestWait));
    EXPECT_EQ(showCPU.count(), 1);
    EXPECT_EQ(showDisk.count(), 0);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(SettingsHandEditTest, ReplacingTheFileIsPublishedAgainAndAgain) {
    settings.writeInPlace("[General]\n");
    SettingsStore store(settings.path());
    for (const double seconds : {5.0, 10.0, 20.0}) {
        settings.replaceByRename("[General]\nupdateInterval=" + QByteArray::number(seconds) + '\n');
        ASSERT_TRUE(QTest::qWaitFor([&] { return store.updateInterval() == seconds; }, longestWait))
            << seconds;
    }
    settings.writeInPlace("[General]\nupdateInterval=30\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return store.updateInterval() == 30.0; }, longestWait));
}

TEST_F(SettingsHandEditTest, AWriteInPlaceIsPublishedWhileSomeoneStillHoldsTheReplacedFile) {
    settings.writeInPlace("[General]\n");
    QFile held(settings.path());
    ASSERT_TRUE(held.open(QIODevice::ReadOnly));
    SettingsStore store(settings.path());
    settings.replaceByRename("[General]\nshowDisk=true\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return store.showDisk(); }, longestWait));
    settings.writeInPlace("[General]\nshowSensors=true\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return store.showSensors(); }, longestWait));
}

TEST_F(SettingsHandEditTest, AFileThatAppearsIsPublishedAndOneThatVanishesGivesTheDefaults) {
    SettingsStore store(settings.path());
    settings.writeInPlace("[General]\nglowIntensity=intense\n");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return store.glowIntensity() == GlowIntensity::intense; }, longestWait));
    ASSERT_TRUE(QFile::remove(settings.path()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return store.glowIntensity() == GlowIntensity::medium; }, longestWait));
}

TEST_F(SettingsHandEditTest, AFileThatAppearsInAMissingFolderIsPublished) {
    const QString path = settings.folderPath() + u"/config/orvelle/orvelle.conf"_s;
    SettingsStore store(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("showDisk=true\n");
    file.close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return store.showDisk(); }, longestWait));
}

TEST_F(SettingsHandEditTest, AValueThatIsNotLegalIsPublishedAsTheDefault) {
    settings.writeInPlace("[General]\nupdateInterval=10\n");
    SettingsStore store(settings.path());
    settings.replaceByRename("[General]\nupdateInterval=-1\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return store.updateInterval() == 3.0; }, longestWait));
    EXPECT_EQ(settings.text(), "[General]\nupdateInterval=-1\n") << "the file is left as it was written";
}

TEST_F(SettingsHandEditTest, OwnWritesAreAnnouncedOnce) {
    SettingsStore store(settings.path());
    QSignalSpy changed(&store, &SettingsStore::changed);
    store.setShowDisk(true);
    store.setUpdateInterval(2.5);
    store.setGraphLineStyle(GraphLineStyle::dotted);
    store.setCustomCPUColorHex(u"@odd, \"text\"\n"_s);
    QTest::qWait(quietTime);
    EXPECT_EQ(changed.count(), 4);
    EXPECT_EQ(store.customCPUColorHex(), u"@odd, \"text\"\n"_s);
}

TEST_F(SettingsHandEditTest, AWriteByAnotherStoreIsPublishedAfterAnOwnOne) {
    SettingsStore store(settings.path());
    SettingsStore other(settings.path());
    store.setShowDisk(true);
    other.setShowSensors(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return store.showSensors() && other.showDisk(); }, longestWait));
}

TEST_F(SettingsHandEditTest, AFileThatCannotBeReadLeavesTheValues) {
    settings.writeInPlace("[General]\nshowDisk=true\n");
    SettingsStore store(settings.path());
    QSignalSpy changed(&store, &SettingsStore::changed);
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    QTest::qWait(quietTime);
    EXPECT_TRUE(store.showDisk());
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(SettingsHandEditTest, AnEditElsewhereLeavesAValueThatCouldNotBeSaved) {
    settings.writeInPlace("[General]\nshowDisk=false\n");
    SettingsStore store(settings.path());
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    store.setShowDisk(true);
    ASSERT_FALSE(store.saveError().isEmpty());

    ASSERT_TRUE(QDir().rmdir(settings.path()));
    settings.writeInPlace("[General]\nshowDisk=false\nshowSensors=true\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return store.showSensors(); }, longestWait));
    EXPECT_TRUE(store.showDisk());
    EXPECT_FALSE(store.saveError().isEmpty());

    settings.writeInPlace("[General]\nshowDisk=no thanks\nshowSensors=true\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !store.showDisk(); }, longestWait)) << "the later edit wins";
    EXPECT_TRUE(store.saveError().isEmpty());
}

TEST_F(SettingsHandEditTest, ObserversOfOnePropertySeeTheOthersUpToDate) {
    settings.writeInPlace("[General]\n");
    SettingsStore store(settings.path());
    bool isConsistent = false;
    QObject::connect(&store, &SettingsStore::useCustomCPUColorChanged, &store,
                     [&] { isConsistent = store.customCPUColorHex() == u"#102030"_s; });
    settings.replaceByRename("[General]\nuseCustomCPUColor=true\ncustomCPUColorHex=#102030\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return store.useCustomCPUColor(); }, longestWait));
    EXPECT_TRUE(isConsistent);
}

} // namespace
} // namespace orvelle
