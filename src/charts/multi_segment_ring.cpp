#include "charts/multi_segment_ring.h"

#include "charts/canvas.h"
#include "charts/ring_rules.h"

namespace orvelle {
namespace {

constexpr double firstSegmentStart = -90;

QPen segmentPen(const QColor& color, double lineWidth) {
    return {color, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin};
}

QList<double> valuesOf(const QList<MultiSegmentRing::Segment>& segments) {
    QList<double> values;
    values.reserve(segments.size());
    for (const MultiSegmentRing::Segment& segment : segments)
        values.append(segment.value);
    return values;
}

} // namespace

void MultiSegmentRing::paint(QPainter& painter, const QRectF& bounds) const {
    if (!isPaintable({size, size}) || !isPaintable({lineWidth, lineWidth}))
        return;
    const QRectF square = centred({size, size}, bounds);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(segmentPen(trackColor, lineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(square);
    const QList<SegmentAngles> angles = segmentAngles(valuesOf(segments));
    for (qsizetype index = 0; index < segments.size(); ++index) {
        const Trim trim = segmentTrim(angles[index], animatedProgress);
        painter.strokePath(trimmedCircle(square, trim, firstSegmentStart),
                           segmentPen(segments[index].color, lineWidth));
    }
    painter.restore();
}

} // namespace orvelle
