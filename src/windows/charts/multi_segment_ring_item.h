#pragma once

#include "animation/transition.h"
#include "charts/ring_charts.h"
#include "windows/charts/chart_item.h"

#include <QVariantList>

namespace orvelle {

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
    Q_PROPERTY(double animatedProgress READ animatedProgress NOTIFY moved)

public:
    explicit MultiSegmentRingItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    [[nodiscard]] const QVariantList& segments() const { return m_segments; }
    void setSegments(const QVariantList& segments);
    [[nodiscard]] double animatedProgress() const { return m_progress.shown(); }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    /// The stroke reaches half its width beyond the ring's square.
    [[nodiscard]] double overhang() const override { return m_chart.lineWidth / 2; }
    [[nodiscard]] QSizeF naturalSize() const override { return {m_chart.size, m_chart.size}; }
    void open() override;
    void advance(double seconds) override { m_progress.advance(seconds); }
    void settle() override { m_progress.settle(); }
    [[nodiscard]] bool isMoving() const override { return !m_progress.isSettled(); }

private:
    [[nodiscard]] MultiSegmentRing* chart() { return &m_chart; }

    MultiSegmentRing m_chart;
    QVariantList m_segments; ///< the chart's segments as they were given
    Transition<double> m_progress;
};

} // namespace orvelle
