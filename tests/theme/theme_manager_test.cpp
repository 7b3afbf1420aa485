#include "settings/settings_store.h"
#include "support/temporary_settings.h"
#include "support/waiting.h"
#include "theme/theme_manager.h"

#include <QSignalSpy>
#include <QTest>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

class ThemeManagerTest : public ::testing::Test {
protected:
    TemporarySettings settings;
};

TEST_F(ThemeManagerTest, StartsWithMidnight) {
    SettingsStore store(settings.path());
    EXPECT_EQ(ThemeManager(store).currentTheme().id, u"midnight"_s);
}

TEST_F(ThemeManagerTest, StartsWithTheStoredTheme) {
    settings.writeInPlace("[General]\nselectedThemeId=nord\n");
    SettingsStore store(settings.path());
    EXPECT_EQ(ThemeManager(store).currentTheme().name, u"Nord"_s);
}

TEST_F(ThemeManagerTest, AnUnknownIdGivesMidnightAndStaysStored) {
    const QByteArray text = "[General]\nselectedThemeId=Nord\n";
    settings.writeInPlace(text);
    SettingsStore store(settings.path());
    EXPECT_EQ(ThemeManager(store).currentTheme().id, u"midnight"_s);
    EXPECT_EQ(store.selectedThemeId(), u"Nord"_s);
    EXPECT_EQ(settings.text(), text);
}

TEST_F(ThemeManagerTest, SelectingAThemeStoresItsIdAndIsAnnouncedOnce) {
    SettingsStore store(settings.path());
    ThemeManager manager(store);
    QSignalSpy changed(&manager, &ThemeManager::currentThemeChanged);
    for (const AppTheme& theme : ThemeManager::builtInThemes()) {
        manager.selectTheme(theme.id);
        EXPECT_EQ(manager.currentTheme(), theme);
        EXPECT_EQ(SettingsStore(settings.path()).selectedThemeId(), theme.id);
    }
    EXPECT_EQ(changed.count(), 11) << "Midnight was current already";
    manager.selectTheme(u"pastel"_s);
    EXPECT_EQ(changed.count(), 11);
}

TEST_F(ThemeManagerTest, SelectingMidnightReplacesAnUnknownId) {
    settings.writeInPlace("[General]\nselectedThemeId=gone\n");
    SettingsStore store(settings.path());
    ThemeManager(store).selectTheme(u"midnight"_s);
    EXPECT_EQ(store.selectedThemeId(), u"midnight"_s);
}

TEST_F(ThemeManagerTest, SelectingAnUnknownIdChangesNothing) {
    SettingsStore store(settings.path());
    ThemeManager manager(store);
    manager.selectTheme(u"ocean"_s);
    manager.selectTheme(u"Ocean"_s);
    EXPECT_EQ(manager.currentTheme().id, u"ocean"_s);
    EXPECT_EQ(store.selectedThemeId(), u"ocean"_s);
}

TEST_F(ThemeManagerTest, FollowsTheStoreAndTheFile) {
    SettingsStore store(settings.path());
    ThemeManager manager(store);
    store.setSelectedThemeId(u"dracula"_s);
    EXPECT_EQ(manager.currentTheme().id, u"dracula"_s);
    store.setSelectedThemeId(u"gone"_s);
    EXPECT_EQ(manager.currentTheme().id, u"midnight"_s);
    settings.replaceByRename("[General]\nselectedThemeId=forest\n");
    EXPECT_TRUE(waitUntil([&] { return manager.currentTheme().id == u"forest"_s; }));
}

struct Module {
    const char* name;
    QColor (ThemeManager::*color)(const SettingsStore&) const;
    QColor AppTheme::* themeColor;
    void (SettingsStore::*setCustom)(bool);
    void (SettingsStore::*setHex)(const QString&);
};

const Module modules[] = {
    {"cpu", &ThemeManager::cpuColor, &AppTheme::cpuColor, &SettingsStore::setUseCustomCPUColor,
     &SettingsStore::setCustomCPUColorHex},
    {"memory", &ThemeManager::memoryColor, &AppTheme::memoryColor, &SettingsStore::setUseCustomMemoryColor,
     &SettingsStore::setCustomMemoryColorHex},
    {"network", &ThemeManager::networkColor, &AppTheme::networkColor,
     &SettingsStore::setUseCustomNetworkColor, &SettingsStore::setCustomNetworkColorHex},
    {"disk", &ThemeManager::diskColor, &AppTheme::diskColor, &SettingsStore::setUseCustomDiskColor,
     &SettingsStore::setCustomDiskColorHex},
    {"battery", &ThemeManager::batteryColor, &AppTheme::batteryColor,
     &SettingsStore::setUseCustomBatteryColor, &SettingsStore::setCustomBatteryColorHex},
    {"sensor", &ThemeManager::sensorColor, &AppTheme::sensorColor, &SettingsStore::setUseCustomSensorColor,
     &SettingsStore::setCustomSensorColorHex},
};

TEST_F(ThemeManagerTest, AModuleHasTheThemesColorUntilAnOwnOneIsOnAndCanBeRead) {
    SettingsStore store(settings.path());
    ThemeManager manager(store);
    manager.selectTheme(u"synthwave"_s);
    for (const Module& module : modules) {
        const QColor themeColor = manager.currentTheme().*module.themeColor;
        const auto color = [&] { return (manager.*module.color)(store); };
        EXPECT_EQ(color(), themeColor) << module.name;
        (store.*module.setCustom)(true);
        EXPECT_EQ(color(), themeColor) << module.name << ": on, but empty";
        (store.*module.setHex)(u"#12345"_s);
        EXPECT_EQ(color(), themeColor) << module.name << ": on, but unreadable";
        (store.*module.setHex)(u" #123456\n"_s);
        EXPECT_EQ(color(), QColor(0x12, 0x34, 0x56)) << module.name;
        (store.*module.setCustom)(false);
        EXPECT_EQ(color(), themeColor) << module.name << ": off again";
    }
}

TEST_F(ThemeManagerTest, AnOwnColorOfOneModuleLeavesTheOthersAndTheTheme) {
    SettingsStore store(settings.path());
    ThemeManager manager(store);
    store.setUseCustomDiskColor(true);
    store.setCustomDiskColorHex(u"#010203"_s);
    for (const Module& module : modules) {
        const QColor expected =
            QByteArray(module.name) == "disk" ? QColor(1, 2, 3) : manager.currentTheme().*module.themeColor;
        EXPECT_EQ((manager.*module.color)(store), expected) << module.name;
    }
    EXPECT_EQ(manager.currentTheme(), ThemeManager::builtInThemes().front());
}

} // namespace
} // namespace orvelle
