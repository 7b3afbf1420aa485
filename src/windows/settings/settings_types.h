#pragma once

namespace orvelle {

/// Makes the settings window known to QML as the module `Orvelle.Settings`. A static library does not
/// register its types by itself. Called again it does nothing.
void registerSettingsTypes();

} // namespace orvelle
