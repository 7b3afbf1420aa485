#include "windows/charts/multi_segment_ring_item.h"

#include "animation/animation_timing.h"

#include <QVariantMap>

namespace orvelle {
namespace {

MultiSegmentRing::Segment segmentOf(const QVariant& fields) {
    const QVariantMap map = fields.toMap();
    MultiSegmentRing::Segment segment;
    segment.value = map.value(QStringLiteral("value")).toDouble();
    segment.color = map.value(QStringLiteral("color")).value<QColor>();
    return segment;
}

} // namespace

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

} // namespace orvelle
