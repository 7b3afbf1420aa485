#include "panels/panel_types.h"

#include <mutex>

void qml_register_types_Orvelle_Panels(); // written by the build

namespace orvelle {

void registerPanelTypes() {
    static std::once_flag once;
    std::call_once(once, qml_register_types_Orvelle_Panels);
}

} // namespace orvelle
