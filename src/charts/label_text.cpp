#include "charts/label_text.h"

#include <QFontMetricsF>

namespace orvelle {

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
