#include "windows/charts/animated_bar_chart_item.h"

#include "animation/animation_timing.h"

#include <QQuickWindow>

#include <algorithm>

namespace orvelle {

QList<BarLook> AnimatedBarChartItem::shownLooks() const {
    QList<BarLook> looks;
    looks.reserve(m_targets.size());
    for (const BarAnimation& bar : m_bars)
        looks.append(bar.look());
    return looks;
}

void AnimatedBarChartItem::paintChart(QPainter& painter, const QRectF& bounds) {
    AnimatedBarChart chart = m_chart;
    chart.height = bounds.height();
    m_painted = shownLooks();
    chart.paint(painter, bounds, m_painted, &m_pictures);
}

double AnimatedBarChartItem::overhang() const {
    const AnimatedBar bar{
        .showGlow = m_chart.showGlow, .barStyle = m_chart.barStyle, .glowIntensity = m_chart.glowIntensity};
    double tallest = 0;
    for (const BarAnimation& animation : m_bars)
        tallest = std::max(tallest, animation.look().ratio);
    return bar.overhang() + overshoot(tallest) * height();
}

std::optional<SpringParameters> AnimatedBarChartItem::spring() const {
    return barSpring(m_chart.animationSpeed, m_chart.animateChanges);
}

void AnimatedBarChartItem::follow() {
    const QList<AnimatedBar> bars = m_chart.bars();
    const auto count = static_cast<std::size_t>(bars.size());
    if (m_bars.size() > count) {
        m_bars.erase(m_bars.begin() + bars.size(), m_bars.end());
        m_targets.resize(bars.size());
    }
    for (std::size_t index = 0; index < count; ++index)
        followBar(index, bars[static_cast<qsizetype>(index)].look());
}

void AnimatedBarChartItem::followBar(std::size_t index, const BarLook& look) {
    if (index == m_bars.size()) {
        m_bars.emplace_back(look);
        m_targets.append(look);
        return;
    }
    BarLook& target = m_targets[static_cast<qsizetype>(index)];
    // Only a change of length is animated; another base colour shows at once.
    if (!spring() || (look.ratio == target.ratio && look != target))
        m_bars[index].jump(look);
    else if (look != target)
        m_bars[index].retarget(look);
    target = look;
}

void AnimatedBarChartItem::advance(double seconds) {
    const std::optional<SpringParameters> parameters = spring();
    if (!parameters)
        return settle();
    for (std::size_t index = 0; index < m_bars.size(); ++index) {
        m_bars[index].advance(seconds, *parameters);
        if (m_bars[index].isSettled())
            m_bars[index].jump(m_targets[static_cast<qsizetype>(index)]);
    }
}

void AnimatedBarChartItem::settle() {
    for (std::size_t index = 0; index < m_bars.size(); ++index)
        m_bars[index].jump(m_targets[static_cast<qsizetype>(index)]);
}

bool AnimatedBarChartItem::isAnimating() const {
    return std::ranges::any_of(m_bars, [](const BarAnimation& bar) { return !bar.isSettled(); });
}

bool AnimatedBarChartItem::hasMoved() const {
    const double pixelsPerPoint = window() == nullptr ? 1 : window()->effectiveDevicePixelRatio();
    return !looksAlike(shownLooks(), m_painted, height() * pixelsPerPoint);
}

} // namespace orvelle
