#include "charts/animated_line_graph.h"

#include "charts/canvas.h"
#include "charts/glow.h"
#include "charts/line_geometry.h"
#include "theme/colors.h"
#include "theme/device_pixels.h"

#include <QLinearGradient>

#include <algorithm>

namespace orvelle {
namespace {

constexpr double smallestScale = 0.001;
constexpr double gradientTopOpacity = 0.3;
constexpr double gradientBottomOpacity = 0.05;
constexpr double solidOpacity = 0.2;
constexpr double stripedAreaOpacity = 0.08;
constexpr double stripeOpacity = 0.1;
constexpr double stripeWidth = 1;
/// Between two stripes of the striped fill; the first lies on the top edge.
constexpr double stripeDistance = 4;
constexpr double gridLineWidth = 0.5;
/// How much wider than the line its glow is stroked.
constexpr double glowExtraWidth = 2;

void drawLevels(QPainter& painter, const QColor& color, double lineWidth, const QList<double>& levels,
                double canvasWidth) {
    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::FlatCap));
    for (const double level : levels)
        painter.drawLine(QPointF(0, level), QPointF(canvasWidth, level));
}

/// The stripes run over the whole canvas, not only under the line.
void drawStripes(QPainter& painter, const QColor& lineColor, const QSizeF& canvas) {
    QList<double> levels;
    for (int stripe = 0; stripe * stripeDistance < canvas.height(); ++stripe)
        levels.append(stripe * stripeDistance);
    drawLevels(painter, withOpacity(lineColor, stripeOpacity), stripeWidth, levels, canvas.width());
}

void drawFill(QPainter& painter, const QPainterPath& area, const AnimatedLineGraph& graph,
              const QSizeF& canvas) {
    switch (graph.fillStyle) {
    case GraphFillStyle::gradient: {
        QLinearGradient fade(0, 0, 0, canvas.height());
        fade.setColorAt(0, withOpacity(graph.lineColor, gradientTopOpacity));
        fade.setColorAt(1, withOpacity(graph.lineColor, gradientBottomOpacity));
        painter.fillPath(area, fade);
        break;
    }
    case GraphFillStyle::solid:
        painter.fillPath(area, withOpacity(graph.lineColor, solidOpacity));
        break;
    case GraphFillStyle::striped:
        painter.fillPath(area, withOpacity(graph.lineColor, stripedAreaOpacity));
        drawStripes(painter, graph.lineColor, canvas);
        break;
    case GraphFillStyle::none:
        break;
    }
}

void drawLine(QPainter& painter, const QPainterPath& line, const AnimatedLineGraph& graph,
              const QRectF& canvas) {
    const PixelGrid grid = PixelGrid::under(painter);
    const Picture mask = lineMask(grid, canvas, line, graph.lineWidth, lineDashes(graph.lineStyle));
    showPicture(painter, {tinted(mask.image, graph.lineColor), mask.offset});
}

void drawGlow(QPainter& painter, const QPainterPath& line, const AnimatedLineGraph& graph,
              const QRectF& canvas) {
    const GlowStyle style = GlowStyle::of(graph.lineColor, graph.glowIntensity);
    if (!style.isVisible())
        return;
    const QRectF area = withGlowRoom(canvas, style.radius);
    const double width = std::max(graph.lineWidth, 0.0) + glowExtraWidth;
    paintGlow(painter, lineMask(PixelGrid::under(painter), area, line, width), style);
}

void drawGrid(QPainter& painter, const QColor& color, const QSizeF& canvas) {
    const auto quarters = gridLineHeights(canvas.height());
    drawLevels(painter, color, gridLineWidth, {quarters.cbegin(), quarters.cend()}, canvas.width());
}

void drawGraph(QPainter& painter, const AnimatedLineGraph& graph, const QSizeF& size) {
    const QRectF canvas({0, 0}, size);
    const QList<QPointF> samples = samplePoints(graph.series(), lineGraphScale(graph.maxValue), size);
    const QList<QPointF> points = visiblePoints(samples, 1 / devicePixelsPerPoint(painter));
    const QPainterPath line = linePath(points, graph.lineStyle);
    if (graph.fillGradient)
        drawFill(painter, areaUnder(line, points, size.height()), graph, size);
    if (graph.showGlow)
        drawGlow(painter, line, graph, canvas);
    drawLine(painter, line, graph, canvas);
    drawGrid(painter, graph.gridColor, size);
}

} // namespace

void AnimatedLineGraph::paint(QPainter& painter, const QRectF& bounds,
                              PictureCache<AnimatedLineGraph>* cache) const {
    const QSizeF size(bounds.width(), height);
    if (series().size() < 2 || !isPaintable(size))
        return;
    const Canvas canvas(painter, centred(size, bounds));
    const auto draw = [&](QPainter& target) { drawGraph(target, *this, size); };
    showKept(painter, cache, *this, QRectF({0, 0}, size), draw);
}

double lineGraphScale(double maxValue) {
    return maxValue > smallestScale ? maxValue : smallestScale;
}

std::optional<DashPattern> lineDashes(GraphLineStyle style) {
    if (style == GraphLineStyle::dotted)
        return DashPattern{.dash = 3, .gap = 4};
    return std::nullopt;
}

} // namespace orvelle
