#include "windows/common/symbol_item.h"

#include "theme/device_pixels.h"
#include "theme/symbols.h"

namespace orvelle {

SymbolItem::SymbolItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    connect(this, &SymbolItem::changed, this, &SymbolItem::refresh);
}

void SymbolItem::paint(QPainter* painter) {
    if (!isKnownSymbol(m_name))
        return;
    const QPointF center = boundingRect().center();
    const auto weight = static_cast<QFont::Weight>(m_weight);
    if (m_angle == 0) {
        paintSymbol(*painter, m_name, center, m_fontSize, m_color, weight);
        return;
    }
    const QImage image = symbolImage(m_name, m_fontSize, m_color, devicePixelsPerPoint(*painter), weight);
    const QSizeF size = image.deviceIndependentSize();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->translate(center);
    painter->rotate(m_angle);
    painter->drawImage(QRectF({-size.width() / 2, -size.height() / 2}, size), image);
}

void SymbolItem::refresh() {
    const QSizeF size = symbolSize(m_name, m_fontSize, static_cast<QFont::Weight>(m_weight));
    setImplicitSize(size.width(), size.height());
    update();
}

} // namespace orvelle
