#include "windows/charts/mini_bar_item.h"

#include "animation/animation_timing.h"

namespace orvelle {

void MiniBarItem::paintChart(QPainter& painter, const QRectF& bounds) {
    MiniBar::paint(painter, bounds, m_look.shown());
}

void MiniBarItem::follow() {
    const BarLook look = m_chart.look();
    if (look.ratio != m_look.target().ratio)
        m_look.retarget(look, miniBarSeconds, easeInOut());
    else if (look != m_look.target())
        m_look.jump(look);
}

} // namespace orvelle
