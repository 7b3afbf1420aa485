#include "windows/common/look_types.h"

#include <QtGlobal>

#include <mutex>

void qml_register_types_Orvelle_Common(); // written by the build

// From a static library nothing else takes in the files that were compiled ahead of time. The macro works in
// no namespace.
static void registerLookTypesAndFiles() {
    Q_INIT_RESOURCE(qmlcache_orvelle_windows_common);
    qml_register_types_Orvelle_Common();
}

namespace orvelle {

void registerLookTypes() {
    static std::once_flag once;
    std::call_once(once, registerLookTypesAndFiles);
}

} // namespace orvelle
