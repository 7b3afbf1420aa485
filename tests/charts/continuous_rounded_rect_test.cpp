#include "charts/continuous_rounded_rect.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace orvelle {
namespace {

/// Curvature of a path at a share of its length, from three nearby points.
double curvatureAt(const QPainterPath& path, double share) {
    const double step = 0.002;
    const QPointF before = path.pointAtPercent(share - step);
    const QPointF here = path.pointAtPercent(share);
    const QPointF after = path.pointAtPercent(share + step);
    const QPointF first = here - before;
    const QPointF second = after - here;
    const double turn = std::atan2(first.x() * second.y() - first.y() * second.x(),
                                   first.x() * second.x() + first.y() * second.y());
    return turn / std::hypot((second.x() + first.x()) / 2, (second.y() + first.y()) / 2);
}

TEST(ContinuousRoundedRect, FillsItsRectangleButTheCorners) {
    const QRectF rectangle(10, 20, 60, 40);
    const QPainterPath path = continuousRoundedRect(rectangle, 10);
    EXPECT_EQ(path.boundingRect(), rectangle);
    EXPECT_TRUE(path.contains(QPointF(40, 20.5)));
    EXPECT_FALSE(path.contains(QPointF(11, 21)));
    EXPECT_FALSE(path.contains(QPointF(69, 59)));
}

TEST(ContinuousRoundedRect, MeetsTheCircleInTheMiddleOfTheCorner) {
    const QPainterPath path = continuousRoundedRect({0, 0, 100, 100}, 20);
    const double inward = 20 - 20 / std::numbers::sqrt2;
    EXPECT_TRUE(path.contains(QPointF(inward + 0.05, inward + 0.05)));
    EXPECT_FALSE(path.contains(QPointF(inward - 0.05, inward - 0.05)));
}

TEST(ContinuousRoundedRect, BendsEarlierThanACircleAndWithoutAJump) {
    const QPainterPath path = continuousRoundedRect({0, 0, 100, 100}, 20);
    QPainterPath circular;
    circular.addRoundedRect({0, 0, 100, 100}, 20, 20);
    EXPECT_TRUE(circular.contains(QPointF(22, 0.03)));
    EXPECT_FALSE(path.contains(QPointF(22, 0.03))) << "it has left the edge more than a radius before";
    double previous = curvatureAt(path, 0.01);
    for (double share = 0.01; share < 0.25; share += 0.001) {
        const double curvature = curvatureAt(path, share);
        EXPECT_LT(std::abs(curvature - previous), 0.2 / 20) << "at " << share;
        EXPECT_LT(curvature, 1.25 / 20) << "hardly tighter than the circle";
        previous = curvature;
    }
}

TEST(ContinuousRoundedRect, IsSymmetric) {
    const QPainterPath path = continuousRoundedRect({0, 0, 80, 50}, 12);
    for (double x = 0.25; x < 20; x += 0.5) {
        for (double y = 0.25; y < 20; y += 0.5) {
            const bool isInside = path.contains(QPointF(x, y));
            EXPECT_EQ(path.contains(QPointF(80 - x, y)), isInside);
            EXPECT_EQ(path.contains(QPointF(x, 50 - y)), isInside);
            EXPECT_EQ(path.contains(QPointF(80 - x, 50 - y)), isInside);
        }
    }
}

TEST(ContinuousRoundedRect, ClampsTheRadiusToHalfTheShorterSide) {
    EXPECT_EQ(continuousRoundedRect({0, 0, 30, 10}, 50), continuousRoundedRect({0, 0, 30, 10}, 5));
    EXPECT_EQ(continuousCapsule({0, 0, 30, 10}), continuousRoundedRect({0, 0, 30, 10}, 5));
}

TEST(ContinuousRoundedRect, IsACircleWhereThereIsNoRoomToBendEarlier) {
    const QPainterPath path = continuousCapsule({0, 0, 40, 40});
    for (double share = 0; share < 1; share += 0.01) {
        const QPointF fromCentre = path.pointAtPercent(share) - QPointF(20, 20);
        EXPECT_NEAR(std::hypot(fromCentre.x(), fromCentre.y()), 20, 0.02);
    }
}

TEST(ContinuousRoundedRect, IsARectangleWithoutARadius) {
    QPainterPath rectangle;
    rectangle.addRect({1, 2, 3, 4});
    EXPECT_EQ(continuousRoundedRect({1, 2, 3, 4}, 0), rectangle);
    EXPECT_EQ(continuousRoundedRect({1, 2, 3, 4}, -1), rectangle);
    EXPECT_EQ(continuousRoundedRect({1, 2, 3, 4}, std::numeric_limits<double>::quiet_NaN()), rectangle);
}

TEST(ContinuousRoundedRect, IsEmptyWithoutAnArea) {
    EXPECT_TRUE(continuousRoundedRect({0, 0, 0, 10}, 3).isEmpty());
    EXPECT_TRUE(continuousRoundedRect({0, 0, 10, -1}, 3).isEmpty());
    EXPECT_TRUE(continuousRoundedRect({0, 0, std::numeric_limits<double>::infinity(), 5}, 3).isEmpty());
}

} // namespace
} // namespace orvelle
