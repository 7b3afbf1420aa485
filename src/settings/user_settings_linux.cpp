#include "settings/settings_file.h"

#include <QStandardPaths>

namespace orvelle {

/// `$XDG_CONFIG_HOME/orvelle/orvelle.conf`, `~/.config` when the variable is not set.
std::unique_ptr<SettingsStorage> openUserSettings() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::make_unique<SettingsFile>(folder + QStringLiteral("/orvelle/orvelle.conf"));
}

} // namespace orvelle
