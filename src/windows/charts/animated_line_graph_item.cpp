#include "windows/charts/animated_line_graph_item.h"

#include "animation/animation_timing.h"

namespace orvelle {

void AnimatedLineGraphItem::paintChart(QPainter& painter, const QRectF& bounds) {
    AnimatedLineGraph graph = m_chart;
    graph.height = bounds.height();
    graph.animatedData = m_series.shown();
    if (!graph.animatedData.isEmpty())
        graph.data.clear(); // not drawn, so it need not be compared with the kept picture
    graph.paint(painter, bounds, &m_picture);
}

void AnimatedLineGraphItem::follow() {
    if (hasOpened() && m_chart.data != m_series.target())
        m_series.retarget(m_chart.data, lineGraphSeconds, easeInOut());
}

std::chrono::milliseconds AnimatedLineGraphItem::frameInterval() const {
    return std::chrono::milliseconds(static_cast<int>(lineGraphRedrawSeconds * 1000));
}

} // namespace orvelle
