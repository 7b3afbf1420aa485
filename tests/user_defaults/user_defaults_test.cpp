#include "settings/store_timers.h"
#include "settings/user_settings.h"
#include "user_defaults/simulated/database.h"

#include <QMetaProperty>
#include <QSignalSpy>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;
using namespace simulated;
using Kind = Foreign::Kind;

const std::string domain = ORVELLE_BUNDLE_IDENTIFIER;

/// A process on a fresh system that runs in the program's bundle. At its end everything must have been given
/// back.
class UserDefaultsTest : public ::testing::Test {
protected:
    UserDefaultsTest() {
        startAfresh();
        database().bundleIdentifier = domain;
    }
    void TearDown() override {
        endProcess();
        EXPECT_TRUE(database().liveObjects.empty()) << database().liveObjects.size() << " objects live on";
        EXPECT_EQ(database().complaints, std::vector<std::string>{});
    }

    static std::unique_ptr<SettingsStore> open() {
        return std::make_unique<SettingsStore>(openUserSettings());
    }
    static Domain& stored() { return database().domains[domain]; }
    /// Another process stores or removes a value, and the store reads what the system tells of it.
    static void storeAndRead(const SettingsStore& store, const std::string& key,
                             const std::optional<Value>& value) {
        storeElsewhere(domain, key, value);
        runMainThread();
        endNow(reloadDelay(store));
    }
};

TEST_F(UserDefaultsTest, AreThoseOfTheBundle) {
    open()->setShowDisk(true);
    EXPECT_EQ(stored(), (Domain{{"showDisk", true}}));
    EXPECT_EQ(database().domains.size(), 2u) << "its own and the global one, which is empty";
    EXPECT_TRUE(open()->showDisk());
}

TEST_F(UserDefaultsTest, OfAProgramOutsideOfTheBundleAreThoseOfTheBundleToo) {
    for (const std::optional<std::string>& own :
         {std::optional<std::string>(), std::optional<std::string>("somebody.Else")}) {
        startAfresh();
        database().bundleIdentifier = own;
        open()->setShowDisk(true);
        EXPECT_EQ(stored(), (Domain{{"showDisk", true}}));
        EXPECT_TRUE(open()->showDisk());
    }
}

TEST_F(UserDefaultsTest, KeepEachSettingUnderItsNameAndInItsType) {
    const std::unique_ptr<SettingsStore> store = open();
    store->setShowCPU(false);
    store->setUpdateInterval(2.5);
    store->setColorTheme(SettingsStore::ColorTheme::neon);
    store->setGlowIntensity(GlowIntensity::intense);
    store->setCustomCPUColorHex(u"#102030"_s);
    EXPECT_EQ(stored(), (Domain{{"showCPU", false},
                                {"updateInterval", 2.5},
                                {"colorTheme", u"neon"},
                                {"glowIntensity", u"intense"},
                                {"customCPUColorHex", u"#102030"}}));
    const std::unique_ptr<SettingsStore> next = open();
    for (int index = 0; index < store->metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = store->metaObject()->property(index);
        EXPECT_EQ(property.read(next.get()), property.read(store.get())) << property.name();
    }
}

TEST_F(UserDefaultsTest, HoldNothingBeforeTheFirstChange) {
    EXPECT_TRUE(open()->showCPU());
    EXPECT_TRUE(stored().empty());
    EXPECT_EQ(database().synchronizations, 0u);
}

TEST_F(UserDefaultsTest, AreReadInWhateverTypeAPersonStoresThem) {
    stored() = {{"showCPU", 0.0},           {"showMemory", u"NO"}, {"showDisk", u"true"},
                {"updateInterval", u"7.5"}, {"showSensors", 1.0},  {"colorTheme", u"neon"}};
    const std::unique_ptr<SettingsStore> store = open();
    EXPECT_FALSE(store->showCPU());
    EXPECT_FALSE(store->showMemory());
    EXPECT_TRUE(store->showDisk());
    EXPECT_TRUE(store->showSensors());
    EXPECT_EQ(store->updateInterval(), 7.5);
    EXPECT_EQ(store->colorTheme(), SettingsStore::ColorTheme::neon);
}

TEST_F(UserDefaultsTest, ReadAsTheDefaultWhereNoSettingHasSuchAValue) {
    const Domain odd{{"showCPU", Foreign{Kind::date, "2001-01-01"}},
                     {"updateInterval", true},
                     {"showMemory", 2.0},
                     {"colorTheme", u"sepia"},
                     {"selectedThemeId", Foreign{Kind::data, std::string(50'000'000, 'x')}},
                     {"glowIntensity", 3.0},
                     {"graphLineStyle", Foreign{Kind::array, std::string(1'000'000, 'x')}},
                     {"barChartStyle", Foreign{Kind::dictionary, "neon"}},
                     {"customCPUColorHex", std::u16string(1'000'000, u'#')}};
    const std::unique_ptr<SettingsStore> usual = open();
    stored() = odd;
    const std::unique_ptr<SettingsStore> store = open();
    for (int index = 0; index < store->metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = store->metaObject()->property(index);
        EXPECT_EQ(property.read(store.get()), property.read(usual.get())) << property.name();
    }
    EXPECT_EQ(stored(), odd);
}

TEST_F(UserDefaultsTest, OfOtherNamesAndTypesSurviveEveryWrite) {
    const Domain others{{"showCPU", Foreign{Kind::array, std::string(1'000'000, 'x')}},
                        {"NSWindow Frame OrvelleSettings", u"1 2 3 4"},
                        {"lastSeen", Foreign{Kind::date, "2001-01-01"}},
                        {"bookmark", Foreign{Kind::data, "\x01\x02"}},
                        {"showdisk", 1.0}};
    stored() = others;
    const std::unique_ptr<SettingsStore> store = open();
    store->setShowDisk(true);
    store->setUpdateInterval(10);
    Domain expected = others;
    expected["showDisk"] = true;
    expected["updateInterval"] = 10.0;
    EXPECT_EQ(stored(), expected);
    store->setShowCPU(false);
    expected["showCPU"] = false;
    EXPECT_EQ(stored(), expected) << "the user's choice replaces what was no setting";
}

TEST_F(UserDefaultsTest, KeepTextsOfAnyCharacters) {
    for (const QString& text : {u"a\0b"_s, u"\n\t\"\\"_s, u"\U0001F600"_s, QString(QChar(0xD800)), u""_s,
                                QString(maximumTextLength, u'ü')}) {
        open()->setSelectedThemeId(text);
        EXPECT_EQ(open()->selectedThemeId(), text);
    }
}

TEST_F(UserDefaultsTest, OfAnotherProcessAreHeardOnTheMainThread) {
    const std::unique_ptr<SettingsStore> store = open();
    QSignalSpy changed(store.get(), &SettingsStore::changed);
    storeElsewhere(domain, "showDisk", true);
    storeElsewhere(domain, "updateInterval", 5.0);
    EXPECT_FALSE(reloadDelay(*store).isActive()) << "the change was heard on another thread";
    runMainThread();
    endNow(reloadDelay(*store));
    EXPECT_TRUE(store->showDisk());
    EXPECT_EQ(store->updateInterval(), 5);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(UserDefaultsTest, OutsideOfTheBundleHearOfOtherProcessesToo) {
    database().bundleIdentifier.reset();
    const std::unique_ptr<SettingsStore> store = open();
    storeAndRead(*store, "showDisk", true);
    EXPECT_TRUE(store->showDisk());
}

TEST_F(UserDefaultsTest, ThatAreRemovedOrSpoiledElsewhereReadAsTheDefault) {
    stored() = {{"updateInterval", 5.0}, {"showCPU", false}};
    const std::unique_ptr<SettingsStore> store = open();
    storeAndRead(*store, "updateInterval", std::nullopt);
    EXPECT_EQ(store->updateInterval(), 3);
    storeAndRead(*store, "showCPU", Foreign{Kind::array, "NO"});
    EXPECT_TRUE(store->showCPU());
    EXPECT_EQ(stored(), (Domain{{"showCPU", Foreign{Kind::array, "NO"}}})) << "it is left as it was stored";
}

TEST_F(UserDefaultsTest, OfOtherProgramsAndNamesWakeNobody) {
    const std::unique_ptr<SettingsStore> store = open();
    storeElsewhere("com.example.Other", "showDisk", true);
    storeElsewhere(domain, "NSWindow Frame OrvelleSettings", std::u16string(u"1 2 3 4"));
    storeElsewhere(domain, "showCPU", std::nullopt);
    EXPECT_EQ(waitingOnMainThread(), 0u);
}

TEST_F(UserDefaultsTest, WrittenByTheProgramAreAnnouncedOnce) {
    const std::unique_ptr<SettingsStore> store = open();
    QSignalSpy changed(store.get(), &SettingsStore::changed);
    store->setShowDisk(true);
    store->setUpdateInterval(2.5);
    store->setCustomCPUColorHex(u"@odd, \"text\"\n"_s);
    runMainThread();
    endNow(reloadDelay(*store));
    EXPECT_EQ(changed.count(), 3);
    EXPECT_EQ(database().synchronizations, 3u);
}

TEST_F(UserDefaultsTest, ThatCannotBeWrittenStayAsTheyWereUntilTheyCan) {
    stored() = {{"showDisk", Foreign{Kind::date, "2001-01-01"}}};
    const Domain before = stored();
    const std::unique_ptr<SettingsStore> store = open();
    database().canSynchronize = false;
    store->setShowDisk(true);
    store->setUpdateInterval(5);
    EXPECT_TRUE(store->showDisk());
    EXPECT_EQ(store->saveError(), u"the user defaults of "_s + QLatin1StringView(ORVELLE_BUNDLE_IDENTIFIER) +
                                      u" cannot be written"_s);
    EXPECT_EQ(stored(), before);

    runMainThread();
    if (reloadDelay(*store).isActive())
        endNow(reloadDelay(*store));
    EXPECT_TRUE(store->showDisk());
    EXPECT_FALSE(store->saveError().isEmpty()) << "the failed tries were heard, and nothing was stored";

    database().canSynchronize = true;
    store->setShowSensors(true);
    EXPECT_TRUE(store->saveError().isEmpty());
    EXPECT_EQ(stored(), (Domain{{"showDisk", true}, {"showSensors", true}, {"updateInterval", 5.0}}));
}

TEST_F(UserDefaultsTest, OfAnotherProcessThatStoresMeanwhileAreNotLost) {
    const std::unique_ptr<SettingsStore> store = open();
    database().duringSynchronize = [] {
        storeElsewhere(domain, "showSensors", true);
        storeElsewhere(domain, "updateInterval", 10.0);
    };
    store->setUpdateInterval(5);
    EXPECT_EQ(stored(), (Domain{{"showSensors", true}, {"updateInterval", 10.0}}));
    runMainThread();
    endNow(reloadDelay(*store));
    EXPECT_TRUE(store->showSensors());
    EXPECT_EQ(store->updateInterval(), 10) << "the later value wins";
}

TEST_F(UserDefaultsTest, AreWrittenByTwoStoresAtATime) {
    const std::unique_ptr<SettingsStore> first = open();
    const std::unique_ptr<SettingsStore> second = open();
    first->setShowDisk(true);
    second->setShowSensors(true);
    runMainThread();
    for (const SettingsStore* store : {first.get(), second.get()}) {
        endNow(reloadDelay(*store));
        EXPECT_TRUE(store->showDisk() && store->showSensors());
    }
}

TEST_F(UserDefaultsTest, AreNotHeardAfterTheEnd) {
    std::unique_ptr<SettingsStore> store = open();
    storeElsewhere(domain, "showDisk", true);
    ASSERT_GT(waitingOnMainThread(), 0u);
    store.reset();
    runMainThread();
    storeElsewhere(domain, "showDisk", false);
    EXPECT_EQ(waitingOnMainThread(), 0u);
}

TEST_F(UserDefaultsTest, ThatAreMissingLeaveTheDefaultsAndSayThatNothingIsStored) {
    database().bundleIdentifier.reset();
    database().hasSuites = false;
    const std::unique_ptr<SettingsStore> store = open();
    EXPECT_TRUE(store->showCPU());
    store->setShowCPU(false);
    EXPECT_FALSE(store->showCPU());
    EXPECT_TRUE(store->saveError().endsWith(u" cannot be written"_s));
}

} // namespace
} // namespace orvelle
