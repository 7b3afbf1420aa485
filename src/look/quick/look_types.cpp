#include "look/quick/look_types.h"

#include <mutex>

void qml_register_types_Orvelle_Look(); // written by the build

namespace orvelle {

void registerLookTypes() {
    static std::once_flag once;
    std::call_once(once, qml_register_types_Orvelle_Look);
}

} // namespace orvelle
