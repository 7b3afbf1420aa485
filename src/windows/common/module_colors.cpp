#include "windows/common/module_colors.h"

namespace orvelle {

void ModuleColors::setSettings(SettingsStore* settings) {
    if (m_settings == settings)
        return;
    if (m_settings)
        disconnect(m_settings, nullptr, this, nullptr);
    m_settings = settings;
    if (m_settings)
        connect(m_settings, &SettingsStore::changed, this, &ModuleColors::changed);
    Q_EMIT changed();
}

void ModuleColors::setThemeManager(ThemeManager* themeManager) {
    if (m_themeManager == themeManager)
        return;
    if (m_themeManager)
        disconnect(m_themeManager, nullptr, this, nullptr);
    m_themeManager = themeManager;
    if (m_themeManager)
        connect(m_themeManager, &ThemeManager::currentThemeChanged, this, &ModuleColors::changed);
    Q_EMIT changed();
}

QColor ModuleColors::colorOf(ModuleId module) const {
    if (!m_settings || !m_themeManager)
        return Qt::transparent;
    return m_themeManager->moduleColor(module, *m_settings);
}

} // namespace orvelle
