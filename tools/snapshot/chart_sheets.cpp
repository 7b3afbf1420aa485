#include "animation/animation_timing.h"
#include "charts/animated_bar_chart.h"
#include "charts/animated_line_graph.h"
#include "charts/plain_bars.h"
#include "charts/ring_charts.h"
#include "charts/sparkline_view.h"
#include "charts/temperature_gauge.h"
#include "snapshot/sheets.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

struct Series {
    const char* caption;
    QList<double> values;
    double maxValue = 1;
};

// Bars.

constexpr QSizeF chartSize(72, 36);
constexpr double glowRoom = 11; ///< for the most intense glow

const QList<double> everyLevel = {0, 0.2, 0.4, 0.55, 0.7, 0.85, 1};

const QList<Series> unusualBars = {
    {"all idle", {0, 0, 0, 0, 0, 0, 0, 0}},
    {"above the maximum", {1.4, 2, 9}},
    {"no maximum", {1, 2, 3, 4}, 0},
    {"24 values", {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1,   0.9, 0.8,
                   0.7, 0.6, 0.5, 0.4, 0.3, 0.2, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6}},
};

SheetCell barCell(const QString& caption, const AnimatedBarChart& chart) {
    return cellWithRoom(caption, chartSize, glowRoom,
                        [chart](QPainter& painter, const QRectF& frame) { chart.paint(painter, frame); });
}

AnimatedBarChart barChart(BarChartStyle style, const QList<double>& values) {
    return {
        .values = values, .baseColor = SystemColors::blue, .height = chartSize.height(), .barStyle = style};
}

SheetRow barRowOf(BarChartStyle style) {
    SheetRow row{.title = caseName(style), .cells = {}};
    for (const GlowIntensity glow : everyCase<GlowIntensity>()) {
        AnimatedBarChart chart = barChart(style, everyLevel);
        chart.glowIntensity = glow;
        row.cells.append(barCell(QStringLiteral("glow %1").arg(caseName(glow)), chart));
    }
    for (const Series& series : unusualBars) {
        AnimatedBarChart chart = barChart(style, series.values);
        chart.maxValue = series.maxValue;
        row.cells.append(barCell(QString::fromLatin1(series.caption), chart));
    }
    return row;
}

/// Bars as the CPU item lays them out: two and a half points wide, one point apart.
SheetCell miniBarCell(const QString& caption, const QList<double>& values) {
    constexpr double barWidth = 2.5;
    constexpr double step = 3.5;
    const auto count = static_cast<double>(values.size());
    return {.caption = caption,
            .size = {count * step - 1, 14},
            .paint = [values](QPainter& painter, const QRectF& frame) {
                QRectF slot(frame.topLeft(), QSizeF(barWidth, frame.height()));
                for (const double value : values) {
                    MiniBar{.value = value, .color = SystemColors::blue}.paint(painter, slot);
                    slot.translate(step, 0);
                }
            }};
}

SheetCell wideMiniBarCell(double value) {
    return {.caption = QString::number(value),
            .size = {24, 28},
            .paint = [value](QPainter& painter, const QRectF& frame) {
                MiniBar{.value = value, .color = SystemColors::blue}.paint(painter, frame);
            }};
}

// Lines.

constexpr QSizeF graphSize(92, 44);
constexpr double graphRoom = 2; ///< a graph paints nothing outside its canvas

const QList<double> lively = {0.2, 0.25, 0.22, 0.6, 0.85, 0.5, 0.48, 0.9, 0.3, 0.1, 0.12, 0.4, 0.7, 0.65};
const QList<double> other = {0.6, 0.5, 0.52, 0.3, 0.1, 0.15, 0.4, 0.2, 0.7, 0.8, 0.6, 0.3, 0.2, 0.35};

/// 300 samples that go up and down, each rise a little longer than the last.
QList<double> manySamples() {
    QList<double> samples;
    for (int index = 0; index < 300; ++index)
        samples.append(static_cast<double>(index * index / 40 % 97) / 100);
    return samples;
}

QList<Series> unusualLines() {
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
    for (const Series& series : unusualLines()) {
        AnimatedLineGraph graph = lineGraph(GraphLineStyle::smooth, GraphFillStyle::gradient, gridColor);
        graph.data = series.values;
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
    for (const Series& series : unusualLines())
        row.cells.append(sparklineCell(QString::fromLatin1(series.caption),
                                       sparkline(series.values, series.maxValue, {64, 24})));
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

// Rings and gauges.

constexpr double ringSize = 64;
constexpr double ringLineWidth = 7;
constexpr double ringRoom = 15; ///< for half the stroke and the most intense glow
constexpr QSizeF gaugeSize(80, 90);
constexpr double gaugeRoom = 10;

/// Shows on both backgrounds.
constexpr QColor trackColor(128, 128, 128, 60);

SheetCell ringCell(const QString& caption, const AnimatedRingChart& ring) {
    return cellWithRoom(caption, {ringSize, ringSize}, ringRoom,
                        [ring](QPainter& painter, const QRectF& frame) { ring.paint(painter, frame); });
}

AnimatedRingChart ringChart(RingChartStyle style, double value) {
    AnimatedRingChart ring{.value = value,
                           .lineWidth = ringLineWidth,
                           .size = ringSize,
                           .baseColor = SystemColors::blue,
                           .trackColor = trackColor,
                           .sublabel = QStringLiteral("used"),
                           .ringStyle = style};
    ring.animatedValue = ring.target();
    ring.label = QStringLiteral("%1%").arg(ring.target() * 100);
    return ring;
}

AnimatedRingChart pulsingRing(RingChartStyle style) {
    AnimatedRingChart ring = ringChart(style, 0.95);
    ring.pulseCritical = true;
    ring.pulseScale = pulseLargestScale;
    return ring;
}

SheetRow ringRowOf(RingChartStyle style) {
    SheetRow row{.title = caseName(style), .cells = {}};
    for (const GlowIntensity glow : everyCase<GlowIntensity>()) {
        AnimatedRingChart ring = ringChart(style, 0.45);
        ring.glowIntensity = glow;
        row.cells.append(ringCell(QStringLiteral("glow %1").arg(caseName(glow)), ring));
    }
    for (const double value : {-0.2, 0.6, 0.8, 1.4})
        row.cells.append(ringCell(QString::number(value), ringChart(style, value)));
    row.cells.append(ringCell(QStringLiteral("largest pulse"), pulsingRing(style)));
    return row;
}

SheetCell segmentCell(const QString& caption, const QList<double>& values, double progress = 1) {
    const QList<QColor> colors = {SystemColors::blue, SystemColors::orange, SystemColors::purple,
                                  SystemColors::green};
    MultiSegmentRing ring{
        .lineWidth = ringLineWidth, .size = ringSize, .trackColor = trackColor, .animatedProgress = progress};
    for (qsizetype index = 0; index < values.size(); ++index)
        ring.segments.append({.value = values.at(index), .color = colors.at(index % colors.size())});
    return cellWithRoom(caption, {ringSize, ringSize}, ringLineWidth / 2 + 1,
                        [ring](QPainter& painter, const QRectF& frame) { ring.paint(painter, frame); });
}

SheetCell gaugeCell(const QString& caption, const TemperatureGauge& gauge) {
    return cellWithRoom(caption, gaugeSize, gaugeRoom,
                        [gauge](QPainter& painter, const QRectF& frame) { gauge.paint(painter, frame); });
}

TemperatureGauge temperatureGauge(double celsius) {
    return {.label = QStringLiteral("CPU"), .temperature = celsius};
}

SheetRow glowingGauges() {
    SheetRow row{.title = QStringLiteral("glow"), .cells = {}};
    for (const GlowIntensity glow : everyCase<GlowIntensity>()) {
        TemperatureGauge gauge = temperatureGauge(62);
        gauge.glowIntensity = glow;
        row.cells.append(gaugeCell(caseName(glow), gauge));
    }
    TemperatureGauge fahrenheit = temperatureGauge(100);
    fahrenheit.useFahrenheit = true;
    row.cells.append(gaugeCell(QStringLiteral("Fahrenheit"), fahrenheit));
    TemperatureGauge longCaption = temperatureGauge(45);
    longCaption.label = QStringLiteral("Package id 0 of the processor");
    row.cells.append(gaugeCell(QStringLiteral("long caption"), longCaption));
    return row;
}

SheetRow gaugesOfAllTemperatures() {
    SheetRow row{.title = QStringLiteral("temperature"), .cells = {}};
    for (const double celsius : {0.0, 35.0, 69.0, 89.0, 130.0})
        row.cells.append(gaugeCell(QString::number(celsius), temperatureGauge(celsius)));
    TemperatureGauge withoutMaximum = temperatureGauge(50);
    withoutMaximum.maxTemp = 0;
    row.cells.append(gaugeCell(QStringLiteral("no maximum"), withoutMaximum));
    return row;
}

} // namespace

Sheet barChartSheet() {
    Sheet sheet{.name = QStringLiteral("bar-charts"), .rows = {}};
    for (const BarChartStyle style : everyCase<BarChartStyle>())
        sheet.rows.append(barRowOf(style));
    return sheet;
}

Sheet miniBarSheet() {
    SheetRow levels{.title = QStringLiteral("fraction"), .cells = {}};
    for (const double value : {0.0, 0.25, 0.49, 0.5, 0.74, 0.75, 1.0, 1.4})
        levels.cells.append(wideMiniBarCell(value));
    const SheetRow cores{.title = QStringLiteral("cores of a menu-bar item"),
                         .cells = {miniBarCell(QStringLiteral("2"), {0.3, 0.8}),
                                   miniBarCell(QStringLiteral("4"), {0.05, 0.35, 0.6, 0.9}),
                                   miniBarCell(QStringLiteral("8 idle"), QList<double>(8, 0)),
                                   miniBarCell(QStringLiteral("8 busy"), QList<double>(8, 1)),
                                   miniBarCell(QStringLiteral("12"), {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8,
                                                                      0.9, 1, 0.45, 0.15})}};
    return {.name = QStringLiteral("mini-bars"), .rows = {levels, cores}};
}

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

Sheet ringChartSheet() {
    Sheet sheet{.name = QStringLiteral("ring-charts"), .rows = {}};
    for (const RingChartStyle style : everyCase<RingChartStyle>())
        sheet.rows.append(ringRowOf(style));
    return sheet;
}

Sheet segmentRingSheet() {
    return {.name = QStringLiteral("segment-rings"),
            .rows = {{.title = QStringLiteral("segments"),
                      .cells = {segmentCell(QStringLiteral("four"), {5, 3, 1, 2}),
                                segmentCell(QStringLiteral("equal"), {1, 1}),
                                segmentCell(QStringLiteral("one"), {7}),
                                segmentCell(QStringLiteral("a tiny one"), {99, 1}),
                                segmentCell(QStringLiteral("all 0"), {0, 0, 0}),
                                segmentCell(QStringLiteral("opening, 0.6"), {5, 3, 1, 2}, 0.6)}}}};
}

Sheet temperatureGaugeSheet() {
    return {.name = QStringLiteral("temperature-gauges"),
            .rows = {glowingGauges(), gaugesOfAllTemperatures()}};
}

QList<Sheet> chartSheets() {
    return {barChartSheet(),  miniBarSheet(),     lineGraphSheet(),       sparklineSheet(),
            ringChartSheet(), segmentRingSheet(), temperatureGaugeSheet()};
}

} // namespace orvelle
