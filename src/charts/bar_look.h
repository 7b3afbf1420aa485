#pragma once

#include "animation/transition.h"

#include <QColor>
#include <QList>

namespace orvelle {

/// How a bar looks at one moment: what a change of its value animates.
struct BarLook {
    double ratio = 0; ///< of the available height; passes 1 while a spring overshoots
    QColor color = {};

    bool operator==(const BarLook&) const = default;
};

/// Length and colour together.
[[nodiscard]] BarLook interpolate(const BarLook& from, const BarLook& to, double progress);

/// Bar by bar. Rows of another length have nothing in common: then it is the second from the start.
[[nodiscard]] QList<BarLook> interpolate(const QList<BarLook>& from, const QList<BarLook>& to,
                                         double progress);

} // namespace orvelle
