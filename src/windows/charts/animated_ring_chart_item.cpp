#include "windows/charts/animated_ring_chart_item.h"

#include "animation/animation_timing.h"
#include "charts/ring_geometry.h"
#include "theme/fonts.h"
#include "windows/charts/optional_values.h"

namespace orvelle {

AnimatedRingChartItem::AnimatedRingChartItem(AnimationClock& clock)
    : ChartItem(clock) {
    connect(&FontChanges::shared(), &FontChanges::changed, this, &ChartItem::changed);
}

QVariant AnimatedRingChartItem::label() const {
    return variantOf(m_chart.label);
}

void AnimatedRingChartItem::setLabel(const QVariant& label) {
    setText(m_chart.label, label);
}

QVariant AnimatedRingChartItem::sublabel() const {
    return variantOf(m_chart.sublabel);
}

void AnimatedRingChartItem::setSublabel(const QVariant& sublabel) {
    setText(m_chart.sublabel, sublabel);
}

void AnimatedRingChartItem::setText(std::optional<QString>& field, const QVariant& text) {
    const std::optional<QString> present = optionalOf<QString>(text);
    if (field == present)
        return;
    field = present;
    Q_EMIT changed();
}

void AnimatedRingChartItem::paintChart(QPainter& painter, const QRectF& bounds) {
    AnimatedRingChart chart = m_chart;
    chart.animatedValue = animatedValue();
    chart.pulseScale = pulseScale();
    chart.paint(painter, bounds, &m_picture);
}

double AnimatedRingChartItem::pulseScale() const {
    return m_pulseStart && mayMove() ? pulseScaleAt(now() - *m_pulseStart) : 1;
}

bool AnimatedRingChartItem::isCritical() const {
    return pulseApplies(m_chart.value, m_chart.criticalThreshold, m_chart.pulseCritical);
}

void AnimatedRingChartItem::follow() {
    if (!hasOpened())
        return;
    const std::optional<double> seconds = ringChangeSeconds(m_chart.animationSpeed);
    if (m_chart.value != m_followedValue)
        moveToValue(seconds, easeInOut());
    else if (!seconds)
        m_fraction.settle();
}

void AnimatedRingChartItem::open() {
    moveToValue(ringOpeningSeconds(m_chart.animationSpeed), easeOut());
}

void AnimatedRingChartItem::moveToValue(std::optional<double> seconds, const QEasingCurve& curve) {
    m_followedValue = m_chart.value;
    if (seconds)
        m_fraction.retarget(m_chart.target(), *seconds, curve);
    else
        m_fraction.jump(m_chart.target());
    if (isCritical() && !m_pulseStart)
        m_pulseStart = now();
}

std::chrono::milliseconds AnimatedRingChartItem::frameInterval() const {
    // The pulse moves an edge by less than two points in 0.8 s.
    return m_fraction.isSettled() ? std::chrono::milliseconds(33) : ChartItem::frameInterval();
}

} // namespace orvelle
