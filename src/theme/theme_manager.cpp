#include "theme/theme_manager.h"

#include "settings/settings_store.h"
#include "theme/colors.h"

#include <algorithm>

namespace orvelle {
namespace {

const AppTheme& themeWithIdOrMidnight(const QString& id) {
    const QList<AppTheme>& themes = builtInThemes();
    const auto theme = std::ranges::find(themes, id, &AppTheme::id);
    return theme == themes.end() ? themes.front() : *theme;
}

QColor chosenColor(bool isCustom, const QString& customHex, const QColor& themeColor) {
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

QColor ThemeManager::moduleColor(ModuleId module, const SettingsStore& settings) const {
    switch (module) {
#define ORVELLE_MODULE(id, Type, Title, color, ...)                                                          \
    case ModuleId::id:                                                                                       \
        return chosenColor(settings.useCustom##Type##Color(), settings.custom##Type##ColorHex(),             \
                           m_currentTheme.color);
        ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    }
    return {};
}

} // namespace orvelle
