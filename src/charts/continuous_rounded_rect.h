#pragma once

#include <QPainterPath>
#include <QRectF>

namespace orvelle {

/// A rectangle whose corners bend gradually instead of jumping from straight to circular: the curvature grows
/// from zero at the edge to that of a circle of `radius` at the corner's middle. `radius` is held between 0
/// and half the shorter side, where the shape is a capsule. Where an edge is too short for the whole gradual
/// part, that part shrinks; on an edge with no room left the corner is a plain quarter circle.
/// Empty for a rectangle without area or with a coordinate that is not finite.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rectangle, double radius);

/// The same shape with the largest radius.
[[nodiscard]] QPainterPath continuousCapsule(const QRectF& rectangle);

} // namespace orvelle
