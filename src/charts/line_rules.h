#pragma once

#include "settings/styles.h"

#include <QList>
#include <QPainterPath>
#include <QPointF>

#include <array>
#include <optional>

/// The geometry of line graphs. Lengths are in points; y grows downward from the canvas's top edge.
namespace orvelle {

/// The value drawn at the top edge: `maxValue`, but at least 0.001, so that the division stays defined.
[[nodiscard]] double lineGraphScale(double maxValue);

/// The control points of the cubic curve between two neighbouring points of a smooth line.
struct SplineControls {
    QPointF first;
    QPointF second;
};

/// Control points for the curve from `from` to `to`, whose outer neighbours are `before` and `after` (the
/// point itself where there is none). Each tangent points from neighbour to neighbour and is damped by the
/// ratio of the chord lengths on its two sides, so that the curve does not overshoot where spacing or slope
/// changes abruptly. Where a chord has no length the control point is the end point itself.
[[nodiscard]] SplineControls dampedControls(const QPointF& before, const QPointF& from, const QPointF& to,
                                            const QPointF& after);

/// The line through the points in the given style; `dotted` is `sharp` until it is stroked. Empty for fewer
/// than two points.
[[nodiscard]] QPainterPath linePath(const QList<QPointF>& points, GraphLineStyle style);

/// Lengths along a dashed line, points.
struct DashPattern {
    double dash = 0;
    double gap = 0;

    bool operator==(const DashPattern&) const = default;
};

/// The dashes of a style; nothing for an unbroken line.
[[nodiscard]] std::optional<DashPattern> lineDashes(GraphLineStyle style);

/// Where the three grid lines lie: at the quarters of the height.
[[nodiscard]] constexpr std::array<double, 3> gridLineHeights(double canvasHeight) {
    return {0.25 * canvasHeight, 0.5 * canvasHeight, 0.75 * canvasHeight};
}

/// Distance between the stripes of the striped fill; the first lies on the top edge.
inline constexpr double stripeDistance = 4;

} // namespace orvelle
