#pragma once

#include "charts/animated_bar_chart.h"
#include "windows/charts/chart_item.h"

#include <vector>

namespace orvelle {

/// Shows an `AnimatedBarChart`. The height and the colour of a bar follow its value by a spring; new bars
/// show their value at once.
class AnimatedBarChartItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(AnimatedBarChart)
    Q_PRIVATE_PROPERTY(chart(), QList<double> values MEMBER values NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double maxValue MEMBER maxValue NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double barSpacing MEMBER barSpacing NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor baseColor MEMBER baseColor NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool showGlow MEMBER showGlow NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), bool animateChanges MEMBER animateChanges NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::BarChartStyle barStyle MEMBER barStyle NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::GlowIntensity glowIntensity MEMBER glowIntensity NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), orvelle::AnimationSpeed animationSpeed MEMBER animationSpeed NOTIFY changed)

public:
    explicit AnimatedBarChartItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    /// The bars as they look now.
    [[nodiscard]] QList<BarLook> shownLooks() const;

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    [[nodiscard]] double overhang() const override;
    [[nodiscard]] QSizeF naturalSize() const override { return {0, m_chart.height}; }
    void follow() override;
    void advance(double seconds) override;
    void settle() override;
    [[nodiscard]] bool isAnimating() const override;
    [[nodiscard]] bool hasMoved() const override;

private:
    [[nodiscard]] AnimatedBarChart* chart() { return &m_chart; }
    /// The spring of the bars; nothing when changes show at once.
    [[nodiscard]] std::optional<SpringParameters> spring() const;
    void followBar(std::size_t index, const BarLook& look);

    AnimatedBarChart m_chart; ///< its height is the implicit height of the item
    std::vector<BarAnimation> m_bars;
    QList<BarLook> m_targets; ///< of `m_bars`
    QList<BarLook> m_painted; ///< `m_bars` when the chart was last painted
    PictureCache<BarPicture> m_pictures;
};

} // namespace orvelle
