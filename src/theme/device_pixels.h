#pragma once

#include <QPainter>

/// Device pixels under a painter's current transformation, which must not rotate or shear.
namespace orvelle {

/// The number of device pixels per point, including the screen's device pixel ratio.
[[nodiscard]] double devicePixelsPerPoint(const QPainter& painter);

/// The nearest position, in the painter's points, that is a corner of a device pixel.
[[nodiscard]] QPointF snappedToDevicePixels(const QPainter& painter, const QPointF& position);

} // namespace orvelle
