#include "charts/canvas.h"

namespace orvelle {
namespace {

constexpr double largestCanvasSide = 16384;

} // namespace

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

bool isPaintable(const QSizeF& size) {
    return size.width() > 0 && size.height() > 0 && size.width() <= largestCanvasSide &&
           size.height() <= largestCanvasSide;
}

QRectF centred(const QSizeF& size, const QRectF& bounds) {
    QRectF result({0, 0}, size);
    result.moveCenter(bounds.center());
    return result;
}

} // namespace orvelle
