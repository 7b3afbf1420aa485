#pragma once

#include "settings/settings_storage.h"

namespace orvelle {

/// Where this operating system keeps the program's settings for the user. Only the programs link it, so that
/// no test can reach the settings of the person who runs it.
[[nodiscard]] std::unique_ptr<SettingsStorage> openUserSettings();

/// The user's stored values of those `keys` that are stored, for a program that leaves the place as it is.
/// Nothing when it cannot be read.
[[nodiscard]] std::optional<StoredValues> readUserSettings(const QStringList& keys);

} // namespace orvelle
