#include "look/quick/look_types.h"

#include <QtGlobal>

#include <mutex>

void qml_register_types_Orvelle_Look(); // written by the build

// From a static library nothing else takes in the files that were compiled ahead of time. The macro works in
// no namespace.
static void registerLookTypesAndFiles() {
    Q_INIT_RESOURCE(qmlcache_orvelle_look_quick);
    qml_register_types_Orvelle_Look();
}

namespace orvelle {

void registerLookTypes() {
    static std::once_flag once;
    std::call_once(once, registerLookTypesAndFiles);
}

} // namespace orvelle
