#include "charts/animated_line_graph.h"

#include "charts/canvas.h"
#include "charts/glow.h"
#include "charts/line_rules.h"
#include "charts/sample_points.h"

#include <QLinearGradient>

namespace orvelle {
namespace {

constexpr double gradientTopOpacity = 0.3;
constexpr double gradientBottomOpacity = 0.05;
constexpr double solidOpacity = 0.2;
constexpr double stripedAreaOpacity = 0.08;
constexpr double stripeOpacity = 0.1;
constexpr double stripeWidth = 1;
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

Glow lineGlow(const QPainterPath& line, const AnimatedLineGraph& graph, const QSizeF& canvas) {
    return {.shape = line,
            .pen = linePen(Qt::black, graph.lineWidth + glowExtraWidth),
            .color = withOpacity(graph.lineColor, glowOpacity(graph.glowIntensity)),
            .radius = glowRadius(graph.glowIntensity),
            .visible = QRectF({0, 0}, canvas)};
}

} // namespace

void AnimatedLineGraph::paint(QPainter& painter, const QRectF& bounds, GlowCache* glows) const {
    const QSizeF size(bounds.width(), height);
    if (series().size() < 2 || !isPaintable(size))
        return;
    const Canvas canvas(painter, centred(size, bounds));
    const QList<QPointF> points =
        visiblePoints(samplePoints(series(), lineGraphScale(maxValue), size), canvas.pixelWidth());
    const QPainterPath line = linePath(points, lineStyle);
    if (fillGradient)
        drawFill(painter, areaUnder(line, points, size.height()), *this, size);
    if (showGlow)
        paintGlow(painter, lineGlow(line, *this, size), glows);
    if (lineWidth > 0)
        painter.strokePath(line, graphLinePen(lineColor, lineWidth, lineStyle));
    const auto quarters = gridLineHeights(size.height());
    drawLevels(painter, gridColor, gridLineWidth, {quarters.cbegin(), quarters.cend()}, size.width());
}

} // namespace orvelle
