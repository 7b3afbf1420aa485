#include "charts/canvas.h"

#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace orvelle {

Canvas::Canvas(QPainter& painter, const QRectF& frame)
    : m_painter(painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frame.topLeft());
    painter.setClipRect(QRectF({0, 0}, frame.size()), Qt::IntersectClip);
}

Canvas::~Canvas() {
    m_painter.restore();
}

double Canvas::pixelWidth() const {
    const QTransform transform = m_painter.deviceTransform();
    const double pixelsPerPoint = std::hypot(transform.m11(), transform.m12());
    return pixelsPerPoint > 0 ? 1 / pixelsPerPoint : 1;
}

QColor withOpacity(const QColor& color, double opacity) {
    QColor result = color;
    result.setAlphaF(static_cast<float>(std::clamp(color.alphaF() * opacity, 0.0, 1.0)));
    return result;
}

QPen linePen(const QColor& color, double width) {
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

QRectF centred(const QSizeF& size, const QRectF& bounds) {
    QRectF result({0, 0}, size);
    result.moveCenter(bounds.center());
    return result;
}

} // namespace orvelle
