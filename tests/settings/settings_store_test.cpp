#include "settings/shared_file.h"
#include "settings/store_timers.h"
#include "support/temporary_settings.h"

#include <QDir>
#include <QLocale>
#include <QMetaProperty>
#include <QSignalSpy>

#include <clocale>
#include <limits>
#include <memory>
#include <vector>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

struct SettingRow {
    const char* key;
    QVariant defaultValue; ///< an enumeration's case by its name
    QVariant otherValue;
    QByteArray otherText; ///< how the other value stands in the file
};

/// A value that is not the setting's default.
template <class Value>
Value otherThan(const Value& value) {
    if constexpr (std::is_same_v<Value, bool>)
        return !value;
    else if constexpr (std::is_same_v<Value, double>)
        return 10.0;
    else if constexpr (std::is_same_v<Value, QString>)
        return u"#FF8000"_s;
    else
        return static_cast<Value>(static_cast<int>(value) + 1);
}

template <class Value>
SettingRow settingRow(const char* key, const Value& defaultValue) {
    const QVariant other = storedForm(otherThan(defaultValue));
    return {key, storedForm(defaultValue), other, other.toString().toUtf8()};
}

const QList<SettingRow>& settingTable() {
    using CPUDisplayMode = SettingsStore::CPUDisplayMode;
    using ColorTheme = SettingsStore::ColorTheme;
#define SETTING(Type, name, setName, defaultValue) settingRow<Type>(#name, defaultValue),
    static const QList<SettingRow> rows{ORVELLE_SETTINGS};
#undef SETTING
    return rows;
}

QMetaProperty propertyOf(const SettingsStore& store, const SettingRow& row) {
    const QMetaObject* meta = store.metaObject();
    return meta->property(meta->indexOfProperty(row.key));
}

/// Enumerations read as the names of their cases, everything else as it is.
QVariant valueOf(const SettingsStore& store, const SettingRow& row) {
    const QVariant value = propertyOf(store, row).read(&store);
    return propertyOf(store, row).isEnumType() ? QVariant(value.toString()) : value;
}

bool setValue(SettingsStore& store, const SettingRow& row, QVariant value) {
    const QMetaProperty property = propertyOf(store, row);
    return value.convert(property.metaType()) && property.write(&store, value);
}

class SettingsStoreTest : public ::testing::Test {
protected:
    TemporarySettings settings;
};

TEST_F(SettingsStoreTest, AFreshStoreHasEachSettingOfTheListAtItsDefault) {
    const SettingsStore store(settings.path());
    for (const SettingRow& row : settingTable()) {
        ASSERT_GE(store.metaObject()->indexOfProperty(row.key), 0) << row.key;
        EXPECT_TRUE(propertyOf(store, row).hasNotifySignal()) << row.key;
        EXPECT_EQ(valueOf(store, row), row.defaultValue) << row.key;
    }
    const int own = store.metaObject()->propertyCount() - QObject::staticMetaObject.propertyCount();
    EXPECT_EQ(own, settingTable().size() + 1) << "the list and saveError";
    EXPECT_TRUE(store.saveError().isEmpty());
}

TEST_F(SettingsStoreTest, DefaultsAreNotWritten) {
    const SettingsStore store(settings.path());
    EXPECT_FALSE(QFile::exists(settings.path()));
}

TEST_F(SettingsStoreTest, EachPropertyIsStoredUnderItsNameAndComesBack) {
    for (const SettingRow& row : settingTable()) {
        {
            SettingsStore store(settings.path());
            ASSERT_TRUE(setValue(store, row, row.otherValue)) << row.key;
            EXPECT_EQ(valueOf(store, row), row.otherValue) << row.key;
            EXPECT_TRUE(store.saveError().isEmpty());
        }
        EXPECT_TRUE(settings.text().contains('\n' + QByteArray(row.key) + '=' + row.otherText + '\n'))
            << row.key;
    }
    const SettingsStore store(settings.path());
    for (const SettingRow& row : settingTable())
        EXPECT_EQ(valueOf(store, row), row.otherValue) << row.key;
    EXPECT_EQ(settings.text().count('\n'), settingTable().size() + 1) << settings.text().toStdString();
}

TEST_F(SettingsStoreTest, SettingOnePropertyAnnouncesItOnceAndNoOther) {
    SettingsStore store(settings.path());
    for (const SettingRow& row : settingTable()) {
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        for (const SettingRow& each : settingTable())
            spies.push_back(std::make_unique<QSignalSpy>(&store, propertyOf(store, each).notifySignal()));
        QSignalSpy changed(&store, &SettingsStore::changed);
        ASSERT_TRUE(setValue(store, row, row.otherValue));
        for (qsizetype index = 0; index < settingTable().size(); ++index) {
            const bool isSet = settingTable().at(index).key == row.key;
            EXPECT_EQ(spies[static_cast<std::size_t>(index)]->count(), isSet ? 1 : 0)
                << row.key << " announced " << settingTable().at(index).key;
        }
        EXPECT_EQ(changed.count(), 1) << row.key;
    }
}

TEST_F(SettingsStoreTest, ObserversSeeTheNewValueStoredAlready) {
    SettingsStore store(settings.path());
    bool isSeen = false;
    QObject::connect(&store, &SettingsStore::useFahrenheitChanged, &store, [&] {
        isSeen = store.useFahrenheit() && settings.text().contains("useFahrenheit=true");
    });
    store.setUseFahrenheit(true);
    EXPECT_TRUE(isSeen);
}

TEST_F(SettingsStoreTest, TheGeneralSignalFollowsThePropertysOwn) {
    SettingsStore store(settings.path());
    QStringList order;
    QObject::connect(&store, &SettingsStore::changed, &store, [&] { order.append(u"changed"_s); });
    QObject::connect(&store, &SettingsStore::showDiskChanged, &store, [&] { order.append(u"showDisk"_s); });
    store.setShowDisk(true);
    EXPECT_EQ(order, (QStringList{u"showDisk"_s, u"changed"_s}));
}

TEST_F(SettingsStoreTest, SettingTheStoredValueAgainDoesNothing) {
    SettingsStore store(settings.path());
    store.setShowDisk(true);
    ASSERT_TRUE(QFile::remove(settings.path()));
    QSignalSpy changed(&store, &SettingsStore::changed);
    store.setShowDisk(true);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_FALSE(QFile::exists(settings.path()));
}

TEST_F(SettingsStoreTest, SettingADefaultStoresItAndTellsNobody) {
    SettingsStore store(settings.path());
    QSignalSpy changed(&store, &SettingsStore::changed);
    QSignalSpy intervals(&store, &SettingsStore::updateIntervalChanged);
    store.setUpdateInterval(3.0);
    store.setShowCPU(true);
    EXPECT_EQ(settings.text(), "[General]\nupdateInterval=3\nshowCPU=true\n");
    EXPECT_EQ(intervals.count(), 0);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(SettingsStoreTest, ValuesThatAreNotLegalAreNotTaken) {
    SettingsStore store(settings.path());
    QSignalSpy changed(&store, &SettingsStore::changed);
    for (const double seconds : {0.0, -1.0, 86401.0, std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()})
        store.setUpdateInterval(seconds);
    store.setGlowIntensity(static_cast<GlowIntensity>(4));
    store.setSelectedThemeId(QString(maximumTextLength + 1, u'x'));
    EXPECT_EQ(store.updateInterval(), 3.0);
    EXPECT_EQ(store.glowIntensity(), GlowIntensity::medium);
    EXPECT_EQ(store.selectedThemeId(), u"midnight"_s);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_FALSE(QFile::exists(settings.path()));
}

TEST_F(SettingsStoreTest, ThemeWrittenByHandIsReadAndAnUnknownOneIsTheDefault) {
    settings.writeInPlace("[General]\ncolorTheme=neon\n");
    EXPECT_EQ(SettingsStore(settings.path()).colorTheme(), SettingsStore::ColorTheme::neon);
    settings.writeInPlace("[General]\ncolorTheme=sepia\n");
    EXPECT_EQ(SettingsStore(settings.path()).colorTheme(), SettingsStore::ColorTheme::standard);
}

TEST_F(SettingsStoreTest, EveryCaseOfTheNestedEnumerationsComesBack) {
    using Mode = SettingsStore::CPUDisplayMode;
    using Theme = SettingsStore::ColorTheme;
    for (const Mode mode : {Mode::percentage, Mode::barChart}) {
        SettingsStore(settings.path()).setCpuDisplayMode(mode);
        EXPECT_EQ(SettingsStore(settings.path()).cpuDisplayMode(), mode);
    }
    for (const Theme theme : {Theme::neon, Theme::monochrome, Theme::standard}) {
        SettingsStore(settings.path()).setColorTheme(theme);
        EXPECT_EQ(SettingsStore(settings.path()).colorTheme(), theme);
    }
    EXPECT_TRUE(settings.text().contains("cpuDisplayMode=barChart\n"));
    EXPECT_TRUE(settings.text().contains("colorTheme=standard\n"));
}

TEST_F(SettingsStoreTest, OtherKeysSurviveEveryWrite) {
    const QByteArray others =
        "# mine\n[General]\nsomethingElse=@Variant(\\0\\0\\0\\x7f)\nlist=1, 2\n\n[Window]\nshowCPU=7\n";
    settings.writeInPlace(others);
    SettingsStore store(settings.path());
    for (const SettingRow& row : settingTable())
        ASSERT_TRUE(setValue(store, row, row.otherValue)) << row.key;
    const QByteArray text = settings.text();
    for (const QByteArray& line : others.split('\n'))
        EXPECT_TRUE(text.contains(line)) << line.toStdString();
    EXPECT_TRUE(text.endsWith("\n\n[Window]\nshowCPU=7\n")) << text.toStdString();
}

TEST_F(SettingsStoreTest, TwoStoresOnOneFileKeepEachOthersValues) {
    SettingsStore first(settings.path());
    SettingsStore second(settings.path());
    first.setShowDisk(true);
    second.setShowSensors(true);
    const SettingsStore third(settings.path());
    EXPECT_TRUE(third.showDisk());
    EXPECT_TRUE(third.showSensors());
}

TEST_F(SettingsStoreTest, NumbersDoNotFollowTheLocale) {
    const QByteArray before = std::setlocale(LC_ALL, nullptr);
    const QLocale localeBefore;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const bool hasGerman = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    SettingsStore(settings.path()).setUpdateInterval(2.5);
    EXPECT_TRUE(settings.text().contains("updateInterval=2.5\n"));
    EXPECT_EQ(SettingsStore(settings.path()).updateInterval(), 2.5);
    std::setlocale(LC_ALL, before.constData());
    QLocale::setDefault(localeBefore);
    if (!hasGerman)
        GTEST_SKIP() << "de_DE.UTF-8 is not installed: checked under Qt's German locale only";
}

TEST_F(SettingsStoreTest, AFailedSaveKeepsTheValueAndIsSavedWithTheNextThatSucceeds) {
    ASSERT_TRUE(QDir().mkpath(settings.path())); // a folder stands in the file's place
    SettingsStore store(settings.path());
    QSignalSpy saveErrors(&store, &SettingsStore::saveErrorChanged);
    QSignalSpy showDisk(&store, &SettingsStore::showDiskChanged);
    store.setShowDisk(true);
    EXPECT_TRUE(store.showDisk());
    EXPECT_EQ(showDisk.count(), 1);
    EXPECT_EQ(store.saveError(), settings.path() + u" is a folder"_s);
    store.setUseFahrenheit(true);
    EXPECT_EQ(saveErrors.count(), 1) << "it had failed already";

    ASSERT_TRUE(QDir().rmdir(settings.path()));
    store.setShowSensors(true);
    EXPECT_TRUE(store.saveError().isEmpty());
    EXPECT_EQ(saveErrors.count(), 2);
    EXPECT_EQ(settings.text(), "[General]\nshowDisk=true\nshowSensors=true\nuseFahrenheit=true\n");
}

class LockedSettingsTest : public SettingsStoreTest {
protected:
    LockedSettingsTest() { EXPECT_TRUE(lock); }
    [[nodiscard]] bool isStored() const { return settings.text().contains("showDisk=true\n"); }

    std::optional<FileLock> lock = FileLock::take(settings.path() + u".lock"_s);
    SettingsStore store{settings.path()};
};

TEST_F(LockedSettingsTest, HoldNobodyUpAndAreSavedSoonAfterwards) {
    store.setShowDisk(true);
    EXPECT_TRUE(store.showDisk());
    EXPECT_FALSE(isStored());
    EXPECT_TRUE(store.saveError().isEmpty()) << "other programs lock for a moment";
    lock.reset();
    endNow(retryDelay(store));
    EXPECT_TRUE(isStored());
    EXPECT_TRUE(store.saveError().isEmpty());
    EXPECT_FALSE(retryDelay(store).isActive());
}

TEST_F(LockedSettingsTest, AreToldWhenTheLockLasts) {
    store.setShowDisk(true);
    for (int tries = 0; tries < 40; ++tries) {
        EXPECT_TRUE(store.saveError().isEmpty());
        endNow(retryDelay(store));
    }
    EXPECT_EQ(store.saveError(), u"another program keeps %1 locked"_s.arg(settings.path()));
    lock.reset();
    endNow(retryDelay(store));
    EXPECT_TRUE(store.saveError().isEmpty());
    EXPECT_TRUE(isStored());
}

TEST_F(LockedSettingsTest, GetTheNewestValue) {
    store.setShowDisk(true);
    store.setShowSensors(true);
    store.setShowDisk(false);
    lock.reset();
    endNow(retryDelay(store));
    EXPECT_EQ(settings.text(), "[General]\nshowDisk=false\nshowSensors=true\n");
}

TEST_F(LockedSettingsTest, AreSavedInTheEnd) {
    auto ending = std::make_unique<SettingsStore>(settings.path());
    ending->setShowDisk(true);
    lock.reset();
    ending.reset();
    EXPECT_TRUE(isStored());
}

} // namespace
} // namespace orvelle
