#include "charts/quick/chart_types.h"

#include <mutex>

void qml_register_types_Orvelle_Charts(); // written by the build

namespace orvelle {

void registerChartTypes() {
    static std::once_flag once;
    std::call_once(once, qml_register_types_Orvelle_Charts);
}

Motion* MotionSingleton::create(QQmlEngine* /*engine*/, QJSEngine* /*scriptEngine*/) {
    Motion& motion = Motion::shared();
    QJSEngine::setObjectOwnership(&motion, QJSEngine::CppOwnership);
    return &motion;
}

} // namespace orvelle
