#pragma once

#include "app/menu_bar_items/item_part.h"

#include <QColor>

namespace orvelle {

/// A battery of 20 x 10 points with a terminal of 2 x 5, outlined in the primary label colour and filled with
/// `fillColor` in proportion to the charge in percent.
[[nodiscard]] ItemPart batteryGlyphPart(qint64 charge, const QColor& fillColor);

} // namespace orvelle
