#include "charts/sparkline_view.h"

#include "charts/canvas.h"
#include "charts/line_geometry.h"
#include "charts/line_mask.h"
#include "charts/picture.h"
#include "theme/colors.h"
#include "theme/device_pixels.h"

namespace orvelle {
namespace {

constexpr double defaultFillOpacity = 0.2;
constexpr double bottomFillOpacity = 0.15;
constexpr double topFillOpacity = 0.1;
constexpr double dualLineWidth = 1;

} // namespace

void SparklineView::paint(QPainter& painter, const QRectF& bounds) const {
    const std::optional<double> scale = sparklineScale(data, maxValue);
    if (!scale || !isPaintable({width, height}))
        return;
    const Canvas canvas(painter, centred({width, height}, bounds));
    const QList<QPointF> points = visiblePoints(
        samplePoints(data, *scale, {width, height}, sparklineTopInset), 1 / devicePixelsPerPoint(painter));
    const QPainterPath line = sparklinePath(points);
    painter.fillPath(areaUnder(line, points, height),
                     fillColor.value_or(withOpacity(lineColor, defaultFillOpacity)));
    const Picture mask = lineMask(PixelGrid::under(painter), {0, 0, width, height}, line, lineWidth);
    showPicture(painter, {tinted(mask.image, lineColor), mask.offset});
}

QList<SparklineView> DualSparklineView::layers() const {
    const auto layer = [this](const QList<double>& data, const QColor& color, double fillOpacity) {
        return SparklineView{.data = data,
                             .maxValue = 0,
                             .lineColor = color,
                             .fillColor = withOpacity(color, fillOpacity),
                             .lineWidth = dualLineWidth,
                             .width = width,
                             .height = height};
    };
    return {layer(bottomData, bottomColor, bottomFillOpacity), layer(topData, topColor, topFillOpacity)};
}

void DualSparklineView::paint(QPainter& painter, const QRectF& bounds) const {
    for (const SparklineView& sparkline : layers())
        sparkline.paint(painter, bounds);
}

std::optional<double> sparklineScale(const QList<double>& data, double maxValue) {
    if (data.size() < 2)
        return std::nullopt;
    if (maxValue > 0)
        return maxValue;
    double largest = 0; // starting from zero also skips samples that are not a number
    for (const double sample : data)
        largest = sample > largest ? sample : largest;
    return largest > 0 ? std::optional(largest) : std::nullopt;
}

QPainterPath sparklinePath(const QList<QPointF>& points) {
    QPainterPath path;
    if (points.size() < 2)
        return path;
    path.reserve(static_cast<int>(points.size() * 3));
    path.moveTo(points.first());
    if (points.size() == 2) {
        path.lineTo(points.last());
        return path;
    }
    for (qsizetype index = 1; index < points.size(); ++index) {
        const QPointF& from = points[index - 1];
        const QPointF& to = points[index];
        const double middle = (from.x() + to.x()) / 2;
        path.cubicTo({middle, from.y()}, {middle, to.y()}, to);
    }
    return path;
}

} // namespace orvelle
