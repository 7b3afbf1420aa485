#pragma once

#include "animation/transition.h"
#include "charts/ring_charts.h"
#include "charts/temperature_gauge.h"
#include "windows/charts/chart_item.h"

#include <QVariant>
#include <QVariantList>

#include <optional>

/// The rings and the gauge for QML.
namespace orvelle {

/// Shows an `AnimatedRingChart` in the middle of the item. It fills when it is first shown, eases to another
/// value, and pulses while the value is critical.
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
    Q_PROPERTY(double animatedValue READ animatedValue NOTIFY animated)
    /// The scale of the pulse now, 1 to 1.03; it is drawn only while the value is critical.
    Q_PROPERTY(double pulseScale READ pulseScale NOTIFY animated)

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
    [[nodiscard]] bool isAnimating() const override { return !m_fraction.isSettled() || isPulsing(); }

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
    std::optional<double> m_pulseStart; ///< when the pulse first began; it never ends, but may be hidden
    PictureCache<AnimatedRingChart> m_picture;
};

/// Shows a `MultiSegmentRing` in the middle of the item. It opens when it is first shown; other segments show
/// at once.
class MultiSegmentRingItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(MultiSegmentRing)
    /// Objects with the fields `value` (a number) and `color`.
    Q_PROPERTY(QVariantList segments READ segments WRITE setSegments NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double lineWidth MEMBER lineWidth NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double size MEMBER size NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor trackColor MEMBER trackColor NOTIFY changed)
    /// How far the ring has opened, 0 to 1.
    Q_PROPERTY(double animatedProgress READ animatedProgress NOTIFY animated)

public:
    explicit MultiSegmentRingItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    [[nodiscard]] const QVariantList& segments() const { return m_segments; }
    void setSegments(const QVariantList& segments);
    [[nodiscard]] double animatedProgress() const { return m_progress.shown(); }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    /// Half of the stroke's width lies outside the ring's square.
    [[nodiscard]] double overhang() const override { return m_chart.lineWidth / 2; }
    [[nodiscard]] QSizeF naturalSize() const override { return {m_chart.size, m_chart.size}; }
    void open() override;
    void advance(double seconds) override { m_progress.advance(seconds); }
    void settle() override { m_progress.settle(); }
    [[nodiscard]] bool isAnimating() const override { return !m_progress.isSettled(); }

private:
    [[nodiscard]] MultiSegmentRing* chart() { return &m_chart; }

    MultiSegmentRing m_chart;
    QVariantList m_segments; ///< as QML gave them
    Transition<double> m_progress;
};

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
    [[nodiscard]] bool isAnimating() const override { return !m_look.isSettled(); }

private:
    [[nodiscard]] TemperatureGauge* chart() { return &m_chart; }

    TemperatureGauge m_chart;
    QSizeF m_naturalSize;
    Transition<DialLook> m_look;
    PictureCache<TemperatureDial> m_dial;
};

} // namespace orvelle
