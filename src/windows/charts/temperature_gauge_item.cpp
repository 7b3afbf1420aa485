#include "windows/charts/temperature_gauge_item.h"

#include "animation/animation_timing.h"
#include "theme/fonts.h"

namespace orvelle {

TemperatureGaugeItem::TemperatureGaugeItem(AnimationClock& clock)
    : ChartItem(clock)
    , m_naturalSize(TemperatureGauge::dialSize, m_chart.height()) {
    setImplicitSize(m_naturalSize.width(), m_naturalSize.height());
    connect(&FontChanges::shared(), &FontChanges::changed, this, [this] {
        m_naturalSize.setHeight(m_chart.height());
        Q_EMIT changed();
    });
}

void TemperatureGaugeItem::paintChart(QPainter& painter, const QRectF& bounds) {
    m_chart.paint(painter, bounds, m_look.shown(), &m_dial);
}

void TemperatureGaugeItem::follow() {
    const DialLook look = m_chart.look();
    const DialLook& target = m_look.target();
    // Only another fraction moves; another colour alone shows at once.
    if (look.fraction != target.fraction)
        m_look.retarget(look, temperatureGaugeSeconds, easeInOut());
    else if (look != target)
        m_look.jump(look);
}

} // namespace orvelle
