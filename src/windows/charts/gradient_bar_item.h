#pragma once

#include "animation/spring.h"
#include "charts/plain_bars.h"
#include "windows/charts/chart_item.h"

namespace orvelle {

/// Shows a `GradientBar`, whose fill follows its fraction by a spring. A bar that is new stands at its
/// fraction from the start.
class GradientBarItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(GradientBar)
    Q_PRIVATE_PROPERTY(chart(), double fraction MEMBER fraction NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor color MEMBER color NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor trackColor MEMBER trackColor NOTIFY changed)

public:
    explicit GradientBarItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    /// How much is filled now; passes the ends while the spring overshoots.
    [[nodiscard]] double shownFraction() const { return m_fraction.position(); }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    [[nodiscard]] double overhang() const override { return overshoot(m_fraction.position()) * width(); }
    void follow() override { m_fraction.retarget(m_chart.fraction); }
    void advance(double seconds) override;
    void settle() override { m_fraction.jump(m_chart.fraction); }
    [[nodiscard]] bool isMoving() const override;

private:
    [[nodiscard]] GradientBar* chart() { return &m_chart; }

    GradientBar m_chart;
    Spring m_fraction{0};
};

} // namespace orvelle
