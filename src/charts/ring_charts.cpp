#include "charts/ring_charts.h"

#include "animation/animation_timing.h"
#include "charts/canvas.h"
#include "charts/glow.h"
#include "charts/ring_geometry.h"
#include "theme/colors.h"
#include "theme/fonts.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double ringStartOpacity = 0.8;
constexpr double gaugeStartOpacity = 0.7;
constexpr double pieStartOpacity = 0.7;
constexpr double hubOpacity = 0.6;
constexpr double hubShare = 0.6;
constexpr double labelShare = 0.22;
constexpr double sublabelShare = 0.1;
constexpr double labelSpacing = 2;

/// The chart is drawn around the origin, so that it can be scaled about its centre.
QRectF squareAround(double side) {
    return {-side / 2, -side / 2, side, side};
}

QPen ringPen(const QBrush& brush, double lineWidth) {
    return {brush, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::SvgMiterJoin};
}

QBrush progressBrush(const AnimatedRingChart& chart, const QColor& status) {
    switch (chart.ringStyle) {
    case RingChartStyle::fullRing:
        return ringGradient(withOpacity(status, ringStartOpacity), status,
                            clampedFraction(chart.animatedValue));
    case RingChartStyle::halfGauge:
        return gaugeGradient({{0, withOpacity(status, gaugeStartOpacity)}, {1, status}}, chart.size);
    case RingChartStyle::arcGauge:
        return gaugeGradient({{0, chart.baseColor}, {1, status}}, chart.size);
    case RingChartStyle::pieChart:
        return pieGradient(withOpacity(status, pieStartOpacity), status);
    }
    return {};
}

/// The rectangle of the circle and its stroke.
QRectF inkedSquare(const AnimatedRingChart& chart) {
    const double stroke = chart.ringStyle == RingChartStyle::pieChart ? 0 : chart.lineWidth;
    return squareAround(chart.size + stroke);
}

void drawArc(QPainter& painter, const AnimatedRingChart& chart, const QColor& status) {
    const QRectF square = squareAround(chart.size);
    const double rotation = ringRotation(chart.ringStyle);
    const QPainterPath progress =
        trimmedCircle(square, ringProgress(chart.ringStyle, chart.animatedValue), rotation);
    const QPen pen = ringPen(progressBrush(chart, status), chart.lineWidth);
    painter.strokePath(trimmedCircle(square, ringTrack(chart.ringStyle), rotation),
                       ringPen(chart.trackColor, chart.lineWidth));
    if (chart.showGlow && !progress.isEmpty())
        paintGlow(painter, inkedSquare(chart), GlowStyle::of(status, chart.glowIntensity),
                  [&](QPainter& mask) { mask.strokePath(progress, pen); });
    painter.strokePath(progress, pen);
}

void drawPie(QPainter& painter, const AnimatedRingChart& chart, const QColor& status) {
    const QRectF square = squareAround(chart.size);
    const QBrush brush = progressBrush(chart, status);
    const double fraction = clampedFraction(chart.animatedValue);
    const QPainterPath slice = PieSlice{.startAngle = -90, .endAngle = fraction * 360 - 90}.path(square);
    painter.setPen(Qt::NoPen);
    painter.setBrush(chart.trackColor);
    painter.drawEllipse(square);
    if (chart.showGlow && !slice.isEmpty())
        paintGlow(painter, inkedSquare(chart), GlowStyle::of(status, chart.glowIntensity),
                  [&](QPainter& mask) { mask.fillPath(slice, brush); });
    painter.fillPath(slice, brush);
    painter.setBrush(withOpacity(Qt::black, hubOpacity));
    painter.drawEllipse(squareAround(chart.size * hubShare));
}

/// Draws everything but the labels.
void drawRing(QPainter& painter, const AnimatedRingChart& chart) {
    const QColor status = ringStatusColor(chart.value, chart.baseColor);
    if (chart.ringStyle == RingChartStyle::pieChart)
        drawPie(painter, chart, status);
    else if (isPaintable({chart.lineWidth, chart.lineWidth}))
        drawArc(painter, chart, status);
}

/// The chart without the fields that its picture does not show: the labels and the scale.
AnimatedRingChart pictureSubject(AnimatedRingChart chart) {
    chart.label.reset();
    chart.sublabel.reset();
    chart.pulseScale = 1;
    return chart;
}

/// Paints the present labels, stacked and centred.
void paintLabels(QPainter& painter, const AnimatedRingChart& chart) {
    const QFont largeFont = roundedSystemFont(chart.size * labelShare, QFont::Bold);
    const QFont smallFont = roundedSystemFont(chart.size * sublabelShare, QFont::Medium);
    const double largeHeight = chart.label ? lineHeight(largeFont) : 0;
    const double smallHeight = chart.sublabel ? lineHeight(smallFont) : 0;
    const double gap = chart.label && chart.sublabel ? labelSpacing : 0;
    const double top = -(largeHeight + gap + smallHeight) / 2;
    const double left = -chart.size / 2;
    if (chart.label)
        drawLabel(painter, {left, top, chart.size, largeHeight}, *chart.label, largeFont,
                  LabelColors::primary);
    if (chart.sublabel)
        drawLabel(painter, {left, top + largeHeight + gap, chart.size, smallHeight}, *chart.sublabel,
                  smallFont, LabelColors::secondary);
}

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

double AnimatedRingChart::target() const {
    return clampedFraction(value);
}

double AnimatedRingChart::shownScale() const {
    const bool isPulsing = pulseApplies(value, criticalThreshold, pulseCritical) && pulseScale > 1;
    return isPulsing ? std::min(pulseScale, pulseLargestScale) : 1;
}

double AnimatedRingChart::overhang() const {
    const double stroke = ringStyle == RingChartStyle::pieChart ? 0 : lineWidth / 2;
    const double glow = showGlow ? glowReach(glowRadius(glowIntensity)) : 0;
    const double pulse = pulseCritical ? (pulseLargestScale - 1) * (size / 2 + stroke + glow) : 0;
    return stroke + glow + pulse;
}

void AnimatedRingChart::paint(QPainter& painter, const QRectF& bounds,
                              PictureCache<AnimatedRingChart>* cache) const {
    if (!isPaintable({size, size}))
        return;
    const double glow = showGlow ? glowRadius(glowIntensity) : 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bounds.center());
    painter.save();
    painter.scale(shownScale(), shownScale());
    showKept(painter, cache, pictureSubject(*this), withGlowRoom(inkedSquare(*this), glow),
             [this](QPainter& target) { drawRing(target, *this); });
    painter.restore();
    paintLabels(painter, *this);
    painter.restore();
}

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
