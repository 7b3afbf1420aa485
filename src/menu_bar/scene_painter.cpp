#include "menu_bar/scene_painter.h"

#include "charts/plain_bars.h"
#include "menu_bar/battery_glyph.h"
#include "menu_bar/scene_layout.h"
#include "theme/colors.h"
#include "theme/device_pixels.h"
#include "theme/symbols.h"

#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double trackOpacity = 0.15;
constexpr double levelOpacity = 0.8;

QPainterPath roundedRect(const QRectF& rect, double cornerRadius) {
    QPainterPath path;
    path.addRoundedRect(rect, cornerRadius, cornerRadius);
    return path;
}

/// Moves the bar's sides to whole device pixels, because a gap of one pixel that straddles two pixels is
/// invisible. Bars and gaps narrower than a pixel stay where they are.
QRectF onWholePixels(const QPainter& painter, const QRectF& bar, double gap) {
    if (std::min(bar.width(), gap) * devicePixelsPerPoint(painter) < 1)
        return bar;
    const double left = snappedToDevicePixels(painter, bar.topLeft()).x();
    const double right = snappedToDevicePixels(painter, bar.topRight()).x();
    return {left, bar.top(), right - left, bar.height()};
}

void paintShape(QPainter& painter, const QRectF& frame, const SymbolShape& symbol,
                BarAppearance /*appearance*/) {
    paintSymbol(painter, symbol.name, frame.center(), symbol.fontSize, symbol.color);
}

void paintShape(QPainter& painter, const QRectF& frame, const TextShape& text, BarAppearance appearance) {
    const TextExtent& extent = textExtent(text);
    const QPointF baseline(frame.left(), frame.center().y() + extent.capHeight / 2);
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(snappedToDevicePixels(painter, baseline));
    if (frame.width() < extent.size.width())
        painter.scale(frame.width() / extent.size.width(), 1);
    painter.setFont(text.font);
    painter.setPen(colorOnBar(text.color, appearance));
    painter.drawText(QPointF(0, 0), text.text);
    painter.restore();
}

void paintShape(QPainter& painter, const QRectF& frame, const CoreBarsShape& bars,
                BarAppearance /*appearance*/) {
    const QList<QRectF> places = coreBarSlots(bars.levels.size(), coreBarsFrame(bars));
    const double gap = places.size() > 1 ? places.at(1).left() - places.at(0).right() : 1;
    for (qsizetype core = 0; core < places.size(); ++core) {
        const QRectF place = places.at(core).translated(frame.topLeft());
        MiniBar::paint(painter, onWholePixels(painter, place, gap), bars.levels.at(core).look);
    }
}

/// The left `width` points of a track with round corners, ended by round corners as far as there is room for
/// them: nothing extends past the track's own. `width` is above 0 and below two radii.
QPainterPath lowLevel(const QRectF& track, double radius, double width) {
    const QRectF top(track.left(), track.top(), 2 * radius, 2 * radius);
    const QRectF bottom = top.translated(0, track.height() - 2 * radius);
    const double from =
        qRadiansToDegrees(std::acos(std::min(width / radius - 1, 0.0))); // of the corner's circle
    QPainterPath path;
    path.arcMoveTo(top, from);
    path.arcTo(top, from, 180 - from);
    path.arcTo(bottom, 180, 180 - from);
    if (width > radius) {
        const QRectF end(track.left() + 2 * radius - width, top.top(), 2 * (width - radius), 2 * radius);
        path.arcTo(end.translated(0, bottom.top() - top.top()), 270, 90);
        path.arcTo(end, 0, 90);
    }
    path.closeSubpath();
    return path;
}

void paintShape(QPainter& painter, const QRectF& frame, const LevelBarShape& bar, BarAppearance appearance) {
    const double width = frame.width() * std::clamp(bar.level.look.ratio, 0.0, 1.0);
    const QColor color = withOpacity(bar.level.look.color, levelOpacity);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(roundedRect(frame, bar.cornerRadius), colorOnBar(LabelColor{trackOpacity}, appearance));
    if (width >= 2 * bar.cornerRadius)
        painter.fillPath(roundedRect({frame.topLeft(), QSizeF(width, frame.height())}, bar.cornerRadius),
                         color);
    else if (width > 0)
        painter.fillPath(lowLevel(frame, bar.cornerRadius, width), color);
    painter.restore();
}

void paintShape(QPainter& painter, const QRectF& frame, const DotsShape& dots, BarAppearance /*appearance*/) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QRectF dot(frame.topLeft(), QSizeF(dots.diameter, dots.diameter));
    for (const QColor& color : dots.colors) {
        painter.setBrush(color);
        painter.drawEllipse(dot);
        dot.translate(dots.diameter + dotSpacing, 0);
    }
    painter.restore();
}

/// Snaps to device pixels. Halves round to the left, so that the last shape of a row that just fits stays
/// inside.
void paintSnapped(QPainter& painter, const SceneNode& node, const QRectF& frame, BarAppearance appearance);

/// Paints a shape within `frame`, which has the shape's height and at most its width.
struct Painter {
    QPainter& painter;
    const QRectF& frame;
    BarAppearance appearance;

    template <class Shape>
    void operator()(const Shape& shape) const {
        paintShape(painter, frame, shape, appearance);
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
            paintSnapped(painter, node, {{left, frame.center().y() - size.height() / 2}, size}, appearance);
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
            paintSnapped(painter, node, {{frame.left() + (isCentred ? slack / 2 : slack), top}, size},
                         appearance);
            top += size.height() + column.spacing;
        }
    }
};

void paintSnapped(QPainter& painter, const SceneNode& node, const QRectF& frame, BarAppearance appearance) {
    const QPointF almostHalfAPixel(0.49 / devicePixelsPerPoint(painter), 0);
    const QRectF snapped(snappedToDevicePixels(painter, frame.topLeft() - almostHalfAPixel), frame.size());
    std::visit(Painter{painter, snapped, appearance}, node.shape);
}

/// A scene that exceeds its place by less than this, in points, is not scaled down. Scaling would blur it,
/// and its gaps, or the empty edge of a line of text, can absorb the excess.
constexpr double worthScaling = 2;

double scaleToFit(double extent, double room) {
    return extent - room < worthScaling ? 1 : room / extent;
}

} // namespace

void paintScene(QPainter& painter, const QRectF& bounds, const SceneNode& scene, BarAppearance appearance) {
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
    paintSnapped(painter, scene, {{-size.width() / 2, -size.height() / 2}, size}, appearance);
    painter.restore();
}

} // namespace orvelle
