#include "windows/panels/panel_types.h"

#include <QtGlobal>

#include <mutex>

void qml_register_types_Orvelle_Panels(); // written by the build

// From a static library nothing else takes in the files that were compiled ahead of time. The macro works in
// no namespace.
static void registerPanelTypesAndFiles() {
    Q_INIT_RESOURCE(qmlcache_orvelle_windows_panels);
    qml_register_types_Orvelle_Panels();
}

namespace orvelle {

void registerPanelTypes() {
    static std::once_flag once;
    std::call_once(once, registerPanelTypesAndFiles);
}

} // namespace orvelle
