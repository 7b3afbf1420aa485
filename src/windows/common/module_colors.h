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
#define ORVELLE_MODULE(id, ...) Q_PROPERTY(QColor id READ id NOTIFY changed)
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE

public:
    using QObject::QObject;

    [[nodiscard]] SettingsStore* settings() const { return m_settings; }
    void setSettings(SettingsStore* settings);
    [[nodiscard]] ThemeManager* themeManager() const { return m_themeManager; }
    void setThemeManager(ThemeManager* themeManager);

#define ORVELLE_MODULE(id, ...)                                                                              \
    [[nodiscard]] QColor id() const { return colorOf(ModuleId::id); }
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QColor colorOf(ModuleId module) const;

    QPointer<SettingsStore> m_settings;
    QPointer<ThemeManager> m_themeManager;
};

} // namespace orvelle
