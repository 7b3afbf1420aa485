#pragma once

#include <QColor>
#include <QConicalGradient>
#include <QGradientStops>
#include <QLinearGradient>

/// How rings and gauges are shaded, in coordinates whose origin is the centre of the circle.
namespace orvelle {

/// Shades clockwise from `start` at twelve o'clock to `end` at `fraction` (0 to 1) of the turn. What is left
/// of the turn belongs half to each end, for their round caps.
[[nodiscard]] QConicalGradient ringShade(const QColor& start, const QColor& end, double fraction);

/// Shades a gauge of `diameter` from its left edge to its right one, the way in which it fills.
[[nodiscard]] QLinearGradient gaugeShade(const QGradientStops& stops, double diameter);

/// Shades once around the centre, clockwise from three o'clock.
[[nodiscard]] QConicalGradient pieShade(const QColor& start, const QColor& end);

} // namespace orvelle
