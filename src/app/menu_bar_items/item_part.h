#pragma once

#include <QList>
#include <QPainter>
#include <QSizeF>

#include <functional>
#include <string>

/// How the menu-bar items are laid out: parts that know the size they want, put in rows and columns. Lengths
/// are in points.
namespace orvelle {

/// A piece of an item. It paints within the rectangle that it is given, which has its height and is as wide
/// as the part wants, or narrower where the item does not fit.
struct ItemPart {
    std::string key; ///< parts with equal keys look the same
    QSizeF size;
    double rigidWidth = 0; ///< the share of the width that cannot be condensed; text has none
    std::function<void(QPainter&, const QRectF&)> paint;
};

/// Which edges of the parts in a column lie on one line.
enum class ColumnAlignment { center, trailing };

/// Side by side, each centred vertically, starting on whole device pixels.
[[nodiscard]] ItemPart row(QList<ItemPart> parts, double spacing);

/// One above the other, starting on whole device pixels.
[[nodiscard]] ItemPart column(QList<ItemPart> parts, double spacing, ColumnAlignment alignment);

/// Paints an item centred in the fixed length of its place in the menu bar. What is wider than that gets its
/// text condensed; what is still wider has its parts put closer together, and from 2 points on it is drawn
/// smaller as a whole, so that nothing is cut off.
void paintCentred(QPainter& painter, const QRectF& bounds, const ItemPart& item);

} // namespace orvelle
