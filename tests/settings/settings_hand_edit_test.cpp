#include "settings/store_timers.h"
#include "support/temporary_settings.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QSignalSpy>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

class SettingsHandEditTest : public ::testing::Test {
protected:
    TemporarySettings settings;
};

/// The settings in a folder of their own, which may go.
class SettingsFolderTest : public ::testing::Test {
protected:
    /// Makes the folder, with a file in it.
    void makeFolder(const QByteArray& text) const {
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(text), text.size());
    }

    TemporarySettings settings;
    const QString config = settings.folderPath() + u"/config"_s;
    const QString folder = config + u"/orvelle"_s;
    const QString path = folder + u"/orvelle.conf"_s;
};

TEST_F(SettingsHandEditTest, PublishesAWriteInPlace) {
    settings.writeInPlace("[General]\nshowCPU=true\n");
    SettingsStore store(settings.path());
    QSignalSpy showCPU(&store, &SettingsStore::showCPUChanged);
    QSignalSpy showDisk(&store, &SettingsStore::showDiskChanged);
    QSignalSpy changed(&store, &SettingsStore::changed);
    settings.writeInPlace("[General]\nshowCPU=false\nshowMemory=true\n");
    ASSERT_TRUE(waitUntil([&] { return !store.showCPU(); }));
    EXPECT_EQ(showCPU.count(), 1);
    EXPECT_EQ(showDisk.count(), 0);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(SettingsHandEditTest, PublishesEveryReplacementOfTheFile) {
    settings.writeInPlace("[General]\n");
    SettingsStore store(settings.path());
    for (const double seconds : {5.0, 10.0, 20.0}) {
        settings.replaceByRename("[General]\nupdateInterval=" + QByteArray::number(seconds) + '\n');
        awaitReading(store);
        ASSERT_EQ(store.updateInterval(), seconds);
    }
    settings.writeInPlace("[General]\nupdateInterval=30\n");
    awaitReading(store);
    EXPECT_EQ(store.updateInterval(), 30);
}

TEST_F(SettingsHandEditTest, ReadsAFileAfterTheLastOfSeveralWrites) {
    settings.writeInPlace("[General]\nshowDisk=true\n");
    SettingsStore store(settings.path());
    QSignalSpy showDisk(&store, &SettingsStore::showDiskChanged);
    settings.writeInPlace("");
    ASSERT_TRUE(waitUntil([&] { return reloadDelay(store).isActive(); }));
    settings.writeInPlace("[General]\nshowDisk=true\nshowSensors=true\n");
    awaitReading(store);
    EXPECT_TRUE(store.showSensors());
    EXPECT_EQ(showDisk.count(), 0) << "the empty file was not read";
}

TEST_F(SettingsHandEditTest, PublishesAWriteInPlaceWhileTheReplacedFileIsStillOpen) {
    settings.writeInPlace("[General]\n");
    QFile held(settings.path());
    ASSERT_TRUE(held.open(QIODevice::ReadOnly));
    SettingsStore store(settings.path());
    settings.replaceByRename("[General]\nshowDisk=true\n");
    awaitReading(store);
    ASSERT_TRUE(store.showDisk());
    settings.writeInPlace("[General]\nshowSensors=true\n");
    awaitReading(store);
    EXPECT_TRUE(store.showSensors());
}

TEST_F(SettingsHandEditTest, PublishesANewFileAndTheDefaultsWhenItVanishes) {
    SettingsStore store(settings.path());
    settings.writeInPlace("[General]\nglowIntensity=intense\n");
    awaitReading(store);
    ASSERT_EQ(store.glowIntensity(), GlowIntensity::intense);
    ASSERT_TRUE(QFile::remove(settings.path()));
    awaitReading(store);
    EXPECT_EQ(store.glowIntensity(), GlowIntensity::medium);
}

TEST_F(SettingsHandEditTest, PublishesANewFileInANewFolder) {
    const QString path = settings.folderPath() + u"/config/orvelle/orvelle.conf"_s;
    SettingsStore store(path);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("showDisk=true\n");
    file.close();
    awaitReading(store);
    EXPECT_TRUE(store.showDisk());
}

TEST_F(SettingsFolderTest, FollowsAnotherFolderOfTheSameName) {
    makeFolder("showDisk=true\n");
    SettingsStore store(path);
    ASSERT_TRUE(QDir().rename(folder, folder + u".old"_s));
    awaitReading(store);
    EXPECT_FALSE(store.showDisk());
    makeFolder("showDisk=true\nshowSensors=true\n");
    awaitReading(store);
    EXPECT_TRUE(store.showSensors());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("showDisk=false\n");
    file.close();
    awaitReading(store);
    EXPECT_FALSE(store.showDisk());
}

TEST_F(SettingsFolderTest, FollowsAFolderThatComesBack) {
    makeFolder("showDisk=true\n");
    SettingsStore store(path);
    ASSERT_TRUE(QDir().rename(folder, folder + u".old"_s));
    awaitReading(store);
    ASSERT_TRUE(QDir().rename(folder + u".old"_s, folder));
    awaitReading(store);
    EXPECT_TRUE(store.showDisk());
}

TEST_F(SettingsFolderTest, FollowsAFolderThatIsMadeAgainWithAllAboveIt) {
    makeFolder("showDisk=true\n");
    SettingsStore store(path);
    ASSERT_TRUE(QDir(config).removeRecursively());
    awaitReading(store);
    EXPECT_FALSE(store.showDisk());
    makeFolder("showSensors=true\n");
    EXPECT_TRUE(waitUntil([&] { return store.showSensors(); }));
}

TEST_F(SettingsFolderTest, KeepsItsValuesWhileAFileStandsInPlaceOfTheFolder) {
    makeFolder("showDisk=true\n");
    SettingsStore store(path);
    QFile file(config + u"/file"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(QDir().rename(folder, folder + u".old"_s));
    ASSERT_TRUE(file.rename(folder));
    awaitReading(store);
    EXPECT_TRUE(store.showDisk());
    store.setShowSensors(true);
    EXPECT_EQ(store.saveError(), folder + u" is not a folder"_s);
    ASSERT_TRUE(QFile::remove(folder));
    ASSERT_TRUE(QDir().rename(folder + u".old"_s, folder));
    awaitReading(store);
    EXPECT_TRUE(store.showDisk());
}

TEST_F(SettingsFolderTest, DoesNotReadAgainWhenSomethingElseChangesBesideTheFolder) {
    makeFolder("");
    SettingsStore store(path);
    QFileSystemWatcher witness({config});
    QSignalSpy changes(&witness, &QFileSystemWatcher::directoryChanged);
    ASSERT_TRUE(QDir().mkpath(config + u"/other"_s));
    ASSERT_TRUE(waitUntil([&] { return changes.count() > 0; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(reloadDelay(store).isActive());
}

TEST_F(SettingsHandEditTest, PublishesTheDefaultForAnIllegalValue) {
    settings.writeInPlace("[General]\nupdateInterval=10\n");
    SettingsStore store(settings.path());
    settings.replaceByRename("[General]\nupdateInterval=-1\n");
    awaitReading(store);
    EXPECT_EQ(store.updateInterval(), 3);
    EXPECT_EQ(settings.text(), "[General]\nupdateInterval=-1\n") << "the file is left as it was written";
}

TEST_F(SettingsHandEditTest, AnnouncesItsOwnWritesOnce) {
    SettingsStore store(settings.path());
    QSignalSpy changed(&store, &SettingsStore::changed);
    store.setShowDisk(true);
    store.setUpdateInterval(2.5);
    store.setGraphLineStyle(GraphLineStyle::dotted);
    store.setCustomCPUColorHex(u"@odd, \"text\"\n"_s);
    awaitReading(store);
    EXPECT_EQ(changed.count(), 4);
    EXPECT_EQ(store.customCPUColorHex(), u"@odd, \"text\"\n"_s);
}

TEST_F(SettingsHandEditTest, PublishesAnotherStoresWriteAfterItsOwn) {
    SettingsStore store(settings.path());
    SettingsStore other(settings.path());
    store.setShowDisk(true);
    other.setShowSensors(true);
    awaitReading(store);
    EXPECT_TRUE(store.showSensors());
    awaitReading(other);
    EXPECT_TRUE(other.showDisk());
}

TEST_F(SettingsHandEditTest, KeepsItsValuesWhenTheFileCannotBeRead) {
    settings.writeInPlace("[General]\nshowDisk=true\n");
    SettingsStore store(settings.path());
    QSignalSpy changed(&store, &SettingsStore::changed);
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    awaitReading(store);
    EXPECT_TRUE(store.showDisk());
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(SettingsHandEditTest, KeepsAnUnsavedValueWhenAnotherOneIsEdited) {
    settings.writeInPlace("[General]\nshowDisk=false\n");
    SettingsStore store(settings.path());
    ASSERT_TRUE(QFile::remove(settings.path()));
    ASSERT_TRUE(QDir().mkpath(settings.path()));
    store.setShowDisk(true);
    ASSERT_FALSE(store.saveError().isEmpty());

    ASSERT_TRUE(QDir().rmdir(settings.path()));
    settings.writeInPlace("[General]\nshowDisk=false\nshowSensors=true\n");
    awaitReading(store);
    EXPECT_TRUE(store.showSensors());
    EXPECT_TRUE(store.showDisk());
    EXPECT_FALSE(store.saveError().isEmpty());

    settings.writeInPlace("[General]\nshowDisk=no thanks\nshowSensors=true\n");
    awaitReading(store);
    EXPECT_FALSE(store.showDisk()) << "the later edit wins";
    EXPECT_TRUE(store.saveError().isEmpty());
}

TEST_F(SettingsHandEditTest, UpdatesEveryPropertyBeforeAnnouncingOne) {
    settings.writeInPlace("[General]\n");
    SettingsStore store(settings.path());
    bool isConsistent = false;
    QObject::connect(&store, &SettingsStore::useCustomCPUColorChanged, &store,
                     [&] { isConsistent = store.customCPUColorHex() == u"#102030"_s; });
    settings.replaceByRename("[General]\nuseCustomCPUColor=true\ncustomCPUColorHex=#102030\n");
    awaitReading(store);
    ASSERT_TRUE(store.useCustomCPUColor());
    EXPECT_TRUE(isConsistent);
}

} // namespace
} // namespace orvelle
