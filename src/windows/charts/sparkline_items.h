#pragma once

#include "charts/sparkline_view.h"
#include "windows/charts/chart_item.h"

namespace orvelle {

/// Shows a `SparklineView` of the item's size. It never moves.
class SparklineViewItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(SparklineView)
    Q_PRIVATE_PROPERTY(chart(), QList<double> data MEMBER data NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double maxValue MEMBER maxValue NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor lineColor MEMBER lineColor NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), double lineWidth MEMBER lineWidth NOTIFY changed)
    /// Colour of the area; null for the line's colour at the usual opacity.
    Q_PROPERTY(QVariant fillColor READ fillColor WRITE setFillColor NOTIFY changed)

public:
    explicit SparklineViewItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    [[nodiscard]] QVariant fillColor() const;
    void setFillColor(const QVariant& fillColor);

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;

private:
    [[nodiscard]] SparklineView* chart() { return &m_chart; }

    SparklineView m_chart;
};

/// Shows a `DualSparklineView` of the item's size. It never moves.
class DualSparklineViewItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(DualSparklineView)
    Q_PRIVATE_PROPERTY(chart(), QList<double> topData MEMBER topData NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QList<double> bottomData MEMBER bottomData NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor topColor MEMBER topColor NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor bottomColor MEMBER bottomColor NOTIFY changed)

public:
    explicit DualSparklineViewItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;

private:
    [[nodiscard]] DualSparklineView* chart() { return &m_chart; }

    DualSparklineView m_chart;
};

} // namespace orvelle
