#pragma once

#include "menu_bar/item_scene.h"

#include <QPainter>

namespace orvelle {

/// The glyph's size in points: a body of 20 x 10, a terminal, and a margin for its outline.
[[nodiscard]] QSizeF batteryGlyphSize();

/// Width of the fill in points, up to 18, at a charge from 0 to 1.
[[nodiscard]] double batteryFillWidth(double charge);

/// A battery of 20 x 10 points with a terminal of 2 x 5, outlined in the primary label colour.
void paintShape(QPainter& painter, const QRectF& frame, const BatteryShape& battery,
                BarAppearance appearance);

} // namespace orvelle
