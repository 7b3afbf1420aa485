#pragma once

#include "charts/motion.h"

#include <QQmlEngine>

namespace orvelle {

/// Makes the charts known to QML as the module `Orvelle.Charts`. A static library does not register its types
/// by itself. Called again it does nothing.
void registerChartTypes();

/// The switch and the clock of all motion, to QML.
struct MotionSingleton {
    Q_GADGET
    QML_FOREIGN(orvelle::Motion)
    QML_NAMED_ELEMENT(Motion)
    QML_SINGLETON

public:
    static Motion* create(QQmlEngine* engine, QJSEngine* scriptEngine);
};

} // namespace orvelle
