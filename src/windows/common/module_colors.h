#pragma once

#include "settings/settings_store.h"
#include "theme/theme_manager.h"

#include <QColor>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// The colours of the modules, to QML: they follow the theme and the user's own colours. Transparent while
/// the settings or the themes are not given.
class ModuleColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(orvelle::SettingsStore* settings READ settings WRITE setSettings NOTIFY changed REQUIRED)
    Q_PROPERTY(
        orvelle::ThemeManager* themeManager READ themeManager WRITE setThemeManager NOTIFY changed REQUIRED)
    Q_PROPERTY(QColor cpu READ cpu NOTIFY changed)
    Q_PROPERTY(QColor memory READ memory NOTIFY changed)
    Q_PROPERTY(QColor network READ network NOTIFY changed)
    Q_PROPERTY(QColor disk READ disk NOTIFY changed)
    Q_PROPERTY(QColor battery READ battery NOTIFY changed)
    Q_PROPERTY(QColor sensor READ sensor NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] SettingsStore* settings() const { return m_settings; }
    void setSettings(SettingsStore* settings);
    [[nodiscard]] ThemeManager* themeManager() const { return m_themeManager; }
    void setThemeManager(ThemeManager* themeManager);

    [[nodiscard]] QColor cpu() const { return colorBy(&ThemeManager::cpuColor); }
    [[nodiscard]] QColor memory() const { return colorBy(&ThemeManager::memoryColor); }
    [[nodiscard]] QColor network() const { return colorBy(&ThemeManager::networkColor); }
    [[nodiscard]] QColor disk() const { return colorBy(&ThemeManager::diskColor); }
    [[nodiscard]] QColor battery() const { return colorBy(&ThemeManager::batteryColor); }
    [[nodiscard]] QColor sensor() const { return colorBy(&ThemeManager::sensorColor); }

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QColor colorBy(QColor (ThemeManager::*color)(const SettingsStore&) const) const;

    QPointer<SettingsStore> m_settings;
    QPointer<ThemeManager> m_themeManager;
};

} // namespace orvelle
