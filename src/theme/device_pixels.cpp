#include "theme/device_pixels.h"

#include <cmath>

namespace orvelle {

double devicePixelsPerPoint(const QPainter& painter) {
    const QTransform toDevice = painter.deviceTransform();
    return std::hypot(toDevice.m21(), toDevice.m22());
}

QPointF snappedToDevicePixels(const QPainter& painter, const QPointF& position) {
    const QTransform toDevice = painter.deviceTransform();
    bool isInvertible = false;
    const QTransform toPoints = toDevice.inverted(&isInvertible);
    if (!isInvertible)
        return position;
    const QPointF device = toDevice.map(position);
    return toPoints.map(QPointF(std::round(device.x()), std::round(device.y())));
}

} // namespace orvelle
