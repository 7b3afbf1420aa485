#pragma once

#include <QColor>
#include <QList>

/// Colours and measures of the battery item. Charges are in percent.
namespace orvelle {

/// Green while charging; otherwise red below 21, yellow below 41, and else `color`.
[[nodiscard]] QColor batteryColor(qint64 charge, bool isCharging, const QColor& color);

/// Width in points of the fill inside the battery glyph, up to 18.
[[nodiscard]] double batteryFillWidth(qint64 charge);

/// Five dots of one colour, one lit for each full fifth of the charge.
[[nodiscard]] QList<QColor> batteryDotColors(qint64 charge, const QColor& color);

} // namespace orvelle
