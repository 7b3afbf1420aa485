#include "windows/charts/sparkline_items.h"

#include "windows/charts/optional_values.h"

namespace orvelle {

QVariant SparklineViewItem::fillColor() const {
    return variantOf(m_chart.fillColor);
}

void SparklineViewItem::setFillColor(const QVariant& fillColor) {
    const std::optional<QColor> color = optionalOf<QColor>(fillColor);
    if (m_chart.fillColor == color)
        return;
    m_chart.fillColor = color;
    Q_EMIT changed();
}

void SparklineViewItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.width = bounds.width();
    m_chart.height = bounds.height();
    m_chart.paint(painter, bounds);
}

void DualSparklineViewItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.width = bounds.width();
    m_chart.height = bounds.height();
    m_chart.paint(painter, bounds);
}

} // namespace orvelle
