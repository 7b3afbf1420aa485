#include "menu_bar/scene_painter.h"

#include "menu_bar/battery_glyph.h"
#include "menu_bar/scene_layout.h"
#include "menu_bar/shape_painting.h"
#include "theme/device_pixels.h"

#include <algorithm>

namespace orvelle {
namespace {

/// What is less than this too large, in points, is not drawn smaller: it would lose the sharpness of whole
/// pixels for no more than its gaps, or the empty edge of a line of text, have to give.
constexpr double worthScaling = 2;

double scaleToFit(double extent, double room) {
    return extent - room < worthScaling ? 1 : room / extent;
}

/// Leans to the left where it must round, so that the last shape of a row that just fits does not stick out.
void paintSnapped(QPainter& painter, const SceneNode& node, const QRectF& frame);

/// Paints a shape within `frame`, which has its height, and its width or less.
struct Painter {
    QPainter& painter;
    const QRectF& frame;

    template <class Shape>
    void operator()(const Shape& shape) const {
        paintShape(painter, frame, shape);
    }
    void operator()(const SparklineView& line) const { line.paint(painter, frame); }
    void operator()(const DualSparklineView& lines) const { lines.paint(painter, frame); }
    void operator()(const RowShape& row) const {
        const Extent whole = extentOf(row);
        const double share = condensedShare(whole, frame.width());
        const double gap = gapWithin(row, whole, frame.width());
        double left = frame.left();
        for (const SceneNode& node : row.nodes) {
            const Extent extent = extentOf(node);
            const QSizeF size(condensedWidth(extent, share), extent.size.height());
            paintSnapped(painter, node, {{left, frame.center().y() - size.height() / 2}, size});
            left += size.width() + gap;
        }
    }
    void operator()(const ColumnShape& column) const {
        double top = frame.top();
        for (const SceneNode& node : column.nodes) {
            const Extent extent = extentOf(node);
            const QSizeF size(std::min(extent.size.width(), frame.width()), extent.size.height());
            const double slack = frame.width() - size.width();
            const bool isCentred = column.alignment == ColumnAlignment::center;
            paintSnapped(painter, node, {{frame.left() + (isCentred ? slack / 2 : slack), top}, size});
            top += size.height() + column.spacing;
        }
    }
};

void paintSnapped(QPainter& painter, const SceneNode& node, const QRectF& frame) {
    const QPointF almostHalfAPixel(0.49 / devicePixelsPerPoint(painter), 0);
    const QRectF snapped(snappedToDevicePixels(painter, frame.topLeft() - almostHalfAPixel), frame.size());
    std::visit(Painter{painter, snapped}, node.shape);
}

} // namespace

void paintScene(QPainter& painter, const QRectF& bounds, const SceneNode& scene) {
    const Extent extent = extentOf(scene);
    if (extent.size.isEmpty())
        return;
    const double narrowest = condensedWidth(extent, narrowestText);
    const double scale =
        std::min(scaleToFit(narrowest, bounds.width()), scaleToFit(extent.size.height(), bounds.height()));
    if (!(scale > 0))
        return;
    painter.save();
    painter.translate(bounds.center());
    painter.scale(scale, scale);
    const QSizeF size(std::min(extent.size.width(), bounds.width() / scale), extent.size.height());
    paintSnapped(painter, scene, {{-size.width() / 2, -size.height() / 2}, size});
    painter.restore();
}

} // namespace orvelle
