#include "settings/settings_storage.h"

#include <QStandardPaths>

namespace orvelle {

/// `orvelle/orvelle.conf` in `$XDG_CONFIG_HOME`, or in `~/.config` when the variable is not set.
std::unique_ptr<SettingsStorage> openUserSettings(const QString& folder) {
    const QString parent =
        folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) : folder;
    return std::make_unique<SettingsFile>(parent + QStringLiteral("/orvelle/orvelle.conf"));
}

} // namespace orvelle
