#pragma once

#include <QColor>

namespace orvelle {

/// How a bar looks at one moment: what a change of its value animates.
struct BarLook {
    double ratio = 0; ///< of the available height; passes 1 while a spring overshoots
    QColor color = {};

    bool operator==(const BarLook&) const = default;
};

} // namespace orvelle
