#include "app/menu_bar_items/item_part.h"

#include "app/menu_bar_items/part_key.h"
#include "look/device_pixels.h"

#include <algorithm>
#include <numeric>

namespace orvelle {
namespace {

/// Text narrower than this share of its natural width is no longer legible at menu-bar sizes.
constexpr double narrowestText = 0.75;

/// What is less than this too large, in points, is not drawn smaller: it would lose the sharpness of whole
/// pixels for no more than its gaps, or the empty edge of a line of text, have to give.
constexpr double worthScaling = 2;

double scaleToFit(double extent, double room) {
    return extent - room < worthScaling ? 1 : room / extent;
}

double totalWidth(const QList<ItemPart>& parts) {
    return std::accumulate(parts.begin(), parts.end(), 0.0,
                           [](double sum, const ItemPart& part) { return sum + part.size.width(); });
}

/// The width of `part` when all text beside it is condensed to `share` of its natural width.
double condensedWidth(const ItemPart& part, double share) {
    return part.rigidWidth + share * (part.size.width() - part.rigidWidth);
}

std::string keyOfAll(std::string key, const QList<ItemPart>& parts) {
    for (const ItemPart& part : parts)
        appendToKey(key, part.key);
    return key;
}

/// How far text must be condensed for `part` to be `width` wide.
double condensedShare(const ItemPart& part, double width) {
    const double text = part.size.width() - part.rigidWidth;
    return text > 0 ? std::clamp((width - part.rigidWidth) / text, narrowestText, 1.0) : 1;
}

/// What is left of the `spacing` between `count` parts of a row that is wider than `width` even where its
/// text is condensed.
double gapWithin(const ItemPart& whole, double width, qsizetype count, double spacing) {
    const double excess = condensedWidth(whole, narrowestText) - width;
    return count > 1 && excess > 0 ? std::max(0.0, spacing - excess / static_cast<double>(count - 1))
                                   : spacing;
}

/// Leans to the left where it must round, so that the last part of a row that just fits does not stick out.
void paintSnapped(QPainter& painter, const ItemPart& part, const QRectF& frame) {
    const QPointF almostHalfAPixel(0.49 / devicePixelsPerPoint(painter), 0);
    const QPointF topLeft = snappedToDevicePixels(painter, frame.topLeft() - almostHalfAPixel);
    part.paint(painter, QRectF(topLeft, frame.size()));
}

} // namespace

ItemPart row(QList<ItemPart> parts, double spacing) {
    ItemPart result;
    result.key = keyOfAll(partKey("row", spacing), parts);
    const double gaps = spacing * static_cast<double>(std::max<qsizetype>(parts.size() - 1, 0));
    result.rigidWidth = gaps;
    double height = 0;
    for (const ItemPart& part : parts) {
        result.rigidWidth += part.rigidWidth;
        height = std::max(height, part.size.height());
    }
    result.size = QSizeF(totalWidth(parts) + gaps, height);
    const ItemPart whole = result;
    result.paint = [parts = std::move(parts), spacing, whole](QPainter& painter, const QRectF& frame) {
        const double share = condensedShare(whole, frame.width());
        const double gap = gapWithin(whole, frame.width(), parts.size(), spacing);
        double left = frame.left();
        for (const ItemPart& part : parts) {
            const QSizeF size(condensedWidth(part, share), part.size.height());
            paintSnapped(painter, part, {{left, frame.center().y() - size.height() / 2}, size});
            left += size.width() + gap;
        }
    };
    return result;
}

ItemPart column(QList<ItemPart> parts, double spacing, ColumnAlignment alignment) {
    ItemPart result;
    result.key = keyOfAll(partKey("column", spacing, static_cast<int>(alignment)), parts);
    double height = spacing * static_cast<double>(std::max<qsizetype>(parts.size() - 1, 0));
    double width = 0;
    for (const ItemPart& part : parts) {
        result.rigidWidth = std::max(result.rigidWidth, part.rigidWidth);
        width = std::max(width, part.size.width());
        height += part.size.height();
    }
    result.size = QSizeF(width, height);
    result.paint = [parts = std::move(parts), spacing, alignment](QPainter& painter, const QRectF& frame) {
        double top = frame.top();
        for (const ItemPart& part : parts) {
            const QSizeF size(std::min(part.size.width(), frame.width()), part.size.height());
            const double slack = frame.width() - size.width();
            const double left = frame.left() + (alignment == ColumnAlignment::center ? slack / 2 : slack);
            paintSnapped(painter, part, {{left, top}, size});
            top += size.height() + spacing;
        }
    };
    return result;
}

void paintCentred(QPainter& painter, const QRectF& bounds, const ItemPart& item) {
    if (!item.paint || item.size.isEmpty())
        return;
    const double narrowest = condensedWidth(item, narrowestText);
    const double scale =
        std::min(scaleToFit(narrowest, bounds.width()), scaleToFit(item.size.height(), bounds.height()));
    if (!(scale > 0))
        return;
    painter.save();
    painter.translate(bounds.center());
    painter.scale(scale, scale);
    const QSizeF size(std::min(item.size.width(), bounds.width() / scale), item.size.height());
    paintSnapped(painter, item, {{-size.width() / 2, -size.height() / 2}, size});
    painter.restore();
}

} // namespace orvelle
