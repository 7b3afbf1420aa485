#pragma once

#include "animation/transition.h"
#include "charts/mini_bar.h"
#include "windows/charts/chart_item.h"

namespace orvelle {

/// Shows a `MiniBar`, which eases to another value.
class MiniBarItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(MiniBar)
    Q_PRIVATE_PROPERTY(chart(), double value MEMBER value NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor color MEMBER color NOTIFY changed)

public:
    explicit MiniBarItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    /// The bar as it looks now.
    [[nodiscard]] BarLook shownLook() const { return m_look.shown(); }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    void follow() override;
    void advance(double seconds) override { m_look.advance(seconds); }
    void settle() override { m_look.settle(); }
    [[nodiscard]] bool isMoving() const override { return !m_look.isSettled(); }

private:
    [[nodiscard]] MiniBar* chart() { return &m_chart; }

    MiniBar m_chart;
    Transition<BarLook> m_look;
};

} // namespace orvelle
