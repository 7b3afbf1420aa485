#pragma once

#include <QPainter>

/// Where whole device pixels lie under a painter's present transformation.
namespace orvelle {

/// Device pixels that one point covers, the screen's device pixel ratio included. Meant for painters that are
/// only moved and scaled.
[[nodiscard]] double devicePixelsPerPoint(const QPainter& painter);

/// The nearest position, in the painter's own points, that falls on a corner of a device pixel.
[[nodiscard]] QPointF snappedToDevicePixels(const QPainter& painter, const QPointF& position);

} // namespace orvelle
