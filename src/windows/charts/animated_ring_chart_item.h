#pragma once

#include "animation/transition.h"
#include "charts/ring_charts.h"
#include "windows/charts/chart_item.h"

#include <QVariant>

namespace orvelle {

/// Shows an `AnimatedRingChart` in the middle of the item. It fills when it is first shown, eases to another
/// value, and pulses while that is critical.
class AnimatedRingChartItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(AnimatedRingChart)
    Q_PRIVATE_PROPERTY(chart(), double value MEMBER value NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double lineWidth MEMBER lineWidth NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double size MEMBER size NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor baseColor MEMBER baseColor NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor trackColor MEMBER trackColor NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool showGlow MEMBER showGlow NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool pulseCritical MEMBER pulseCritical NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double criticalThreshold MEMBER criticalThreshold NOTIFY changed)
    /// Text; null for none.
    Q_PROPERTY(QVariant label READ label WRITE setLabel NOTIFY changed)
    Q_PROPERTY(QVariant sublabel READ sublabel WRITE setSublabel NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::RingChartStyle ringStyle MEMBER ringStyle NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::GlowIntensity glowIntensity MEMBER glowIntensity NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::AnimationSpeed animationSpeed MEMBER animationSpeed NOTIFY changed)
    /// The fraction that is drawn now; 0 until the ring is first shown.
    Q_PROPERTY(double animatedValue READ animatedValue NOTIFY moved)
    /// The scale of the pulse now, 1 to 1.03; it is drawn only while the value is critical.
    Q_PROPERTY(double pulseScale READ pulseScale NOTIFY moved)

public:
    explicit AnimatedRingChartItem(AnimationClock& clock = AnimationClock::shared());

    [[nodiscard]] double animatedValue() const { return m_fraction.shown(); }
    [[nodiscard]] double pulseScale() const;
    [[nodiscard]] QVariant label() const;
    void setLabel(const QVariant& label);
    [[nodiscard]] QVariant sublabel() const;
    void setSublabel(const QVariant& sublabel);

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    [[nodiscard]] double overhang() const override { return m_chart.overhang(); }
    [[nodiscard]] QSizeF naturalSize() const override { return {m_chart.size, m_chart.size}; }
    void follow() override;
    void open() override;
    void advance(double seconds) override { m_fraction.advance(seconds); }
    void settle() override { m_fraction.settle(); }
    [[nodiscard]] bool isMoving() const override { return !m_fraction.isSettled() || isPulsing(); }
    [[nodiscard]] std::chrono::milliseconds frameInterval() const override;

private:
    [[nodiscard]] AnimatedRingChart* chart() { return &m_chart; }
    /// Moves to the present value along `curve`, or shows it at once without `seconds`.
    void moveToValue(std::optional<double> seconds, const QEasingCurve& curve);
    [[nodiscard]] bool isCritical() const;
    [[nodiscard]] bool isPulsing() const { return m_pulseStart && isCritical(); }
    void setText(std::optional<QString>& field, const QVariant& text);

    AnimatedRingChart m_chart;
    double m_followedValue = 0; ///< the value that the ring shows or moves to
    Transition<double> m_fraction;
    std::optional<double> m_pulseStart; ///< when the pulse began; once begun it goes on for ever
    PictureCache<AnimatedRingChart> m_picture;
};

} // namespace orvelle
