#include "settings/user_settings.h"

#include <QStandardPaths>

namespace orvelle {

/// `orvelle/orvelle.conf` in `$XDG_CONFIG_HOME`, or in `~/.config` when the variable is not set.
std::unique_ptr<SettingsStorage> openUserSettings() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<SettingsFile>(folder + QStringLiteral("/orvelle/orvelle.conf"));
}

} // namespace orvelle
