#include "charts/ring_geometry.h"

#include "charts/canvas.h"
#include "theme/colors.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double fullTurn = 360;
constexpr double warningValue = 0.6;
constexpr double criticalValue = 0.8;

// Qt measures the start of a conical gradient in degrees from three o'clock, and its positions run
// counter-clockwise, so that a clockwise gradient is written backwards.
constexpr double threeOClock = 0;
constexpr double twelveOClock = 90;

} // namespace

double clampedFraction(double value) {
    return std::isnan(value) ? 0 : std::clamp(value, 0.0, 1.0);
}

bool pulseApplies(double value, double criticalThreshold, bool pulseCritical) {
    return pulseCritical && value >= criticalThreshold;
}

Trim ringTrack(RingChartStyle style) {
    switch (style) {
    case RingChartStyle::halfGauge:
        return {0.25, 0.75};
    case RingChartStyle::arcGauge:
        return {0.125, 0.875};
    case RingChartStyle::fullRing:
    case RingChartStyle::pieChart:
        return {0, 1};
    }
    return {};
}

Trim ringProgress(RingChartStyle style, double fraction) {
    const Trim track = ringTrack(style);
    return {track.from, track.from + (track.to - track.from) * clampedFraction(fraction)};
}

double ringRotation(RingChartStyle style) {
    const bool isGauge = style == RingChartStyle::halfGauge || style == RingChartStyle::arcGauge;
    return isGauge ? 90 : -90;
}

QPainterPath trimmedCircle(const QRectF& square, const Trim& trim, double rotation) {
    QPainterPath path;
    if (!(trim.to > trim.from))
        return path;
    // Qt counts angles counter-clockwise.
    const double start = -(trim.from * fullTurn + rotation);
    path.arcMoveTo(square, start);
    path.arcTo(square, start, -(trim.to - trim.from) * fullTurn);
    return path;
}

QList<SegmentAngles> segmentAngles(const QList<double>& values) {
    double total = 0;
    for (const double value : values)
        total += value;
    QList<SegmentAngles> angles(values.size());
    if (!(total > 0) || !std::isfinite(total))
        return angles;
    double start = 0;
    for (qsizetype index = 0; index < values.size(); ++index) {
        const double sweep = values[index] / total * fullTurn;
        angles[index] = {start, sweep};
        start += sweep;
    }
    return angles;
}

Trim segmentTrim(const SegmentAngles& angles, double progress) {
    const double end = std::min((angles.start + angles.sweep) / fullTurn, 1.0);
    return {angles.start / fullTurn, end * clampedFraction(progress)};
}

double PieSlice::sweep() const {
    const double sweep = endAngle - startAngle;
    if (!std::isfinite(sweep))
        return 0;
    return sweep < 0 ? std::fmod(sweep, fullTurn) + fullTurn : std::min(sweep, fullTurn);
}

QPainterPath PieSlice::path(const QRectF& rectangle) const {
    const double diameter = std::min(rectangle.width(), rectangle.height());
    QPainterPath wedge;
    if (!(diameter > 0) || sweep() <= 0)
        return wedge;
    const QRectF disc = centred({diameter, diameter}, rectangle);
    wedge.moveTo(disc.center());
    wedge.arcTo(disc, -startAngle, -sweep()); // Qt counts angles counter-clockwise
    wedge.closeSubpath();
    return wedge;
}

QColor ringStatusColor(double value, const QColor& baseColor) {
    if (value >= criticalValue)
        return SystemColors::red;
    if (value >= warningValue)
        return SystemColors::yellow;
    return baseColor;
}

QConicalGradient ringGradient(const QColor& start, const QColor& end, double fraction) {
    constexpr double hairsbreadth = 1e-4; // two stops cannot share one position
    QConicalGradient gradient(QPointF(0, 0), twelveOClock);
    const double lastFilled = 1 - fraction;
    gradient.setColorAt(0, fraction < 1 ? start : end);
    if (fraction < 1) {
        gradient.setColorAt(lastFilled / 2, start);
        gradient.setColorAt(std::min(lastFilled / 2 + hairsbreadth, lastFilled), end);
        gradient.setColorAt(lastFilled, end);
    }
    gradient.setColorAt(1, start);
    return gradient;
}

QLinearGradient gaugeGradient(const QGradientStops& stops, double diameter) {
    QLinearGradient gradient(-diameter / 2, 0, diameter / 2, 0);
    gradient.setStops(stops);
    return gradient;
}

QConicalGradient pieGradient(const QColor& start, const QColor& end) {
    QConicalGradient gradient(QPointF(0, 0), threeOClock);
    gradient.setColorAt(0, end);
    gradient.setColorAt(1, start);
    return gradient;
}

} // namespace orvelle
