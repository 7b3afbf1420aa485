#pragma once

#include "settings/styles.h"

#include <QColor>
#include <QConicalGradient>
#include <QGradientStops>
#include <QLinearGradient>
#include <QList>
#include <QPainterPath>
#include <QRectF>

/// The geometry and colours of rings, gauges and pies. Angles are degrees, growing clockwise on the screen.
namespace orvelle {

/// A stretch of a circle, as fractions of its circumference.
struct Trim {
    double from = 0;
    double to = 0;

    bool operator==(const Trim&) const = default;
};

/// `value` clamped between 0 and 1; 0 when it is not a number.
[[nodiscard]] double clampedFraction(double value);

/// Whether a ring is scaled by its pulse.
[[nodiscard]] bool pulseApplies(double value, double criticalThreshold, bool pulseCritical);

/// The stretch that a style's track covers, before rotation.
[[nodiscard]] Trim ringTrack(RingChartStyle style);

/// The stretch of the track that is filled when the ring shows `fraction`.
[[nodiscard]] Trim ringProgress(RingChartStyle style, double fraction);

/// The rotation of a style: full circles start at twelve o'clock, gauges open downward.
[[nodiscard]] double ringRotation(RingChartStyle style);

/// The arc of the circle inscribed in `square`, from three o'clock clockwise, then turned by `rotation`.
/// Empty when the stretch does not go forward.
[[nodiscard]] QPainterPath trimmedCircle(const QRectF& square, const Trim& trim, double rotation);

/// The place of a segment on a ring.
struct SegmentAngles {
    double start = 0; ///< from twelve o'clock
    double sweep = 0;

    bool operator==(const SegmentAngles&) const = default;
};

/// Divides the circle by value, in order. All angles are 0 when the sum is not above 0 or not finite.
[[nodiscard]] QList<SegmentAngles> segmentAngles(const QList<double>& values);

/// The stretch of a segment while the ring opens. The progress scales only its end, so a segment appears once
/// the progress has passed its start.
[[nodiscard]] Trim segmentTrim(const SegmentAngles& angles, double progress);

/// A wedge of a disc.
struct PieSlice {
    double startAngle = 0; ///< from three o'clock
    double endAngle = 0;   ///< from three o'clock; below the start it goes on around the circle

    /// From start to end clockwise, 0 to 360; 0 when an angle is not finite.
    [[nodiscard]] double sweep() const;

    /// The wedge of the largest disc around the middle of `rectangle`.
    [[nodiscard]] QPainterPath path(const QRectF& rectangle) const;

    bool operator==(const PieSlice&) const = default;
};

/// `baseColor` below 0.6, yellow from there and red from 0.8.
[[nodiscard]] QColor ringStatusColor(double value, const QColor& baseColor);

// Gradients, in coordinates with the origin in the centre of the circle.

/// Clockwise from `start` at twelve o'clock to `end` at `fraction` (0 to 1) of the turn. The rest of the turn
/// belongs half to each end, for their round caps.
[[nodiscard]] QConicalGradient ringGradient(const QColor& start, const QColor& end, double fraction);

/// From the left edge of a gauge of `diameter` to its right one, the direction in which it fills.
[[nodiscard]] QLinearGradient gaugeGradient(const QGradientStops& stops, double diameter);

/// Once around the centre, clockwise from three o'clock.
[[nodiscard]] QConicalGradient pieGradient(const QColor& start, const QColor& end);

} // namespace orvelle
