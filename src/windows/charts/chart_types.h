#pragma once

#include "animation/animation_clock.h"

#include <QQmlEngine>

namespace orvelle {

/// Registers the module `Orvelle.Charts`, because a static library does not register its types by itself.
/// Further calls do nothing.
void registerChartTypes();

/// `AnimationClock::shared` for QML.
struct AnimationClockSingleton {
    Q_GADGET
    QML_FOREIGN(orvelle::AnimationClock)
    QML_NAMED_ELEMENT(AnimationClock)
    QML_SINGLETON

public:
    static AnimationClock* create(QQmlEngine* engine, QJSEngine* scriptEngine);
};

} // namespace orvelle
