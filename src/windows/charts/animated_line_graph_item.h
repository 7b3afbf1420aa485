#pragma once

#include "animation/transition.h"
#include "charts/animated_line_graph.h"
#include "windows/charts/chart_item.h"

namespace orvelle {

/// Shows an `AnimatedLineGraph`. The line eases from the shown series to a new one.
class AnimatedLineGraphItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(AnimatedLineGraph)
    Q_PRIVATE_PROPERTY(chart(), QList<double> data MEMBER data NOTIFY changed FINAL)
    Q_PRIVATE_PROPERTY(chart(), double maxValue MEMBER maxValue NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor lineColor MEMBER lineColor NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool fillGradient MEMBER fillGradient NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool showGlow MEMBER showGlow NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double lineWidth MEMBER lineWidth NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::GraphLineStyle lineStyle MEMBER lineStyle NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::GraphFillStyle fillStyle MEMBER fillStyle NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::GlowIntensity glowIntensity MEMBER glowIntensity NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor gridColor MEMBER gridColor NOTIFY changed)
    /// The series that is drawn now; empty until the graph is first shown.
    Q_PROPERTY(QList<double> animatedData READ animatedData NOTIFY animated)

public:
    explicit AnimatedLineGraphItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    [[nodiscard]] QList<double> animatedData() const { return m_series.shown(); }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    [[nodiscard]] QSizeF naturalSize() const override { return {0, m_chart.height}; }
    void follow() override;
    void open() override { m_series.jump(m_chart.data); }
    void advance(double seconds) override { m_series.advance(seconds); }
    void settle() override { m_series.settle(); }
    [[nodiscard]] bool isAnimating() const override { return !m_series.isSettled(); }
    [[nodiscard]] std::chrono::milliseconds frameInterval() const override;

private:
    [[nodiscard]] AnimatedLineGraph* chart() { return &m_chart; }

    AnimatedLineGraph m_chart; ///< its height is the implicit height of the item
    Transition<QList<double>> m_series;
    PictureCache<AnimatedLineGraph> m_picture;
};

} // namespace orvelle
