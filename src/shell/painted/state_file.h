#pragma once

#include "settings/settings_storage.h"

namespace orvelle {

/// What the program remembers of itself between runs: `$XDG_STATE_HOME/orvelle/state.conf`, below
/// `~/.local/state` when the variable is not set to an absolute path.
[[nodiscard]] std::unique_ptr<SettingsStorage> openStateFile();

} // namespace orvelle
