#include "charts/quick/temperature_gauge_item.h"

#include "charts/animation_rules.h"

namespace orvelle {

TemperatureGaugeItem::TemperatureGaugeItem(Motion& motion)
    : ChartItem(motion)
    , m_naturalSize(TemperatureGauge::dialSize, m_chart.height()) {
    setImplicitSize(m_naturalSize.width(), m_naturalSize.height());
}

void TemperatureGaugeItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.paint(painter, bounds, shownFraction(), &m_dial);
}

void TemperatureGaugeItem::follow() {
    const double fraction = m_chart.fraction();
    if (fraction != m_fraction.target())
        m_fraction.retarget(fraction, temperatureGaugeSeconds, easeInOut());
}

} // namespace orvelle
