#include "charts/sample_points.h"
#include "support/odd_numbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvelle {
namespace {

TEST(SampleRatio, IsCappedAtTheTopOnly) {
    EXPECT_EQ(sampleRatio(2, 4), 0.5);
    EXPECT_EQ(sampleRatio(9, 4), 1);
    EXPECT_EQ(sampleRatio(-2, 4), -0.5);
}

TEST(SampleRatio, StaysFiniteForAnySample) {
    EXPECT_EQ(sampleRatio(infinity, 1), 1);
    EXPECT_EQ(sampleRatio(infinity, infinity), 1);
    EXPECT_EQ(sampleRatio(1e308, 0.001), 1);
    EXPECT_EQ(sampleRatio(-infinity, 1), lowestRatio);
    EXPECT_EQ(sampleRatio(-1e308, 0.001), lowestRatio);
    EXPECT_EQ(sampleRatio(notANumber, 1), 0);
}

TEST(SamplePoints, SpreadOverTheWidth) {
    EXPECT_EQ(samplePoints({0, 1, 0.5}, 1, {100, 60}), (QList<QPointF>{{0, 60}, {50, 0}, {100, 30}}));
}

TEST(SamplePoints, StandBelowTheInset) {
    EXPECT_EQ(samplePoints({2, 4}, 4, {10, 11}, 1), (QList<QPointF>{{0, 6}, {10, 1}}));
}

TEST(SamplePoints, PutNegativeSamplesBelowTheCanvas) {
    EXPECT_EQ(samplePoints({-0.5, 3}, 1, {10, 20}), (QList<QPointF>{{0, 30}, {10, 0}}));
}

TEST(SamplePoints, NeedTwoSamples) {
    EXPECT_TRUE(samplePoints({}, 1, {10, 10}).isEmpty());
    EXPECT_TRUE(samplePoints({1}, 1, {10, 10}).isEmpty());
}

TEST(VisiblePoints, AreAllPointsOfAnOrdinaryHistory) {
    QList<double> samples;
    for (int index = 0; index < 60; ++index)
        samples.append(std::sin(index));
    const QList<QPointF> points = samplePoints(samples, 1, {28, 12});
    EXPECT_EQ(visiblePoints(points, 1), points);
}

TEST(VisiblePoints, KeepTheExtremesOfEveryColumn) {
    QList<QPointF> points;
    for (int index = 0; index <= 10000; ++index)
        points.append({index / 1000.0, std::sin(index) * 5});
    points[4321].setY(99);
    points[8765].setY(-99);
    const QList<QPointF> kept = visiblePoints(points, 1);
    EXPECT_LE(kept.size(), 4 * 11);
    EXPECT_TRUE(kept.contains(points[4321]));
    EXPECT_TRUE(kept.contains(points[8765]));
    EXPECT_EQ(kept.first(), points.first());
    EXPECT_EQ(kept.last(), points.last());
    for (qsizetype index = 1; index < kept.size(); ++index)
        EXPECT_GE(kept[index].x(), kept[index - 1].x());
}

TEST(VisiblePoints, SurviveAColumnWithoutWidth) {
    const QList<QPointF> points{{0, 0}, {1, 1}};
    EXPECT_EQ(visiblePoints(points, 0), points);
    EXPECT_EQ(visiblePoints(points, notANumber), points);
    EXPECT_TRUE(visiblePoints({}, 1).isEmpty());
}

TEST(AreaUnder, ReachesFromTheLineToTheBottom) {
    QPainterPath line;
    line.moveTo(0, 10);
    line.lineTo(20, 4);
    const QPainterPath area = areaUnder(line, {{0, 10}, {20, 4}}, 30);
    EXPECT_EQ(area.boundingRect(), QRectF(0, 4, 20, 26));
    EXPECT_TRUE(area.contains(QPointF(19, 29)));
    EXPECT_FALSE(area.contains(QPointF(1, 5)));
}

} // namespace
} // namespace orvelle
