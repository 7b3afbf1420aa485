#include "charts/line_geometry.h"
#include "support/odd_numbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvelle {
namespace {

std::vector<QPainterPath::Element> elementsOf(const QPainterPath& path) {
    std::vector<QPainterPath::Element> elements;
    for (int index = 0; index < path.elementCount(); ++index)
        elements.push_back(path.elementAt(index));
    return elements;
}

std::vector<QPointF> positionsOf(const QPainterPath& path) {
    std::vector<QPointF> positions;
    for (const QPainterPath::Element& element : elementsOf(path))
        positions.push_back(element);
    return positions;
}

bool isStraight(const QPainterPath& path) {
    for (const QPainterPath::Element& element : elementsOf(path)) {
        if (element.type == QPainterPath::CurveToElement)
            return false;
    }
    return true;
}

void expectNear(const QPointF& actual, const QPointF& expected) {
    EXPECT_NEAR(actual.x(), expected.x(), 1e-9);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-9);
}

TEST(DampedControls, OfEvenlySpacedPointsLieASixthOfTheNeighboursApart) {
    const auto [first, second] = dampedControls({0, 0}, {10, 0}, {20, 0}, {30, 0});
    expectNear(first, {10 + 20.0 / 6, 0});
    expectNear(second, {20 - 20.0 / 6, 0});
}

TEST(DampedControls, AreDampedByTheRatioOfTheChords) {
    const auto [first, second] = dampedControls({0, 0}, {30, 0}, {40, 0}, {45, 0});
    expectNear(first, {30 + 40 / (3 * (1 + 3.0)), 0});
    expectNear(second, {40 - 15 / (3 * (1 + 0.5)), 0});
}

TEST(DampedControls, AreTheEndPointsWhereAChordHasNoLength) {
    const auto [first, second] = dampedControls({10, 5}, {10, 5}, {20, 9}, {20, 9});
    expectNear(first, {10, 5});
    expectNear(second, {20, 9});
    const auto [third, fourth] = dampedControls({0, 0}, {10, 5}, {10, 5}, {20, 9});
    expectNear(third, {10, 5});
    expectNear(fourth, {10, 5});
}

TEST(LinePath, IsEmptyForFewerThanTwoPoints) {
    EXPECT_TRUE(linePath({}, GraphLineStyle::smooth).isEmpty());
    EXPECT_TRUE(linePath({{1, 1}}, GraphLineStyle::stepped).isEmpty());
}

TEST(LinePath, OfTwoPointsIsStraightInEveryStyleButStepped) {
    for (const auto style : {GraphLineStyle::smooth, GraphLineStyle::sharp, GraphLineStyle::dotted}) {
        EXPECT_EQ(positionsOf(linePath({{0, 8}, {10, 2}}, style)), (std::vector<QPointF>{{0, 8}, {10, 2}}));
        EXPECT_TRUE(isStraight(linePath({{0, 8}, {10, 2}}, style)));
    }
}

TEST(LinePath, StepsAcrossAndThenUp) {
    EXPECT_EQ(positionsOf(linePath({{0, 8}, {10, 2}, {20, 5}}, GraphLineStyle::stepped)),
              (std::vector<QPointF>{{0, 8}, {10, 8}, {10, 2}, {20, 2}, {20, 5}}));
}

TEST(LinePath, JoinsSharpAndDottedPointsStraight) {
    for (const auto style : {GraphLineStyle::sharp, GraphLineStyle::dotted}) {
        const QPainterPath path = linePath({{0, 8}, {10, 2}, {20, 5}}, style);
        EXPECT_TRUE(isStraight(path));
        EXPECT_EQ(positionsOf(path), (std::vector<QPointF>{{0, 8}, {10, 2}, {20, 5}}));
    }
}

TEST(LinePath, CurvesSmoothPointsWithALevelTangentAtBothEnds) {
    const QList<QPointF> points{{0, 8}, {10, 2}, {20, 5}};
    const std::vector<QPointF> positions = positionsOf(linePath(points, GraphLineStyle::smooth));
    ASSERT_EQ(positions.size(), 7U);
    EXPECT_EQ(positions[1], points[0]) << "the first control point is the first point";
    EXPECT_EQ(positions[5], points[2]) << "the last control point is the last point";
    const auto first = dampedControls(points[0], points[0], points[1], points[2]);
    const auto second = dampedControls(points[0], points[1], points[2], points[2]);
    EXPECT_EQ(positions[2], first.second);
    EXPECT_EQ(positions[3], points[1]);
    EXPECT_EQ(positions[4], second.first);
    EXPECT_EQ(positions[6], points[2]);
}

TEST(LinePath, DoesNotOvershootAStep) {
    QList<QPointF> points;
    for (int index = 0; index < 10; ++index)
        points.append({index * 10.0, index < 5 ? 50.0 : 10.0});
    const QRectF extent = linePath(points, GraphLineStyle::smooth).boundingRect();
    EXPECT_GT(extent.top(), 10 - 2);
    EXPECT_LT(extent.bottom(), 50 + 2);
}

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

TEST(SamplePoints, StayBelowTheInset) {
    EXPECT_EQ(samplePoints({2, 4}, 4, {10, 11}, 1), (QList<QPointF>{{0, 6}, {10, 1}}));
}

TEST(SamplePoints, AreBelowTheCanvasForNegativeSamples) {
    EXPECT_EQ(samplePoints({-0.5, 3}, 1, {10, 20}), (QList<QPointF>{{0, 30}, {10, 0}}));
}

TEST(SamplePoints, NeedTwoSamples) {
    EXPECT_TRUE(samplePoints({}, 1, {10, 10}).isEmpty());
    EXPECT_TRUE(samplePoints({1}, 1, {10, 10}).isEmpty());
}

TEST(VisiblePoints, AreAllPointsOfAShortHistory) {
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

TEST(VisiblePoints, AreAllPointsForAColumnWithoutWidth) {
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
