#include "shell/painted/state_file.h"

#include <QDir>

namespace orvelle {

std::unique_ptr<SettingsStorage> openStateFile() {
    QString folder = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.local/state");
    return std::make_unique<SettingsFile>(folder + QStringLiteral("/orvelle/state.conf"));
}

} // namespace orvelle
