#include "animation/animation_timing.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(BarSpring, FollowsTheAnimationSpeed) {
    EXPECT_EQ(barSpring(AnimationSpeed::slow, true), (SpringParameters{0.8, 0.7}));
    EXPECT_EQ(barSpring(AnimationSpeed::normal, true), (SpringParameters{0.4, 0.7}));
    EXPECT_EQ(barSpring(AnimationSpeed::fast, true), (SpringParameters{0.2, 0.7}));
}

TEST(BarSpring, IsAbsentWhereChangesShowAtOnce) {
    EXPECT_EQ(barSpring(AnimationSpeed::instant, true), std::nullopt);
    EXPECT_EQ(barSpring(AnimationSpeed::normal, false), std::nullopt);
}

TEST(RingSeconds, FollowTheAnimationSpeed) {
    EXPECT_EQ(ringOpeningSeconds(AnimationSpeed::slow), 1.6);
    EXPECT_EQ(ringOpeningSeconds(AnimationSpeed::normal), 0.8);
    EXPECT_EQ(ringOpeningSeconds(AnimationSpeed::fast), 0.3);
    EXPECT_EQ(ringOpeningSeconds(AnimationSpeed::instant), std::nullopt);
    EXPECT_EQ(ringChangeSeconds(AnimationSpeed::slow), 0.8);
    EXPECT_EQ(ringChangeSeconds(AnimationSpeed::normal), 0.4);
    EXPECT_EQ(ringChangeSeconds(AnimationSpeed::fast), 0.15);
    EXPECT_EQ(ringChangeSeconds(AnimationSpeed::instant), std::nullopt);
}

/// The value at `progress` of a cubic Bezier curve through (x1, y1) and (x2, y2), found by bisection.
double bezierAt(double progress, double x1, double y1, double x2, double y2) {
    const auto coordinate = [](double t, double first, double second) {
        return 3 * (1 - t) * (1 - t) * t * first + 3 * (1 - t) * t * t * second + t * t * t;
    };
    double low = 0;
    double high = 1;
    for (int step = 0; step < 60; ++step) {
        const double middle = (low + high) / 2;
        (coordinate(middle, x1, x2) < progress ? low : high) = middle;
    }
    return coordinate(low, y1, y2);
}

TEST(EaseInOut, IsItsBezierCurve) {
    for (double progress = 0; progress <= 1; progress += 0.05)
        EXPECT_NEAR(easeInOut().valueForProgress(progress), bezierAt(progress, 0.42, 0, 0.58, 1), 1e-3);
}

TEST(EaseOut, IsItsBezierCurve) {
    for (double progress = 0; progress <= 1; progress += 0.05)
        EXPECT_NEAR(easeOut().valueForProgress(progress), bezierAt(progress, 0, 0, 0.58, 1), 1e-3);
}

TEST(Pulse, SwingsBetweenItsTwoScalesForever) {
    EXPECT_DOUBLE_EQ(pulseScaleAt(0), 1);
    EXPECT_NEAR(pulseScaleAt(0.4), 1.015, 1e-6);
    EXPECT_NEAR(pulseScaleAt(0.8), 1.03, 1e-9);
    EXPECT_NEAR(pulseScaleAt(1.2), 1.015, 1e-6);
    EXPECT_NEAR(pulseScaleAt(1.6), 1, 1e-9);
    EXPECT_NEAR(pulseScaleAt(1600.8), 1.03, 1e-6);
}

} // namespace
} // namespace orvelle
