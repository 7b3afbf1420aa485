#pragma once

#include "animation/spring.h"
#include "charts/plain_bars.h"
#include "windows/charts/chart_item.h"

#include <QColor>
#include <QQuickPaintedItem>

/// The plain shapes for QML.
namespace orvelle {

/// Shows a `GradientBar`, whose fill follows its fraction by a spring. The first fraction shows at once.
class GradientBarItem : public orvelle::ChartItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(GradientBar)
    Q_PRIVATE_PROPERTY(chart(), double fraction MEMBER fraction NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor color MEMBER color NOTIFY changed)
    Q_PRIVATE_PROPERTY(chart(), QColor trackColor MEMBER trackColor NOTIFY changed)

public:
    explicit GradientBarItem(AnimationClock& clock = AnimationClock::shared())
        : ChartItem(clock) {}

    /// The fraction that is drawn now; passes the ends while the spring overshoots.
    [[nodiscard]] double shownFraction() const { return m_fraction.position(); }

protected:
    void paintChart(QPainter& painter, const QRectF& bounds) override;
    [[nodiscard]] double overhang() const override { return overshoot(m_fraction.position()) * width(); }
    void follow() override { m_fraction.retarget(m_chart.fraction); }
    void advance(double seconds) override;
    void settle() override { m_fraction.jump(m_chart.fraction); }
    [[nodiscard]] bool isAnimating() const override { return !m_fraction.isSettled(0); }

private:
    [[nodiscard]] GradientBar* chart() { return &m_chart; }

    GradientBar m_chart;
    Spring m_fraction{0};
};

/// A rectangle of one colour in the shape of `continuousRoundedRect`.
class ContinuousRectangleItem : public QQuickPaintedItem {
    Q_OBJECT
    QML_NAMED_ELEMENT(ContinuousRectangle)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    explicit ContinuousRectangleItem(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor m_color = Qt::transparent;
    double m_radius = 0;
};

} // namespace orvelle
