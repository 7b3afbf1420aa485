#include "menu_bar/menu_bar_item.h"

#include "core/checked.h"
#include "theme/colors.h"
#include "theme/fonts.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double historyFillOpacity = 0.15;

} // namespace

SceneNode symbolNode(const QString& name, double fontSize, const QColor& color) {
    return {SymbolShape{.name = name, .fontSize = fontSize, .color = color}};
}

SceneNode iconNode(const QString& name, const QColor& color) {
    return symbolNode(name, iconFontSize, color);
}

SceneNode textNode(const QString& text, const QFont& font, const TextColor& color) {
    return {TextShape{.text = text, .font = font, .color = color}};
}

SceneNode valueNode(const QString& text, double fontSize) {
    return textNode(text, monospacedSystemFont(fontSize, QFont::Medium), primaryLabel);
}

SceneNode dotsNode(const QList<QColor>& colors, double diameter) {
    return {DotsShape{.colors = colors, .diameter = diameter}};
}

SceneNode levelBarNode(const QSizeF& size, double cornerRadius, double fraction, const QColor& color,
                       bool eases) {
    return {LevelBarShape{.size = size,
                          .cornerRadius = cornerRadius,
                          .level = {.look = {fraction, color}, .fullLength = size.width(), .eases = eases}}};
}

SceneNode historyNode(const QList<double>& history, const QColor& color, double maxValue,
                      const QSizeF& size) {
    return {SparklineView{.data = recentSamples(history),
                          .maxValue = maxValue,
                          .lineColor = color,
                          .fillColor = withOpacity(color, historyFillOpacity),
                          .lineWidth = 1,
                          .width = size.width(),
                          .height = size.height()}};
}

QString widestPercent() {
    return QStringLiteral("100%");
}

QList<double> recentSamples(const QList<double>& history) {
    return history.last(std::min(history.size(), recentSampleCount));
}

qsizetype litDotCount(double level, qsizetype dotCount) {
    return std::clamp<qsizetype>(checkedTruncate(level), 0, dotCount);
}

QList<QColor> meterColors(const QColor& color, qsizetype litCount, qsizetype dotCount, double dimmedOpacity) {
    QList<QColor> colors;
    for (qsizetype dot = 0; dot < dotCount; ++dot)
        colors.append(dot < litCount ? color : withOpacity(color, dimmedOpacity));
    return colors;
}

bool isActive(double bytesPerSecond) {
    constexpr double idleBytesPerSecond = 1024;
    return bytesPerSecond > idleBytesPerSecond;
}

QColor activityDotColor(double bytesPerSecond, const QColor& color) {
    constexpr double idleOpacity = 0.2;
    return isActive(bytesPerSecond) ? color : withOpacity(color, idleOpacity);
}

} // namespace orvelle
