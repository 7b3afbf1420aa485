#pragma once

#include "menu_bar/item_scene.h"

#include <QRectF>

/// The natural size of the shapes of a scene. Lengths are in points.
namespace orvelle {

struct Extent {
    QSizeF size;
    double rigidWidth = 0; ///< the part of the width that cannot be condensed; 0 for text
};

[[nodiscard]] Extent extentOf(const SceneNode& node);
[[nodiscard]] Extent extentOf(const RowShape& row);

/// Text below this share of its natural width is illegible at menu-bar sizes.
inline constexpr double narrowestText = 0.75;

/// The width when all text is condensed to `share` of its natural width.
[[nodiscard]] double condensedWidth(const Extent& extent, double share);

/// The share of its natural width, from `narrowestText` to 1, to which text is condensed to fit this width.
[[nodiscard]] double condensedShare(const Extent& extent, double width);

/// The reduced spacing of a row that exceeds `width` even with condensed text.
[[nodiscard]] double gapWithin(const RowShape& row, const Extent& extent, double width);

struct TextExtent {
    QSizeF size;
    double capHeight = 0;
};

/// Text sizes are cached while the texts recur, because measuring a text costs as much as painting it.
[[nodiscard]] const TextExtent& textExtent(const TextShape& text);

/// Height of the cores' bars in the menu bar.
inline constexpr double coreBarsHeight = 14;

/// Width of the frame for all cores' bars: 3.5 per core, for at most 12 cores.
[[nodiscard]] double coreBarsWidth(qsizetype coreCount);

/// The frame for all cores' bars.
[[nodiscard]] QSizeF coreBarsFrame(const CoreBarsShape& bars);

/// The slots of the cores' bars from left to right in a frame at the origin. Gaps are 1 wide. If a bar would
/// become narrower than its gap, both get the same width.
[[nodiscard]] QList<QRectF> coreBarSlots(qsizetype coreCount, const QSizeF& frame);

/// The gap between the dots of a row.
inline constexpr double dotSpacing = 2;

} // namespace orvelle
