#include "settings_ui/settings_types.h"

#include <mutex>

void qml_register_types_Orvelle_SettingsUI(); // written by the build

namespace orvelle {

void registerSettingsTypes() {
    static std::once_flag once;
    std::call_once(once, qml_register_types_Orvelle_SettingsUI);
}

} // namespace orvelle
