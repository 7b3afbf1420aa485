#pragma once

#include "animation/transition.h"
#include "charts/temperature_gauge.h"
#include "windows/charts/chart_item.h"

namespace orvelle {

/// Shows a `TemperatureGauge` from the top of the item, centred across its width. The dial and its glow ease
/// to another temperature; the reading changes at once.
class TemperatureGaugeItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(TemperatureGauge)
    Q_PRIVATE_PROPERTY(chart(), QString label MEMBER label NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double temperature MEMBER temperature NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double maxTemp MEMBER maxTemp NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool useFahrenheit MEMBER useFahrenheit NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::GlowIntensity glowIntensity MEMBER glowIntensity NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool showGlow MEMBER showGlow NOTIFY changed)

public:
    explicit TemperatureGaugeItem(AnimationClock& clock = AnimationClock::shared());

    /// How full the dial is now, 0 to 1.
    [[nodiscard]] double shownFraction() const { return m_look.shown().fraction; }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    [[nodiscard]] double overhang() const override { return m_chart.overhang(); }
    [[nodiscard]] QSizeF naturalSize() const override { return m_naturalSize; }
    void follow() override;
    void advance(double seconds) override { m_look.advance(seconds); }
    void settle() override { m_look.settle(); }
    [[nodiscard]] bool isMoving() const override { return !m_look.isSettled(); }

private:
    [[nodiscard]] TemperatureGauge* chart() { return &m_chart; }

    TemperatureGauge m_chart;
    QSizeF m_naturalSize;
    Transition<DialLook> m_look;
    PictureCache<TemperatureDial> m_dial;
};

} // namespace orvelle
