#include "settings/user_settings.h"

#include <QStandardPaths>

namespace orvelle {
namespace {

/// `orvelle/orvelle.conf` in `$XDG_CONFIG_HOME`, or in `~/.config` when the variable is not set.
QString userSettingsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/orvelle/orvelle.conf");
}

} // namespace

std::unique_ptr<SettingsStorage> openUserSettings() {
    return std::make_unique<SettingsFile>(userSettingsPath());
}

std::optional<StoredValues> readUserSettings(const QStringList& keys) {
    return readSettingsFile(userSettingsPath(), keys);
}

} // namespace orvelle
