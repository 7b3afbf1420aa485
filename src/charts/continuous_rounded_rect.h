#pragma once

#include <QPainterPath>
#include <QRectF>

namespace orvelle {

/// A rectangle whose corners bend gradually: the curvature grows from zero at the edge to that of a circle of
/// `radius` at the corner's middle. `radius` is clamped between 0 and half the shorter side, where the shape
/// is a capsule. The gradual part shrinks on an edge that is too short for it; without any room the corner is
/// a quarter circle. Empty for a rectangle without area or with a coordinate that is not finite.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rectangle, double radius);

/// The same shape with the largest radius.
[[nodiscard]] QPainterPath continuousCapsule(const QRectF& rectangle);

} // namespace orvelle
