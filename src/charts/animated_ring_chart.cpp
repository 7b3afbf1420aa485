#include "charts/animated_ring_chart.h"

#include "charts/animation_rules.h"
#include "charts/canvas.h"
#include "charts/glow.h"
#include "charts/label_text.h"
#include "charts/pie_slice.h"
#include "charts/ring_rules.h"
#include "look/fonts.h"
#include "look/label_colors.h"

#include <QConicalGradient>
#include <QLinearGradient>

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

/// The drawing has its origin in the chart's centre, so that it can be turned and scaled about it.
QRectF squareAround(double side) {
    return {-side / 2, -side / 2, side, side};
}

QPen ringPen(const QBrush& brush, double lineWidth) {
    return {brush, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::SvgMiterJoin};
}

/// Shades clockwise from `start` at twelve o'clock to `end` at `fraction` of the turn. Half of what is left
/// belongs to each end, for their round caps.
QConicalGradient ringShade(const QColor& start, const QColor& end, double fraction) {
    constexpr double hairsbreadth = 1e-4;
    constexpr double twelveOClock = 90;
    QConicalGradient shade(QPointF(0, 0), twelveOClock); // positions grow against the clock
    const double middleOfGap = (1 - fraction) / 2;
    shade.setColorAt(0, fraction < 1 ? start : end);
    if (fraction < 1) {
        shade.setColorAt(middleOfGap, start);
        shade.setColorAt(std::min(middleOfGap + hairsbreadth, 1 - fraction), end);
        shade.setColorAt(1 - fraction, end);
    }
    shade.setColorAt(1, start);
    return shade;
}

/// Shades from the leading to the trailing edge of a gauge before it is turned, so from top to bottom.
QLinearGradient gaugeShade(const QColor& leading, const QColor& trailing, double side) {
    QLinearGradient shade(0, -side / 2, 0, side / 2);
    shade.setColorAt(0, leading);
    shade.setColorAt(1, trailing);
    return shade;
}

/// Shades once around the centre, clockwise from three o'clock.
QConicalGradient pieShade(const QColor& start, const QColor& end) {
    QConicalGradient shade(QPointF(0, 0), 0); // positions grow against the clock
    shade.setColorAt(0, end);
    shade.setColorAt(1, start);
    return shade;
}

QBrush progressBrush(const AnimatedRingChart& chart, const QColor& status) {
    switch (chart.ringStyle) {
    case RingChartStyle::fullRing:
        return ringShade(withOpacity(status, ringStartOpacity), status, clampedFraction(chart.animatedValue));
    case RingChartStyle::halfGauge:
        return gaugeShade(withOpacity(status, gaugeStartOpacity), status, chart.size);
    case RingChartStyle::arcGauge:
        return gaugeShade(chart.baseColor, status, chart.size);
    case RingChartStyle::pieChart:
        return pieShade(withOpacity(status, pieStartOpacity), status);
    }
    return {};
}

Glow progressGlow(const AnimatedRingChart& chart, const QColor& status, const QPainterPath& shape) {
    return {.shape = shape,
            .color = withOpacity(status, glowOpacity(chart.glowIntensity)),
            .radius = glowRadius(chart.glowIntensity)};
}

void paintArc(QPainter& painter, const AnimatedRingChart& chart, GlowCache* glows) {
    const QRectF square = squareAround(chart.size);
    const double rotation = ringRotation(chart.ringStyle);
    const QColor status = ringStatusColor(chart.value, chart.baseColor);
    const QPainterPath progress =
        trimmedCircle(square, ringProgress(chart.ringStyle, chart.animatedValue), rotation);
    const QPen pen = ringPen(progressBrush(chart, status), chart.lineWidth);
    painter.strokePath(trimmedCircle(square, ringTrack(chart.ringStyle), rotation),
                       ringPen(chart.trackColor, chart.lineWidth));
    if (chart.showGlow) {
        Glow glow = progressGlow(chart, status, progress);
        glow.pen = pen;
        paintGlow(painter, glow, glows);
    }
    painter.strokePath(progress, pen);
}

void paintPie(QPainter& painter, const AnimatedRingChart& chart, GlowCache* glows) {
    const QRectF square = squareAround(chart.size);
    const QColor status = ringStatusColor(chart.value, chart.baseColor);
    const QBrush brush = progressBrush(chart, status);
    const double fraction = clampedFraction(chart.animatedValue);
    const QPainterPath slice = PieSlice{.startAngle = -90, .endAngle = fraction * 360 - 90}.path(square);
    painter.setPen(Qt::NoPen);
    painter.setBrush(chart.trackColor);
    painter.drawEllipse(square);
    if (chart.showGlow) {
        Glow glow = progressGlow(chart, status, slice);
        glow.brush = brush;
        paintGlow(painter, glow, glows);
    }
    painter.fillPath(slice, brush);
    painter.setBrush(withOpacity(Qt::black, hubOpacity));
    painter.drawEllipse(squareAround(chart.size * hubShare));
}

/// The labels present, stacked and centred.
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

} // namespace

double AnimatedRingChart::target() const {
    return clampedFraction(value);
}

double AnimatedRingChart::shownScale() const {
    const bool isPulsing = pulseApplies(value, criticalThreshold, pulseCritical) && pulseScale > 1;
    return isPulsing ? std::min(pulseScale, pulseLargestScale) : 1;
}

void AnimatedRingChart::paint(QPainter& painter, const QRectF& bounds, GlowCache* glows) const {
    if (!isPaintable({size, size}))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bounds.center());
    painter.save();
    painter.scale(shownScale(), shownScale());
    if (ringStyle == RingChartStyle::pieChart)
        paintPie(painter, *this, glows);
    else if (isPaintable({lineWidth, lineWidth}))
        paintArc(painter, *this, glows);
    painter.restore();
    paintLabels(painter, *this);
    painter.restore();
}

} // namespace orvelle
