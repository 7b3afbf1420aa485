#pragma once

#include "settings/styles.h"

#include <QColor>
#include <QPainterPath>
#include <QRectF>

/// The geometry and colours of bars. Lengths are in points.
namespace orvelle {

/// No bar is lower than this, so that an idle one still shows.
inline constexpr double smallestBarHeight = 1.0;

/// Gaps shrink rather than make bars narrower than this: a hairline of a bar cannot be seen.
inline constexpr double smallestBarWidth = 1.0;

/// How full a bar is, 0 to 1; 0 when `maxValue` is not above 0 or the value is not a number.
[[nodiscard]] double barFillRatio(double value, double maxValue);

/// Height of a bar filled to `ratio` of `availableHeight`. The ratio may pass 1 while a spring overshoots.
[[nodiscard]] double barHeight(double ratio, double availableHeight);

/// `baseColor` below half; from there it blends to amber at three quarters, which fades to red when full.
[[nodiscard]] QColor barColor(double ratio, const QColor& baseColor);

/// Corner radius that a chart of this style hands to its bars.
[[nodiscard]] double barCornerRadius(BarChartStyle style);

/// Gap between the bars of a chart: `spacing`, but at least 3 for the styles that need air around them.
[[nodiscard]] double barSpacingFor(BarChartStyle style, double spacing);

/// How bars share a row, points.
struct BarRow {
    double slotWidth = 0;
    double gap = 0;
};

/// `count` slots of equal width with gaps of `spacing` that together fill `width`. Where the gaps leave the
/// slots less than `smallestBarWidth`, the gaps shrink, at most until slots and gaps are equally wide.
[[nodiscard]] BarRow barRow(qsizetype count, double width, double spacing);

/// Width of the bar that a style draws in a slot of `slotWidth`.
[[nodiscard]] double barWidth(BarChartStyle style, double slotWidth);

/// The outline of a bar that stands at the bottom of `slot`, centred; `height` may pass the slot's top.
[[nodiscard]] QPainterPath barShape(BarChartStyle style, const QRectF& slot, double height,
                                    double cornerRadius);

/// Radius of a bar's shadow: that of the glow, half of it around thin lines.
[[nodiscard]] double barGlowRadius(BarChartStyle style, GlowIntensity intensity);

/// `color` below half, then yellow, and red from three quarters up.
[[nodiscard]] QColor miniBarColor(double fraction, const QColor& color);

} // namespace orvelle
