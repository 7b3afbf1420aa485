#include "charts/animated_bar_chart.h"

#include "charts/canvas.h"
#include "charts/continuous_rounded_rect.h"
#include "charts/glow.h"
#include "theme/colors.h"
#include "theme/device_pixels.h"

#include <QLinearGradient>

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double smallestWidth = 1; ///< of a slot
constexpr double topOpacity = 0.9;
constexpr double bottomOpacity = 0.6;
/// The glow sits one point higher than the bar.
constexpr double glowRise = 1;

QBrush barBrush(BarChartStyle style, const QColor& color, double top, double bottom) {
    if (style == BarChartStyle::thinLine)
        return color;
    QLinearGradient fade(0, top, 0, bottom);
    fade.setColorAt(0, withOpacity(color, topOpacity));
    fade.setColorAt(1, withOpacity(color, bottomOpacity));
    return fade;
}

/// Draws the bar in a slot whose top-left corner is the origin.
void drawBar(QPainter& painter, const AnimatedBar& bar, const QSizeF& slotSize, const BarLook& shown) {
    const QRectF slot({0, 0}, slotSize);
    const double height = barHeight(shown.ratio, slot.height());
    const QPainterPath shape = barShape(bar.barStyle, slot, height, bar.cornerRadius);
    const QBrush brush = barBrush(bar.barStyle, shown.color, slot.bottom() - height, slot.bottom());
    if (bar.showGlow) {
        GlowStyle style = GlowStyle::of(shown.color, bar.glowIntensity);
        style.radius = barGlowRadius(bar.barStyle, bar.glowIntensity);
        paintGlow(painter, shape.boundingRect().translated(0, -glowRise), style, [&](QPainter& mask) {
            mask.translate(0, -glowRise);
            mask.fillPath(shape, brush);
        });
    }
    painter.fillPath(shape, brush);
}

AnimatedBar barOf(const AnimatedBarChart& chart, double value) {
    return {.value = value,
            .maxValue = chart.maxValue,
            .cornerRadius = barCornerRadius(chart.barStyle),
            .baseColor = chart.baseColor,
            .showGlow = chart.showGlow,
            .barStyle = chart.barStyle,
            .glowIntensity = chart.glowIntensity};
}

/// At most `largestCount` looks, each the tallest of an equal share of all.
QList<BarLook> tallestLooks(const QList<BarLook>& looks, qsizetype largestCount) {
    if (looks.size() <= largestCount)
        return looks;
    const qsizetype share = (looks.size() + largestCount - 1) / largestCount;
    QList<BarLook> tallest;
    for (qsizetype first = 0; first < looks.size(); first += share) {
        const auto begin = looks.cbegin() + first;
        const auto end = looks.cbegin() + std::min(first + share, looks.size());
        tallest.append(*std::ranges::max_element(begin, end, {}, &BarLook::ratio));
    }
    return tallest;
}

} // namespace

BarLook AnimatedBar::look() const {
    const double ratio = barFillRatio(value, maxValue);
    return {ratio, barColor(ratio, baseColor)};
}

double AnimatedBar::overhang() const {
    return showGlow ? glowReach(barGlowRadius(barStyle, glowIntensity)) + glowRise : 0;
}

void AnimatedBar::paint(QPainter& painter, const QRectF& slot, const BarLook& shown,
                        PictureCache<BarPicture>* cache, std::size_t index) const {
    if (!isPaintable(slot.size()))
        return;
    const double width = barWidth(barStyle, slot.width());
    const double height = std::max(barHeight(shown.ratio, slot.height()), slot.height());
    const QRectF inked(slot.width() / 2 - width / 2, slot.height() - height, width, height);
    const double room = overhang();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(slot.topLeft());
    const auto draw = [&](QPainter& target) { drawBar(target, *this, slot.size(), shown); };
    showKept(painter, cache, BarPicture{*this, shown}, inked.adjusted(-room, -room, room, room), draw, index);
    painter.restore();
}

QList<AnimatedBar> AnimatedBarChart::bars() const {
    QList<AnimatedBar> result;
    result.reserve(values.size());
    for (const double value : values)
        result.append(barOf(*this, value));
    return result;
}

QList<QRectF> AnimatedBarChart::barSlots(const QRectF& bounds, qsizetype count) const {
    const QRectF frame = centred({bounds.width(), height}, bounds);
    const BarRow row = barRow(count, frame.width(), barSpacingFor(barStyle, barSpacing));
    QList<QRectF> result;
    result.reserve(count);
    for (qsizetype index = 0; index < count; ++index) {
        const double left = frame.left() + static_cast<double>(index) * (row.slotWidth + row.gap);
        result.append({left, frame.top(), row.slotWidth, frame.height()});
    }
    return result;
}

void AnimatedBarChart::paint(QPainter& painter, const QRectF& bounds, PictureCache<BarPicture>* cache) const {
    QList<BarLook> looks;
    looks.reserve(values.size());
    for (const double value : values)
        looks.append(barOf(*this, value).look());
    paint(painter, bounds, looks, cache);
}

void AnimatedBarChart::paint(QPainter& painter, const QRectF& bounds, const QList<BarLook>& shown,
                             PictureCache<BarPicture>* cache) const {
    if (!isPaintable({bounds.width(), height}))
        return;
    constexpr double barsPerPixel = 2;
    const double pixels = std::ceil(bounds.width() * devicePixelsPerPoint(painter));
    const QList<BarLook> drawn = tallestLooks(shown, static_cast<qsizetype>(pixels * barsPerPixel));
    const QList<QRectF> places = barSlots(bounds, drawn.size());
    const AnimatedBar bar = barOf(*this, 0); // each bar's value is in its look
    for (qsizetype index = 0; index < drawn.size(); ++index)
        bar.paint(painter, places[index], drawn[index], cache, static_cast<std::size_t>(index));
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
    const double leastWidth = std::min(smallestWidth, asWideAsGaps);
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

} // namespace orvelle
