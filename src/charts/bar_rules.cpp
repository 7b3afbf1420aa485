#include "charts/bar_rules.h"

#include "charts/continuous_rounded_rect.h"
#include "charts/glow.h"
#include "theme/system_colors.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double halfFull = 0.5;
constexpr double threeQuartersFull = 0.75;
/// Each of the two colour ramps covers a quarter of the scale.
constexpr double rampsPerScale = 4;
constexpr double amberGreen = 0.85;

QColor opaque(double red, double green, double blue) {
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

/// The sRGB form of a colour; white for one that has none.
QColor inSRgb(const QColor& color) {
    return color.isValid() ? color.toRgb() : QColor(SystemColors::white);
}

} // namespace

double barFillRatio(double value, double maxValue) {
    if (!(maxValue > 0))
        return 0;
    const double ratio = value / maxValue;
    return std::isnan(ratio) ? 0 : std::clamp(ratio, 0.0, 1.0);
}

double barHeight(double ratio, double availableHeight) {
    const double height = ratio * availableHeight;
    return height > smallestBarHeight ? height : smallestBarHeight;
}

QColor barColor(double ratio, const QColor& baseColor) {
    if (!(ratio >= halfFull))
        return baseColor;
    if (ratio < threeQuartersFull) {
        const double blend = (ratio - halfFull) * rampsPerScale;
        const QColor base = inSRgb(baseColor);
        return opaque(blend + (1 - blend) * base.redF(), blend * amberGreen + (1 - blend) * base.greenF(),
                      (1 - blend) * base.blueF());
    }
    const double redness = std::min((ratio - threeQuartersFull) * rampsPerScale, 1.0);
    return opaque(1, (1 - redness) * amberGreen, 0);
}

double barCornerRadius(BarChartStyle style) {
    switch (style) {
    case BarChartStyle::rounded:
        return 3;
    case BarChartStyle::square:
        return 0;
    case BarChartStyle::pill:
        return 50; // more than half of any bar's width: a capsule
    case BarChartStyle::thinLine:
        return 0.5;
    }
    return 0;
}

double barSpacingFor(BarChartStyle style, double spacing) {
    constexpr double airySpacing = 3;
    const bool isAiry = style == BarChartStyle::pill || style == BarChartStyle::thinLine;
    return isAiry ? std::max(airySpacing, spacing) : spacing;
}

BarRow barRow(qsizetype count, double width, double spacing) {
    if (count < 1)
        return {};
    const auto slotCount = static_cast<double>(count);
    const double slotWidth = (width - spacing * (slotCount - 1)) / slotCount;
    const double asWideAsGaps = width / (2 * slotCount - 1);
    const double leastWidth = std::min(smallestBarWidth, asWideAsGaps);
    if (slotWidth >= leastWidth)
        return {slotWidth, spacing};
    return {leastWidth, (width - leastWidth * slotCount) / (slotCount - 1)};
}

double barWidth(BarChartStyle style, double slotWidth) {
    constexpr double thinShare = 0.3;
    constexpr double thinnest = 1.5;
    return style == BarChartStyle::thinLine ? std::max(slotWidth * thinShare, thinnest) : slotWidth;
}

QPainterPath barShape(BarChartStyle style, const QRectF& slot, double height, double cornerRadius) {
    const double width = barWidth(style, slot.width());
    const QRectF bar(slot.center().x() - width / 2, slot.bottom() - height, width, height);
    switch (style) {
    case BarChartStyle::rounded:
    case BarChartStyle::square:
        return continuousRoundedRect(bar, cornerRadius);
    case BarChartStyle::pill:
        return continuousCapsule(bar);
    case BarChartStyle::thinLine:
        return continuousRoundedRect(bar, barCornerRadius(BarChartStyle::thinLine));
    }
    return {};
}

double barGlowRadius(BarChartStyle style, GlowIntensity intensity) {
    return style == BarChartStyle::thinLine ? glowRadius(intensity) / 2 : glowRadius(intensity);
}

QColor miniBarColor(double fraction, const QColor& color) {
    if (fraction >= threeQuartersFull)
        return SystemColors::red;
    if (fraction >= halfFull)
        return SystemColors::yellow;
    return color;
}

} // namespace orvelle
