#include "charts/animated_bar_chart.h"

#include "charts/bar_rules.h"
#include "charts/canvas.h"

#include <algorithm>

namespace orvelle {

QList<AnimatedBar> AnimatedBarChart::bars() const {
    QList<AnimatedBar> result;
    result.reserve(values.size());
    for (const double value : values) {
        result.append({.value = value,
                       .maxValue = maxValue,
                       .cornerRadius = barCornerRadius(barStyle),
                       .baseColor = baseColor,
                       .showGlow = showGlow,
                       .animate = animateChanges,
                       .barStyle = barStyle,
                       .glowIntensity = glowIntensity,
                       .animationSpeed = animationSpeed});
    }
    return result;
}

QList<QRectF> AnimatedBarChart::barSlots(const QRectF& bounds) const {
    const QRectF chart = centred({bounds.width(), height}, bounds);
    const BarRow row = barRow(values.size(), chart.width(), barSpacingFor(barStyle, barSpacing));
    QList<QRectF> result;
    result.reserve(values.size());
    for (qsizetype index = 0; index < values.size(); ++index) {
        const double left = chart.left() + static_cast<double>(index) * (row.slotWidth + row.gap);
        result.append({left, chart.top(), row.slotWidth, chart.height()});
    }
    return result;
}

void AnimatedBarChart::paint(QPainter& painter, const QRectF& bounds, PictureCache<BarPicture>* cache) const {
    QList<BarLook> looks;
    looks.reserve(values.size());
    for (const AnimatedBar& bar : bars())
        looks.append(bar.look());
    paint(painter, bounds, looks, cache);
}

void AnimatedBarChart::paint(QPainter& painter, const QRectF& bounds, const QList<BarLook>& shown,
                             PictureCache<BarPicture>* cache) const {
    const QList<AnimatedBar> drawn = bars();
    const QList<QRectF> places = barSlots(bounds);
    for (qsizetype index = 0; index < std::min(drawn.size(), shown.size()); ++index)
        drawn[index].paint(painter, places[index], shown[index], cache, static_cast<std::size_t>(index));
}

} // namespace orvelle
