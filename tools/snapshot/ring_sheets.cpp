#include "animation/animation_timing.h"
#include "charts/ring_charts.h"
#include "charts/temperature_gauge.h"
#include "snapshot/sheets.h"
#include "snapshot/style_cases.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

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

} // namespace orvelle
