#pragma once

#include <QRect>
#include <QRegion>

/// Where what opens under a status item belongs, as rules without a window. All in points; the rectangles of
/// item, screen and result share one origin.
namespace orvelle {

/// Of the rounded corners of a menu and a popover.
inline constexpr int popupCornerRadiusPoints = 10;

/// Kept free between a window that opens under an item and the edges of the screen.
inline constexpr int screenMarginPoints = 4;

/// A menu of that size: its left edge at the item's, directly below it, moved as far as it needs to stay on
/// the screen. It begins below the item even where there is no room for it.
[[nodiscard]] QRect menuGeometry(const QRectF& item, const QSize& size, const QRect& screen);

/// A popover of that size: centred below the item, moved as far as it needs to stay on the screen, and less
/// high than wanted on a low screen.
[[nodiscard]] QRect popoverGeometry(const QRectF& item, const QSize& size, const QRect& screen);

/// A rectangle of that size at the origin with rounded corners, made of whole points.
[[nodiscard]] QRegion roundedRegion(const QSize& size, int radius);

} // namespace orvelle
