#pragma once

#include <QColor>

/// The geometry and colours of bars. Lengths are in points.
namespace orvelle {

/// No bar is lower than this, so that an idle one still shows.
inline constexpr double smallestBarHeight = 1.0;

/// Height of a bar filled to `fraction` (1 is full) of `availableHeight`. Not a number counts as empty.
[[nodiscard]] double miniBarHeight(double fraction, double availableHeight);

/// `color` below half, then yellow, and red from three quarters up.
[[nodiscard]] QColor miniBarColor(double fraction, const QColor& color);

} // namespace orvelle
