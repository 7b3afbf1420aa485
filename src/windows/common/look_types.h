#pragma once

#include "settings/settings_store.h"
#include "settings/styles.h"
#include "theme/theme_manager.h"

#include <QQmlEngine>

namespace orvelle {

/// Makes what all windows share known to QML as the module `Orvelle.Common`: `makeEngine` calls it. A static
/// library does not register its types by itself. Called again it does nothing.
void registerLookTypes();

/// The settings and the themes, which the program makes and QML only uses.
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

/// The styles of the settings, by which the properties of the store and of the charts are typed.
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
