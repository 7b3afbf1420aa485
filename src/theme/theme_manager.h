#pragma once

#include "settings/module_table.h"
#include "theme/app_theme.h"

#include <QObject>

namespace orvelle {

class SettingsStore;

/// The current theme, and the colour of each module: the user's own colour where one is switched on and can
/// be read, else that of the theme. Views ask here for a module's colour and observe the store beside the
/// theme, because the user's own colours are settings. Main thread only.
class ThemeManager : public QObject {
    Q_OBJECT
    Q_PROPERTY(orvelle::AppTheme currentTheme READ currentTheme NOTIFY currentThemeChanged)

public:
    /// Starts with the theme that the store names, and follows it.
    explicit ThemeManager(SettingsStore& settings, QObject* parent = nullptr);

    [[nodiscard]] static const QList<AppTheme>& builtInThemes() { return orvelle::builtInThemes(); }

    /// Midnight while the store names no theme.
    [[nodiscard]] const AppTheme& currentTheme() const { return m_currentTheme; }

    /// Makes the theme with this id the current one and stores the id; an id that no theme has changes
    /// nothing.
    Q_INVOKABLE void selectTheme(const QString& id);

    [[nodiscard]] QColor moduleColor(ModuleId module, const SettingsStore& settings) const;
#define ORVELLE_MODULE(id, ...)                                                                              \
    [[nodiscard]] QColor id##Color(const SettingsStore& settings) const {                                    \
        return moduleColor(ModuleId::id, settings);                                                          \
    }
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE

Q_SIGNALS:
    void currentThemeChanged();

private:
    void followStoredId();

    SettingsStore& m_settings;
    AppTheme m_currentTheme;
};

} // namespace orvelle
