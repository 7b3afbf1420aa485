#include "windows/charts/continuous_rectangle_item.h"

#include "charts/continuous_rounded_rect.h"

#include <QPainter>

namespace orvelle {

ContinuousRectangleItem::ContinuousRectangleItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    connect(this, &ContinuousRectangleItem::changed, this, [this] { update(); });
}

void ContinuousRectangleItem::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(continuousRoundedRect(boundingRect(), m_radius), m_color);
}

} // namespace orvelle
