#pragma once

#include "menu_bar/item_scene.h"

#include <QRectF>

/// How much room the shapes of a scene want. Lengths are in points.
namespace orvelle {

struct Extent {
    QSizeF size;
    double rigidWidth = 0; ///< the share of the width that cannot be condensed; text has none
};

[[nodiscard]] Extent extentOf(const SceneNode& node);
[[nodiscard]] Extent extentOf(const RowShape& row);

/// Text narrower than this share of its natural width is no longer legible at menu-bar sizes.
inline constexpr double narrowestText = 0.75;

/// The width of something when all text in it is condensed to `share` of its natural width.
[[nodiscard]] double condensedWidth(const Extent& extent, double share);

/// To which share of its natural width text is condensed, `narrowestText` to 1, in a place of this width.
[[nodiscard]] double condensedShare(const Extent& extent, double width);

/// What is left of the spacing in a row that is wider than `width` even where its text is condensed.
[[nodiscard]] double gapWithin(const RowShape& row, const Extent& extent, double width);

struct TextExtent {
    QSizeF size;
    double capHeight = 0;
};

/// Texts are measured once and remembered while they recur: to measure one costs as much as to paint it.
[[nodiscard]] const TextExtent& textExtent(const TextShape& text);

inline constexpr double coreBarsHeight = 14;

/// Width of the frame that all cores' bars share: 3.5 for each core, and no more than for 12 cores.
[[nodiscard]] double coreBarsWidth(qsizetype coreCount);

/// The slots of the cores' bars from left to right in a frame at the origin. Bars lie 1 apart; where a bar
/// would become narrower than the gap beside it, the two share the room equally.
[[nodiscard]] QList<QRectF> coreBarSlots(qsizetype coreCount);

/// Between the dots of a row.
inline constexpr double dotSpacing = 2;

} // namespace orvelle
