#include "theme/theme_manager.h"

#include "settings/settings_store.h"
#include "theme/hex_color.h"

#include <algorithm>

namespace orvelle {
namespace {

const AppTheme& themeWithIdOrMidnight(const QString& id) {
    const QList<AppTheme>& themes = builtInThemes();
    const auto theme = std::ranges::find(themes, id, &AppTheme::id);
    return theme == themes.end() ? themes.front() : *theme;
}

QColor moduleColor(bool isCustom, const QString& customHex, const QColor& themeColor) {
    return isCustom ? hexToColor(customHex).value_or(themeColor) : themeColor;
}

} // namespace

ThemeManager::ThemeManager(SettingsStore& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_currentTheme(themeWithIdOrMidnight(settings.selectedThemeId())) {
    connect(&settings, &SettingsStore::selectedThemeIdChanged, this, &ThemeManager::followStoredId);
}

void ThemeManager::selectTheme(const QString& id) {
    if (themeWithIdOrMidnight(id).id == id)
        m_settings.setSelectedThemeId(id);
}

void ThemeManager::followStoredId() {
    const AppTheme& theme = themeWithIdOrMidnight(m_settings.selectedThemeId());
    if (theme.id == m_currentTheme.id)
        return;
    m_currentTheme = theme;
    Q_EMIT currentThemeChanged();
}

QColor ThemeManager::cpuColor(const SettingsStore& settings) const {
    return moduleColor(settings.useCustomCPUColor(), settings.customCPUColorHex(), m_currentTheme.cpuColor);
}

QColor ThemeManager::memoryColor(const SettingsStore& settings) const {
    return moduleColor(settings.useCustomMemoryColor(), settings.customMemoryColorHex(),
                       m_currentTheme.memoryColor);
}

QColor ThemeManager::networkColor(const SettingsStore& settings) const {
    return moduleColor(settings.useCustomNetworkColor(), settings.customNetworkColorHex(),
                       m_currentTheme.networkColor);
}

QColor ThemeManager::diskColor(const SettingsStore& settings) const {
    return moduleColor(settings.useCustomDiskColor(), settings.customDiskColorHex(),
                       m_currentTheme.diskColor);
}

QColor ThemeManager::batteryColor(const SettingsStore& settings) const {
    return moduleColor(settings.useCustomBatteryColor(), settings.customBatteryColorHex(),
                       m_currentTheme.batteryColor);
}

QColor ThemeManager::sensorColor(const SettingsStore& settings) const {
    return moduleColor(settings.useCustomSensorColor(), settings.customSensorColorHex(),
                       m_currentTheme.sensorColor);
}

} // namespace orvelle
