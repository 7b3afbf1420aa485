#pragma once

#include "settings/settings_store.h"
#include "settings/styles.h"
#include "theme/theme_manager.h"

#include <QQmlEngine>

#include <memory>

namespace orvelle {

/// An engine for the program's windows. It knows the module `Orvelle.Common`; the other modules are
/// registered by those who show them. The first call makes Qt Quick paint in software: no graphics processor
/// is woken for a few charts, and no driver loaded. It must come before the first window of Qt Quick, on the
/// main thread.
[[nodiscard]] std::unique_ptr<QQmlEngine> makeEngine();

// Types of other folders that `Orvelle.Common` makes known to QML.

struct SettingsStoreInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::SettingsStore)
    QML_NAMED_ELEMENT(SettingsStore)
    QML_UNCREATABLE("The program makes it.")
};

struct ThemeManagerInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::ThemeManager)
    QML_NAMED_ELEMENT(ThemeManager)
    QML_UNCREATABLE("The program makes it.")
};

/// The enumerations of the settings, which type the properties of the store and of the charts.
namespace StylesInQml {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(orvelle)
QML_NAMED_ELEMENT(Styles)
} // namespace StylesInQml

struct AppThemeInQml {
    Q_GADGET
    QML_FOREIGN(orvelle::AppTheme)
    QML_VALUE_TYPE(appTheme)
};

} // namespace orvelle
