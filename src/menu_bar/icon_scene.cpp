#include "menu_bar/icon_scene.h"

#include "charts/plain_bars.h"
#include "menu_bar/menu_bar_item.h"
#include "menu_bar/scene_painter.h"
#include "theme/colors.h"
#include "theme/fonts.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvelle {
namespace {

constexpr QColor plateColor(30, 30, 32); // the bar's
constexpr double plateRadius = 5;
constexpr double plateMargin = 2;
constexpr double wholeSymbolSize = 14;
constexpr double symbolAboveLevelSize = 11;
constexpr double digitsSize = 12;
constexpr double levelSpacing = 1;
constexpr QSizeF levelSize(16, 3);
constexpr double levelRadius = 1.5;
constexpr qsizetype mostBars = 6;
constexpr double barsWidth = 17;
constexpr double widestBar = 5;
constexpr double barsHeight = 16;

SceneNode aboveLevel(const SceneNode& node, double fraction, const QColor& color) {
    return column({node, levelBarNode(levelSize, levelRadius, std::min(fraction, 1.0), color, false)},
                  levelSpacing, ColumnAlignment::center);
}

} // namespace

void paintIcon(QPainter& painter, const QRectF& square, const SceneNode& body) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plateColor);
    painter.drawRoundedRect(square, plateRadius, plateRadius);
    painter.restore();
    paintScene(painter, square.adjusted(plateMargin, plateMargin, -plateMargin, -plateMargin), body,
               BarAppearance::dark);
}

SceneNode iconSymbol(const QString& symbol, const QColor& color) {
    return symbolNode(symbol, wholeSymbolSize, color);
}

SceneNode iconSymbolAndLevel(const QString& symbol, double fraction, const QColor& color) {
    return aboveLevel(symbolNode(symbol, symbolAboveLevelSize, color), fraction, color);
}

SceneNode iconDigitsAndLevel(double fraction, const QColor& color) {
    const double percent = std::clamp(std::round(fraction * 100), 0.0, 100.0);
    const QFont font = monospacedSystemFont(digitsSize, QFont::Bold);
    return aboveLevel(textNode(QString::number(percent), font, primaryLabel), fraction, color);
}

SceneNode iconBars(const QList<double>& loads, const QColor& color) {
    const QList<double> shown = groupMeans(loads, mostBars);
    const auto count = static_cast<double>(shown.size());
    const double barWidth = std::min(widestBar, std::floor((barsWidth + 1) / std::max(1.0, count)) - 1);
    CoreBarsShape bars{.levels = {}, .frame = QSizeF(count * (barWidth + 1) - 1, barsHeight)};
    for (const double load : shown)
        bars.levels.append({.look = MiniBar{.value = load, .color = color}.look(), .fullLength = barsHeight});
    return {bars};
}

QList<double> groupMeans(const QList<double>& numbers, qsizetype mostGroups) {
    const qsizetype groups = std::min(numbers.size(), mostGroups);
    QList<double> means;
    for (qsizetype group = 0; group < groups; ++group) {
        const auto first = numbers.begin() + group * numbers.size() / groups;
        const auto last = numbers.begin() + (group + 1) * numbers.size() / groups;
        means.append(std::accumulate(first, last, 0.0) / static_cast<double>(last - first));
    }
    return means;
}

} // namespace orvelle
