#include "windows/settings/settings_types.h"

#include <QtGlobal>

#include <mutex>

void qml_register_types_Orvelle_Settings(); // written by the build

// From a static library nothing else takes in the files that were compiled ahead of time. The macro works in
// no namespace.
static void registerSettingsTypesAndFiles() {
    Q_INIT_RESOURCE(qmlcache_orvelle_windows_settings);
    qml_register_types_Orvelle_Settings();
}

namespace orvelle {

void registerSettingsTypes() {
    static std::once_flag once;
    std::call_once(once, registerSettingsTypesAndFiles);
}

} // namespace orvelle
