#include "charts/ring_geometry.h"
#include "support/odd_numbers.h"
#include "theme/colors.h"

#include <gtest/gtest.h>

#include <numbers>

namespace orvelle {
namespace {

const QRectF square(0, 0, 100, 100);

void expectSamePoint(const QPointF& actual, const QPointF& expected) {
    EXPECT_NEAR(actual.x(), expected.x(), 1e-3);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-3);
}

TEST(ClampedFraction, IsBetweenZeroAndOne) {
    EXPECT_EQ(clampedFraction(0.4), 0.4);
    EXPECT_EQ(clampedFraction(1.4), 1);
    EXPECT_EQ(clampedFraction(-0.2), 0);
    EXPECT_EQ(clampedFraction(infinity), 1);
    EXPECT_EQ(clampedFraction(notANumber), 0);
}

TEST(RingStatusColor, ChangesAtItsThresholds) {
    EXPECT_EQ(ringStatusColor(-0.2, Qt::blue), QColor(Qt::blue));
    EXPECT_EQ(ringStatusColor(0.5999, Qt::blue), QColor(Qt::blue));
    EXPECT_EQ(ringStatusColor(0.6, Qt::blue), SystemColors::yellow);
    EXPECT_EQ(ringStatusColor(0.7999, Qt::blue), SystemColors::yellow);
    EXPECT_EQ(ringStatusColor(0.8, Qt::blue), SystemColors::red);
    EXPECT_EQ(ringStatusColor(1.4, Qt::blue), SystemColors::red);
}

TEST(PulseApplies, FromTheThresholdUpWhenItIsSwitchedOn) {
    EXPECT_FALSE(pulseApplies(0.89, 0.9, true));
    EXPECT_TRUE(pulseApplies(0.9, 0.9, true));
    EXPECT_FALSE(pulseApplies(1, 0.9, false));
    EXPECT_TRUE(pulseApplies(0, 0, true)) << "a threshold of 0 pulses at every value";
    EXPECT_FALSE(pulseApplies(notANumber, 0, true));
}

TEST(RingTrims, CoverTheStretchOfTheirStyle) {
    EXPECT_EQ(ringTrack(RingChartStyle::fullRing), (Trim{0, 1}));
    EXPECT_EQ(ringTrack(RingChartStyle::halfGauge), (Trim{0.25, 0.75}));
    EXPECT_EQ(ringTrack(RingChartStyle::arcGauge), (Trim{0.125, 0.875}));
    EXPECT_EQ(ringProgress(RingChartStyle::fullRing, 0.3), (Trim{0, 0.3}));
    EXPECT_EQ(ringProgress(RingChartStyle::halfGauge, 0.5), (Trim{0.25, 0.5}));
    EXPECT_EQ(ringProgress(RingChartStyle::arcGauge, 1), (Trim{0.125, 0.875}));
    EXPECT_EQ(ringProgress(RingChartStyle::arcGauge, 7), (Trim{0.125, 0.875}));
    EXPECT_EQ(ringProgress(RingChartStyle::halfGauge, -1), (Trim{0.25, 0.25}));
}

TEST(TrimmedCircle, StartsAtTwelveOClockForAFullRing) {
    const double rotation = ringRotation(RingChartStyle::fullRing);
    const QPainterPath quarter = trimmedCircle(square, {0, 0.25}, rotation);
    expectSamePoint(quarter.pointAtPercent(0), {50, 0});
    expectSamePoint(quarter.pointAtPercent(1), {100, 50});
}

TEST(TrimmedCircle, FillsAHalfGaugeFromLeftOverTheTopToTheRight) {
    const double rotation = ringRotation(RingChartStyle::halfGauge);
    const QPainterPath track = trimmedCircle(square, ringTrack(RingChartStyle::halfGauge), rotation);
    expectSamePoint(track.pointAtPercent(0), {0, 50});
    expectSamePoint(track.pointAtPercent(0.5), {50, 0});
    expectSamePoint(track.pointAtPercent(1), {100, 50});
}

TEST(TrimmedCircle, LeavesAnArcGaugeOpenAtTheBottom) {
    const double rotation = ringRotation(RingChartStyle::arcGauge);
    const QPainterPath track = trimmedCircle(square, ringTrack(RingChartStyle::arcGauge), rotation);
    const double offset = 50 * std::numbers::sqrt2 / 2;
    expectSamePoint(track.pointAtPercent(0), {50 - offset, 50 + offset});
    expectSamePoint(track.pointAtPercent(1), {50 + offset, 50 + offset});
}

TEST(TrimmedCircle, IsEmptyWhenItDoesNotGoForward) {
    EXPECT_TRUE(trimmedCircle(square, {0.25, 0.25}, 90).isEmpty());
    EXPECT_TRUE(trimmedCircle(square, {0.5, 0.2}, 90).isEmpty());
    EXPECT_TRUE(trimmedCircle(square, {0, notANumber}, 90).isEmpty());
}

TEST(SegmentAngles, DivideTheCircleInOrder) {
    const QList<SegmentAngles> angles = segmentAngles({1, 2, 1});
    EXPECT_EQ(angles, (QList<SegmentAngles>{{0, 90}, {90, 180}, {270, 90}}));
}

TEST(SegmentAngles, AreZeroWithoutASum) {
    for (const QList<double>& values :
         {QList<double>{0, 0}, {-1, -2}, {-3, 3}, {infinity, 1}, {notANumber, 1}, {1e308, 1e308}})
        EXPECT_EQ(segmentAngles(values), QList<SegmentAngles>(values.size()));
    EXPECT_TRUE(segmentAngles({}).isEmpty());
}

TEST(SegmentTrim, ScalesOnlyItsEndByTheProgress) {
    const SegmentAngles third{90, 180};
    EXPECT_EQ(segmentTrim(third, 1), (Trim{0.25, 0.75}));
    EXPECT_EQ(segmentTrim(third, 0.5), (Trim{0.25, 0.375}));
    const Trim unseen = segmentTrim(third, 0.3);
    EXPECT_LT(unseen.to, unseen.from) << "the progress has not passed its start";
}

TEST(SegmentTrim, EndsWithTheCircle) {
    EXPECT_EQ(segmentTrim({350, 20}, 1).to, 1);
}

TEST(PieSlice, SweepsClockwise) {
    const auto sweep = [](double start, double end) {
        return PieSlice{.startAngle = start, .endAngle = end}.sweep();
    };
    EXPECT_EQ(sweep(-90, 162), 252);
    EXPECT_EQ(sweep(-90, -90), 0);
    EXPECT_EQ(sweep(-90, 270), 360);
    EXPECT_EQ(sweep(0, 900), 360);
    EXPECT_EQ(sweep(90, 0), 270);
    EXPECT_EQ(sweep(0, infinity), 0);
    EXPECT_EQ(sweep(notANumber, 0), 0);
}

TEST(PieSlice, ReachesFromTheMiddleOfItsRectangle) {
    const QPainterPath quarter = PieSlice{-90, 0}.path({0, 0, 200, 100});
    EXPECT_TRUE(quarter.contains(QPointF(120, 30)));
    EXPECT_FALSE(quarter.contains(QPointF(120, 70)));
    EXPECT_FALSE(quarter.contains(QPointF(80, 30)));
    EXPECT_FALSE(quarter.contains(QPointF(140, 12))) << "beyond the radius, half of the shorter side";
    EXPECT_TRUE(PieSlice({10, 10}).path({0, 0, 100, 100}).isEmpty());
    EXPECT_TRUE(PieSlice({0, 90}).path({0, 0, 0, 100}).isEmpty());
}

QColor colorAtPosition(const QGradient& gradient, double position) {
    const QGradientStops stops = gradient.stops();
    for (qsizetype index = 1; index < stops.size(); ++index) {
        const auto& [from, before] = stops[index - 1];
        const auto& [to, after] = stops[index];
        if (position <= to) {
            const float share = static_cast<float>((position - from) / (to - from));
            return QColor::fromRgbF(before.redF(), before.greenF(), before.blueF(),
                                    before.alphaF() + share * (after.alphaF() - before.alphaF()));
        }
    }
    return {};
}

TEST(RingGradient, RunsClockwiseFromStartToEnd) {
    const QConicalGradient gradient = ringGradient(QColor(255, 0, 0, 100), QColor(255, 0, 0, 200), 0.5);
    EXPECT_EQ(gradient.angle(), 90);
    const auto alphaAfter = [&](double clockwise) {
        return colorAtPosition(gradient, 1 - clockwise).alpha();
    };
    EXPECT_EQ(alphaAfter(0), 100);
    EXPECT_NEAR(alphaAfter(0.25), 150, 1);
    EXPECT_NEAR(alphaAfter(0.5), 200, 1);
    EXPECT_NEAR(alphaAfter(0.6), 200, 1) << "the round cap at the end";
    EXPECT_NEAR(alphaAfter(0.9), 100, 1) << "the round cap at the start";
}

TEST(RingGradient, HasNoGapWhenTheRingIsFull) {
    const QConicalGradient gradient = ringGradient(QColor(255, 0, 0, 100), QColor(255, 0, 0, 200), 1);
    EXPECT_EQ(gradient.stops().size(), 2);
    EXPECT_EQ(colorAtPosition(gradient, 0).alpha(), 200);
    EXPECT_EQ(colorAtPosition(gradient, 1).alpha(), 100);
}

TEST(GaugeGradient, RunsFromTheLeftEdgeToTheRight) {
    const QLinearGradient gradient = gaugeGradient({{0, Qt::green}, {1, Qt::red}}, 70);
    EXPECT_EQ(gradient.start(), QPointF(-35, 0));
    EXPECT_EQ(gradient.finalStop(), QPointF(35, 0));
}

} // namespace
} // namespace orvelle
