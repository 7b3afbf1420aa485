#include "look/quick/symbol_item.h"

#include "look/symbols.h"

namespace orvelle {

SymbolItem::SymbolItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    connect(this, &SymbolItem::changed, this, &SymbolItem::refresh);
}

void SymbolItem::paint(QPainter* painter) {
    if (isKnownSymbol(m_name))
        paintSymbol(*painter, m_name, boundingRect().center(), m_fontSize, m_color,
                    static_cast<QFont::Weight>(m_weight));
}

void SymbolItem::refresh() {
    const double extent = symbolExtent(m_fontSize);
    setImplicitSize(extent, extent);
    update();
}

} // namespace orvelle
