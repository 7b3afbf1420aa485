#include "windows/charts/shape_items.h"

#include "animation/animation_timing.h"
#include "charts/continuous_rounded_rect.h"

#include <QPainter>

namespace orvelle {

void GradientBarItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.paint(painter, bounds, m_fraction.position());
}

void GradientBarItem::advance(double seconds) {
    constexpr double invisible = 0.001; // a tenth of a point on a bar of 100
    m_fraction.advance(seconds, gradientBarSpring);
    if (m_fraction.isSettled(invisible))
        settle();
}

ContinuousRectangleItem::ContinuousRectangleItem(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    connect(this, &ContinuousRectangleItem::changed, this, [this] { update(); });
}

void ContinuousRectangleItem::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(continuousRoundedRect(boundingRect(), m_radius), m_color);
}

} // namespace orvelle
