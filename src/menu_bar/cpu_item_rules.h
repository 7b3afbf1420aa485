#pragma once

#include <QColor>
#include <QList>
#include <QRectF>

/// Geometry and colours of the CPU item. Lengths are in points.
namespace orvelle {

inline constexpr double coreBarsHeight = 14;

/// Width of the frame that all cores' bars share: 3.5 for each core, and no more than for 12 cores.
[[nodiscard]] double coreBarsWidth(qsizetype coreCount);

/// The slots of the cores' bars from left to right in a frame at the origin. Bars lie 1 apart; where a bar
/// would become narrower than the gap beside it, the two share the room equally.
[[nodiscard]] QList<QRectF> coreBarSlots(qsizetype coreCount);

/// How many cores have a dot.
[[nodiscard]] qsizetype coreDotCount(qsizetype coreCount);

/// The colour of a core's dot: `color` at three strengths as the load, a fraction, grows, and red from 0.8.
[[nodiscard]] QColor coreDotColor(double load, const QColor& color);

} // namespace orvelle
