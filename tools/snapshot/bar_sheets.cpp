#include "charts/animated_bar_chart.h"
#include "charts/plain_bars.h"
#include "snapshot/sheets.h"
#include "snapshot/style_cases.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

constexpr QSizeF chartSize(72, 36);
constexpr double glowRoom = 11; ///< for the most intense glow

const QList<double> everyLevel = {0, 0.2, 0.4, 0.55, 0.7, 0.85, 1};

struct BarSeries {
    const char* caption;
    QList<double> values;
    double maxValue = 1;
};

const QList<BarSeries> unusualBars = {
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
    for (const BarSeries& series : unusualBars) {
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

} // namespace orvelle
