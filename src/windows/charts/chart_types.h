#pragma once

#include "animation/animation_clock.h"

#include <QQmlEngine>

namespace orvelle {

/// Makes the charts known to QML as the module `Orvelle.Charts`. A static library does not register its types
/// by itself. Called again it does nothing.
void registerChartTypes();

/// The switch and the clock of all motion, to QML.
struct AnimationClockSingleton {
    Q_GADGET
    QML_FOREIGN(orvelle::AnimationClock)
    QML_NAMED_ELEMENT(AnimationClock)
    QML_SINGLETON

public:
    static AnimationClock* create(QQmlEngine* engine, QJSEngine* scriptEngine);
};

} // namespace orvelle
