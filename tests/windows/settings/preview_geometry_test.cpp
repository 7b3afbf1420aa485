#include "charts/sparkline_view.h"
#include "windows/settings/preview_geometry.h"

#include <QLineF>
#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace orvelle {
namespace {

constexpr QSizeF frame{50, 24};

QPointF elementAt(const QPainterPath& path, int index) {
    return {path.elementAt(index).x, path.elementAt(index).y};
}

void expectNear(const QPointF& point, double x, double y) {
    EXPECT_NEAR(point.x(), x, 1e-9);
    EXPECT_NEAR(point.y(), y, 1e-9);
}

TEST(PreviewLineTest, JoinsSevenSamplesByStraightLines) {
    const std::array samples{0.3, 0.6, 0.4, 0.8, 0.5, 0.7, 0.3};
    for (const GraphLineStyle style : {GraphLineStyle::sharp, GraphLineStyle::dotted}) {
        const QPainterPath line = previewLine(style, frame);
        ASSERT_EQ(line.elementCount(), 7);
        for (int index = 0; index < 7; ++index)
            expectNear(elementAt(line, index), 50.0 * index / 6,
                       24 - 24 * samples[static_cast<std::size_t>(index)]);
    }
}

TEST(PreviewLineTest, IsHorizontalAtEachSampleWhenSmooth) {
    const QPainterPath line = previewLine(GraphLineStyle::smooth, frame);
    ASSERT_EQ(line.elementCount(), 1 + 6 * 3);
    const double middle = 50.0 / 12;
    expectNear(elementAt(line, 0), 0, 24 - 24 * 0.3);
    expectNear(elementAt(line, 1), middle, 24 - 24 * 0.3);
    expectNear(elementAt(line, 2), middle, 24 - 24 * 0.6);
    expectNear(elementAt(line, 3), 50.0 / 6, 24 - 24 * 0.6);
}

TEST(PreviewLineTest, MovesHorizontallyAndThenVerticallyWhenStepped) {
    const QPainterPath line = previewLine(GraphLineStyle::stepped, frame);
    ASSERT_EQ(line.elementCount(), 1 + 6 * 2);
    expectNear(elementAt(line, 1), 50.0 / 6, 24 - 24 * 0.3);
    expectNear(elementAt(line, 2), 50.0 / 6, 24 - 24 * 0.6);
}

TEST(PreviewLineTest, IsDashedOnlyWhenDotted) {
    for (const GraphLineStyle style :
         {GraphLineStyle::smooth, GraphLineStyle::sharp, GraphLineStyle::stepped, GraphLineStyle::dotted}) {
        const QPen pen = previewLinePen(style, Qt::red);
        EXPECT_EQ(pen.widthF(), 1.5);
        EXPECT_EQ(pen.capStyle(), Qt::RoundCap);
        EXPECT_EQ(pen.joinStyle(), Qt::SvgMiterJoin);
        EXPECT_EQ(pen.miterLimit(), 10);
        EXPECT_EQ(pen.style() != Qt::SolidLine, style == GraphLineStyle::dotted);
    }
    const QList<qreal> dashes = previewLinePen(GraphLineStyle::dotted, Qt::red).dashPattern();
    ASSERT_EQ(dashes.size(), 2);
    EXPECT_DOUBLE_EQ(dashes[0] * 1.5, 2);
    EXPECT_DOUBLE_EQ(dashes[1] * 1.5, 3);
}

TEST(PreviewBarsTest, StandOnTheBottomTwoPointsApartInTheHeightOfTheirSamples) {
    const std::array heights{8.0, 14.0, 10.0, 18.0, 6.0};
    for (const BarChartStyle style :
         {BarChartStyle::rounded, BarChartStyle::square, BarChartStyle::pill, BarChartStyle::thinLine}) {
        const double width = style == BarChartStyle::thinLine ? 2 : 6;
        const QList<QRectF> bars = previewBars(style, frame);
        ASSERT_EQ(bars.size(), 5);
        for (qsizetype index = 0; index < 5; ++index) {
            EXPECT_DOUBLE_EQ(bars[index].height(), heights[static_cast<std::size_t>(index)]);
            EXPECT_DOUBLE_EQ(bars[index].bottom(), 24);
            EXPECT_DOUBLE_EQ(bars[index].width(), width);
        }
        for (qsizetype index = 1; index < 5; ++index)
            EXPECT_DOUBLE_EQ(bars[index].left() - bars[index - 1].right(), 2);
        EXPECT_DOUBLE_EQ(bars.first().left(), 50 - bars.last().right());
    }
}

TEST(PreviewBarsTest, HaveTheShapeOfTheirStyle) {
    const QRectF bar(0, 0, 6, 18);
    const auto corner = [&](BarChartStyle style, double offset) {
        return previewBarShape(style, bar).contains(QPointF(offset, offset));
    };
    EXPECT_TRUE(corner(BarChartStyle::square, 0.05));
    EXPECT_FALSE(corner(BarChartStyle::thinLine, 0.05));
    EXPECT_TRUE(corner(BarChartStyle::thinLine, 0.3));
    EXPECT_FALSE(corner(BarChartStyle::rounded, 0.3));
    EXPECT_TRUE(corner(BarChartStyle::rounded, 0.8));
    EXPECT_FALSE(corner(BarChartStyle::pill, 0.8));
    for (const BarChartStyle style :
         {BarChartStyle::rounded, BarChartStyle::square, BarChartStyle::pill, BarChartStyle::thinLine})
        EXPECT_EQ(previewBarShape(style, bar).boundingRect(), bar);
}

/// The angle of a point around a ring's center, in degrees clockwise from three o'clock.
double angleOf(const QPointF& point, double middle = 12) {
    return -QLineF({25, middle}, point).angle() + 360;
}

/// The bounds of the stroke, half of which lies outside of its path.
QRectF inkedBounds(const QPainterPath& line) {
    QPainterPathStroker stroker;
    stroker.setWidth(previewRingStroke);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(line).boundingRect();
}

TEST(PreviewRingTest, FillsSevenTenthsOfTheStylesTrack) {
    const PreviewRing ring = previewRing(RingChartStyle::fullRing, frame);
    EXPECT_FALSE(ring.isFilled);
    expectNear(ring.progress.pointAtPercent(0), 25, 12 - 9.5);
    EXPECT_NEAR(angleOf(ring.progress.currentPosition()), 162, 0.1);
    EXPECT_NEAR(inkedBounds(ring.track).width(), previewRingSide, 0.05);

    const PreviewRing half = previewRing(RingChartStyle::halfGauge, frame);
    const double halfMiddle = 12 + 9.5 / 2;
    EXPECT_NEAR(angleOf(half.track.pointAtPercent(0), halfMiddle), 180, 0.1) << "from nine o'clock";
    EXPECT_NEAR(angleOf(half.progress.currentPosition(), halfMiddle), 180 + 0.7 * 180, 0.1);

    const PreviewRing arc = previewRing(RingChartStyle::arcGauge, frame);
    const double arcMiddle = 12 + 9.5 * (1 - std::sqrt(0.5)) / 2;
    EXPECT_NEAR(angleOf(arc.track.pointAtPercent(0), arcMiddle), 135, 0.1);
    EXPECT_NEAR(angleOf(arc.progress.currentPosition(), arcMiddle), 135 + 0.7 * 270, 0.1);
}

TEST(PreviewRingTest, CentersItsVisiblePartInTheFrame) {
    for (const RingChartStyle style :
         {RingChartStyle::fullRing, RingChartStyle::halfGauge, RingChartStyle::arcGauge}) {
        const QRectF inked = inkedBounds(previewRing(style, frame).track);
        EXPECT_NEAR(inked.center().x(), 25, 0.05);
        EXPECT_NEAR(inked.center().y(), 12, 0.05);
        EXPECT_NEAR(inked.width(), previewRingSide, 0.05);
    }
}

TEST(PreviewRingTest, CutsAWedgeFromTwelveOClockWhenItIsAPie) {
    const PreviewRing pie = previewRing(RingChartStyle::pieChart, frame);
    EXPECT_TRUE(pie.isFilled);
    const auto at = [](double degrees) {
        return QPointF(25, 12) +
               QPointF(8 * std::cos(degrees * M_PI / 180), 8 * std::sin(degrees * M_PI / 180));
    };
    EXPECT_TRUE(pie.progress.contains(at(-88)));
    EXPECT_TRUE(pie.progress.contains(at(160)));
    EXPECT_FALSE(pie.progress.contains(at(164)));
    EXPECT_FALSE(pie.progress.contains(at(-92)));
    EXPECT_TRUE(pie.track.contains(at(-92)));
}

TEST(ThemeCardTest, SeparatesItsBarsAndDotsInsideTheCard) {
    for (const double width : {72.0, 92.0, 112.0}) {
        const QRectF content(0, 0, width, 58);
        const ThemeCardLayout layout = themeCardLayout(content);
        ASSERT_EQ(layout.bars.size(), 6);
        ASSERT_EQ(layout.dots.size(), 5);
        for (const QRectF& shape : layout.bars + layout.dots)
            EXPECT_TRUE(content.contains(shape));
        for (qsizetype index = 1; index < layout.bars.size(); ++index)
            EXPECT_GT(layout.bars[index].left(), layout.bars[index - 1].right());
        EXPECT_LT(layout.bars.first().bottom(), layout.dots.first().top());
        EXPECT_NEAR(layout.bars.first().left(), width - layout.bars.last().right(), 1e-9);
    }
}

} // namespace
} // namespace orvelle
