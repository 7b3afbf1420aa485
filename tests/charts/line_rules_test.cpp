#include "charts/line_rules.h"
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

TEST(LineGraphScale, IsNeverBelowAThousandth) {
    EXPECT_EQ(lineGraphScale(110), 110);
    EXPECT_EQ(lineGraphScale(0), 0.001);
    EXPECT_EQ(lineGraphScale(-5), 0.001);
    EXPECT_EQ(lineGraphScale(notANumber), 0.001);
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

TEST(LineDashes, BreakOnlyTheDottedLine) {
    EXPECT_EQ(lineDashes(GraphLineStyle::dotted), (DashPattern{3, 4}));
    EXPECT_EQ(lineDashes(GraphLineStyle::smooth), std::nullopt);
    EXPECT_EQ(lineDashes(GraphLineStyle::sharp), std::nullopt);
    EXPECT_EQ(lineDashes(GraphLineStyle::stepped), std::nullopt);
}

TEST(GridLines, LieAtTheQuarters) {
    EXPECT_EQ(gridLineHeights(60), (std::array<double, 3>{15, 30, 45}));
}

} // namespace
} // namespace orvelle
