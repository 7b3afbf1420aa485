#pragma once

#include "settings/settings_storage.h"

namespace orvelle {

/// Where this operating system keeps the program's settings for the user. Only the program links it, so that
/// no test can reach the settings of the person who runs it.
[[nodiscard]] std::unique_ptr<SettingsStorage> openUserSettings();

} // namespace orvelle
