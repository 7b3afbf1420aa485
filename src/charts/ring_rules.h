#pragma once

#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainterPath>
#include <QRectF>

/// The geometry and colours of rings and gauges. Angles are degrees, growing clockwise on the screen.
namespace orvelle {

/// A stretch of a circle, as fractions of its circumference.
struct Trim {
    double from = 0;
    double to = 0;

    bool operator==(const Trim&) const = default;
};

/// `value` held between 0 and 1; 0 when it is not a number.
[[nodiscard]] double clampedFraction(double value);

/// `baseColor` below 0.6, yellow from there and red from 0.8.
[[nodiscard]] QColor ringStatusColor(double value, const QColor& baseColor);

/// Whether a ring is scaled by its pulse.
[[nodiscard]] bool pulseApplies(double value, double criticalThreshold, bool pulseCritical);

/// The stretch that a style's track covers, before rotation.
[[nodiscard]] Trim ringTrack(RingChartStyle style);

/// The stretch of the track that is filled when the ring shows `fraction`.
[[nodiscard]] Trim ringProgress(RingChartStyle style, double fraction);

/// How far the drawing is turned: full circles start at twelve o'clock, gauges open downward.
[[nodiscard]] double ringRotation(RingChartStyle style);

/// The arc of the circle inscribed in `square`, starting at three o'clock and going clockwise before it is
/// turned by `rotation`. Empty when the stretch does not go forward.
[[nodiscard]] QPainterPath trimmedCircle(const QRectF& square, const Trim& trim, double rotation);

/// Where a segment of a ring begins and how far it reaches.
struct SegmentAngles {
    double start = 0; ///< from twelve o'clock
    double sweep = 0;

    bool operator==(const SegmentAngles&) const = default;
};

/// Shares the circle out by value, in order. All are 0 when the sum is not above 0 or not finite.
[[nodiscard]] QList<SegmentAngles> segmentAngles(const QList<double>& values);

/// The stretch of a segment while the ring opens. Only its end is scaled by the progress, so a segment shows
/// once the progress has passed its start.
[[nodiscard]] Trim segmentTrim(const SegmentAngles& angles, double progress);

/// How far a wedge reaches clockwise from `startAngle` to `endAngle`: 0 to 360.
[[nodiscard]] double wedgeSweep(double startAngle, double endAngle);

} // namespace orvelle
