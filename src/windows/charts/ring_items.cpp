#include "windows/charts/ring_items.h"

#include "animation/animation_timing.h"
#include "charts/ring_geometry.h"
#include "theme/fonts.h"

#include <QVariantMap>

namespace orvelle {
namespace {

/// A field that may be absent, as QML sees it: null or undefined stands for absence.
QVariant variantOf(const std::optional<QString>& text) {
    return text ? QVariant(*text) : QVariant::fromValue(nullptr);
}

std::optional<QString> textOf(const QVariant& variant) {
    if (variant.isNull() || !variant.canConvert<QString>())
        return std::nullopt;
    return variant.toString();
}

MultiSegmentRing::Segment segmentOf(const QVariant& fields) {
    const QVariantMap map = fields.toMap();
    MultiSegmentRing::Segment segment;
    segment.value = map.value(QStringLiteral("value")).toDouble();
    segment.color = map.value(QStringLiteral("color")).value<QColor>();
    return segment;
}

} // namespace

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
    const std::optional<QString> present = textOf(text);
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
    return m_pulseStart && mayAnimate() ? pulseScaleAt(now() - *m_pulseStart) : 1;
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

void MultiSegmentRingItem::setSegments(const QVariantList& segments) {
    if (m_segments == segments)
        return;
    m_segments = segments;
    m_chart.segments.clear();
    for (const QVariant& fields : segments)
        m_chart.segments.append(segmentOf(fields));
    Q_EMIT changed();
}

void MultiSegmentRingItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.animatedProgress = animatedProgress();
    m_chart.paint(painter, bounds);
}

void MultiSegmentRingItem::open() {
    m_progress.retarget(1, segmentRingOpeningSeconds, easeOut());
}

TemperatureGaugeItem::TemperatureGaugeItem(AnimationClock& clock)
    : ChartItem(clock)
    , m_naturalSize(TemperatureGauge::dialSize, m_chart.height()) {
    setImplicitSize(m_naturalSize.width(), m_naturalSize.height());
    connect(&FontChanges::shared(), &FontChanges::changed, this, [this] {
        m_naturalSize.setHeight(m_chart.height());
        Q_EMIT changed();
    });
}

void TemperatureGaugeItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.paint(painter, bounds, m_look.shown(), &m_dial);
}

void TemperatureGaugeItem::follow() {
    const DialLook look = m_chart.look();
    const DialLook& target = m_look.target();
    // Only a change of the fraction is animated; another colour alone shows at once.
    if (look.fraction != target.fraction)
        m_look.retarget(look, temperatureGaugeSeconds, easeInOut());
    else if (look != target)
        m_look.jump(look);
}

} // namespace orvelle
