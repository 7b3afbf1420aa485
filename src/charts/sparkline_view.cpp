#include "charts/sparkline_view.h"

#include "charts/canvas.h"
#include "charts/line_mask.h"
#include "charts/picture.h"
#include "charts/sample_points.h"
#include "charts/sparkline_rules.h"
#include "theme/device_pixels.h"
#include "theme/opacity.h"

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

} // namespace orvelle
