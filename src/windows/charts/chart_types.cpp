#include "windows/charts/chart_types.h"

#include <mutex>

void qml_register_types_Orvelle_Charts(); // written by the build

namespace orvelle {

void registerChartTypes() {
    static std::once_flag once;
    std::call_once(once, qml_register_types_Orvelle_Charts);
}

AnimationClock* AnimationClockSingleton::create(QQmlEngine* /*engine*/, QJSEngine* /*scriptEngine*/) {
    AnimationClock& clock = AnimationClock::shared();
    QJSEngine::setObjectOwnership(&clock, QJSEngine::CppOwnership);
    return &clock;
}

} // namespace orvelle
