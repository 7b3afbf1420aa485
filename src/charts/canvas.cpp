#include "charts/canvas.h"

#include <QFontMetricsF>

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

double lineHeight(const QFont& font) {
    return QFontMetricsF(font).height();
}

void drawLabel(QPainter& painter, const QRectF& line, const QString& text, const QFont& font,
               const QColor& color) {
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip,
                     QFontMetricsF(font).elidedText(text, Qt::ElideRight, line.width()));
}

} // namespace orvelle
