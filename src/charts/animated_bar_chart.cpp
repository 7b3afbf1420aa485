#include "charts/animated_bar_chart.h"

#include "charts/bar_rules.h"
#include "charts/canvas.h"
#include "theme/device_pixels.h"

#include <algorithm>
#include <cmath>

namespace orvelle {

namespace {

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

} // namespace orvelle
