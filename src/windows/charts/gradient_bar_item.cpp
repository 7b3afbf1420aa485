#include "windows/charts/gradient_bar_item.h"

#include "animation/animation_timing.h"

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

bool GradientBarItem::isMoving() const {
    return !m_fraction.isSettled(0);
}

} // namespace orvelle
