#include "charts/animated_line_graph.h"
#include "charts/sparkline_view.h"
#include "snapshot/sheets.h"
#include "snapshot/style_cases.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

constexpr QSizeF graphSize(92, 44);
constexpr double graphRoom = 2; ///< a graph paints nothing outside its canvas

const QList<double> lively = {0.2, 0.25, 0.22, 0.6, 0.85, 0.5, 0.48, 0.9, 0.3, 0.1, 0.12, 0.4, 0.7, 0.65};
const QList<double> other = {0.6, 0.5, 0.52, 0.3, 0.1, 0.15, 0.4, 0.2, 0.7, 0.8, 0.6, 0.3, 0.2, 0.35};

struct LineSeries {
    const char* caption;
    QList<double> data;
    double maxValue = 1;
};

/// 300 samples that go up and down, each rise a little longer than the last.
QList<double> manySamples() {
    QList<double> samples;
    for (int index = 0; index < 300; ++index)
        samples.append(static_cast<double>(index * index / 40 % 97) / 100);
    return samples;
}

QList<LineSeries> unusualLines() {
    return {{"one sample", {0.5}},
            {"two samples", {0.2, 0.8}},
            {"all zero", {0, 0, 0, 0}},
            {"above the maximum", {0.5, 1.5, 0.5, 3}},
            {"below zero", {0.5, -0.5, 0.5}},
            {"no maximum", {0, 1, 0, 2}, 0},
            {"300 samples", manySamples()}};
}

AnimatedLineGraph lineGraph(GraphLineStyle line, GraphFillStyle fill, const QColor& grid) {
    return {.data = lively,
            .lineColor = SystemColors::blue,
            .height = graphSize.height(),
            .lineStyle = line,
            .fillStyle = fill,
            .gridColor = grid};
}

/// Light enough on dark and dark enough on light.
constexpr QColor gridColor(128, 128, 128, 90);

SheetCell graphCell(const QString& caption, const AnimatedLineGraph& graph) {
    return cellWithRoom(caption, graphSize, graphRoom,
                        [graph](QPainter& painter, const QRectF& frame) { graph.paint(painter, frame); });
}

SheetRow graphRowOf(GraphLineStyle line) {
    SheetRow row{.title = caseName(line), .cells = {}};
    for (const GraphFillStyle fill : everyCase<GraphFillStyle>())
        row.cells.append(
            graphCell(QStringLiteral("fill %1").arg(caseName(fill)), lineGraph(line, fill, gridColor)));
    for (const GlowIntensity glow : everyCase<GlowIntensity>()) {
        AnimatedLineGraph graph = lineGraph(line, GraphFillStyle::none, Qt::transparent);
        graph.glowIntensity = glow;
        row.cells.append(graphCell(QStringLiteral("glow %1").arg(caseName(glow)), graph));
    }
    return row;
}

SheetRow unusualGraphs() {
    SheetRow row{.title = QStringLiteral("other data"), .cells = {}};
    for (const LineSeries& series : unusualLines()) {
        AnimatedLineGraph graph = lineGraph(GraphLineStyle::smooth, GraphFillStyle::gradient, gridColor);
        graph.data = series.data;
        graph.maxValue = series.maxValue;
        row.cells.append(graphCell(QString::fromLatin1(series.caption), graph));
    }
    return row;
}

template <typename Sparkline>
SheetCell sparklineCell(const QString& caption, const Sparkline& sparkline) {
    return cellWithRoom(
        caption, {sparkline.width, sparkline.height}, graphRoom,
        [sparkline](QPainter& painter, const QRectF& frame) { sparkline.paint(painter, frame); });
}

SparklineView sparkline(const QList<double>& data, double maxValue, const QSizeF& size) {
    return {.data = data,
            .maxValue = maxValue,
            .lineColor = SystemColors::blue,
            .width = size.width(),
            .height = size.height()};
}

DualSparklineView dualSparkline(const QList<double>& top, const QList<double>& bottom, const QSizeF& size) {
    return {.topData = top,
            .bottomData = bottom,
            .topColor = SystemColors::cyan,
            .bottomColor = SystemColors::orange,
            .width = size.width(),
            .height = size.height()};
}

SheetRow sparklinesOfAllSizes() {
    SparklineView faintFill = sparkline(lively, 1, {32, 12});
    faintFill.fillColor = withOpacity(SystemColors::blue, 0.15);
    SparklineView thick = sparkline(lively, 1, {64, 24});
    thick.lineWidth = 2;
    return {.title = QStringLiteral("single"),
            .cells = {sparklineCell(QStringLiteral("24 x 10"), sparkline(lively, 1, {24, 10})),
                      sparklineCell(QStringLiteral("32 x 12"), sparkline(lively, 1, {32, 12})),
                      sparklineCell(QStringLiteral("faint fill"), faintFill),
                      sparklineCell(QStringLiteral("64 x 24"), sparkline(lively, 1, {64, 24})),
                      sparklineCell(QStringLiteral("line 2"), thick),
                      sparklineCell(QStringLiteral("scaled to data"), sparkline({1, 2, 4}, 0, {64, 24}))}};
}

SheetRow unusualSparklines() {
    SheetRow row{.title = QStringLiteral("single, other data"), .cells = {}};
    for (const LineSeries& series : unusualLines())
        row.cells.append(sparklineCell(QString::fromLatin1(series.caption),
                                       sparkline(series.data, series.maxValue, {64, 24})));
    return row;
}

SheetRow dualSparklines() {
    return {.title = QStringLiteral("dual"),
            .cells = {sparklineCell(QStringLiteral("28 x 12"), dualSparkline(lively, other, {28, 12})),
                      sparklineCell(QStringLiteral("32 x 14"), dualSparkline(lively, other, {32, 14})),
                      sparklineCell(QStringLiteral("36 x 14"), dualSparkline(lively, other, {36, 14})),
                      sparklineCell(QStringLiteral("64 x 24"), dualSparkline(lively, other, {64, 24})),
                      sparklineCell(QStringLiteral("top only"), dualSparkline(lively, {0, 0}, {64, 24})),
                      sparklineCell(QStringLiteral("bottom only"), dualSparkline({0, 0}, other, {64, 24}))}};
}

} // namespace

Sheet lineGraphSheet() {
    Sheet sheet{.name = QStringLiteral("line-graphs"), .rows = {}};
    for (const GraphLineStyle line : everyCase<GraphLineStyle>())
        sheet.rows.append(graphRowOf(line));
    sheet.rows.append(unusualGraphs());
    return sheet;
}

Sheet sparklineSheet() {
    return {.name = QStringLiteral("sparklines"),
            .rows = {sparklinesOfAllSizes(), unusualSparklines(), dualSparklines()}};
}

} // namespace orvelle
