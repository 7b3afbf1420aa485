#include "animation/animation_timing.h"
#include "animation/spring.h"
#include "charts/bar_animation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvelle {
namespace {

constexpr SpringParameters normalSpring{.response = 0.4, .dampingFraction = 0.7};

/// Where a spring from 0 to 1 stands after some time at rest: the textbook solution.
double springFromRest(double seconds, const SpringParameters& parameters) {
    const double frequency = 2 * std::numbers::pi / parameters.response;
    const double damped = frequency * std::sqrt(1 - parameters.dampingFraction * parameters.dampingFraction);
    const double ratio = parameters.dampingFraction * frequency / damped;
    return 1 - std::exp(-parameters.dampingFraction * frequency * seconds) *
                   (std::cos(damped * seconds) + ratio * std::sin(damped * seconds));
}

TEST(BarSpring, FollowsTheAnimationSpeed) {
    EXPECT_EQ(barSpring(AnimationSpeed::slow, true), (SpringParameters{0.8, 0.7}));
    EXPECT_EQ(barSpring(AnimationSpeed::normal, true), (SpringParameters{0.4, 0.7}));
    EXPECT_EQ(barSpring(AnimationSpeed::fast, true), (SpringParameters{0.2, 0.7}));
}

TEST(BarSpring, IsMissingWhereChangesShowAtOnce) {
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

TEST(Pulse, GoesUpAndBackForever) {
    EXPECT_DOUBLE_EQ(pulseScaleAt(0), 1);
    EXPECT_NEAR(pulseScaleAt(0.4), 1.015, 1e-6);
    EXPECT_NEAR(pulseScaleAt(0.8), 1.03, 1e-9);
    EXPECT_NEAR(pulseScaleAt(1.2), 1.015, 1e-6);
    EXPECT_NEAR(pulseScaleAt(1.6), 1, 1e-9);
    EXPECT_NEAR(pulseScaleAt(1600.8), 1.03, 1e-6);
}

TEST(Spring, FollowsTheTextbookFromRest) {
    for (double seconds = 0.01; seconds < 1.5; seconds += 0.07) {
        Spring spring(0);
        spring.retarget(1);
        spring.advance(seconds, normalSpring);
        EXPECT_NEAR(spring.position(), springFromRest(seconds, normalSpring), 1e-12);
    }
}

TEST(Spring, IsTheSameInOneStepAsInMany) {
    Spring coarse(0);
    Spring fine(0);
    coarse.retarget(1);
    fine.retarget(1);
    coarse.advance(0.25, normalSpring);
    for (int step = 0; step < 1000; ++step)
        fine.advance(0.00025, normalSpring);
    EXPECT_NEAR(fine.position(), coarse.position(), 1e-10);
    EXPECT_NEAR(fine.velocity(), coarse.velocity(), 1e-8);
}

TEST(Spring, OvershootsAsItsDampingSays) {
    Spring spring(0);
    spring.retarget(1);
    double highest = 0;
    for (int step = 0; step < 2000; ++step) {
        spring.advance(0.0005, normalSpring);
        highest = std::max(highest, spring.position());
    }
    const double expected = std::exp(-std::numbers::pi * 0.7 / std::sqrt(1 - 0.49));
    EXPECT_NEAR(highest - 1, expected, 1e-4);
}

TEST(Spring, MovesAtTheSpeedItReports) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0.1, normalSpring);
    Spring later = spring;
    later.advance(1e-6, normalSpring);
    EXPECT_NEAR((later.position() - spring.position()) / 1e-6, spring.velocity(), 1e-3);
}

TEST(Spring, KeepsPositionAndSpeedWhenItsTargetChanges) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0.1, normalSpring);
    const double position = spring.position();
    const double velocity = spring.velocity();
    spring.retarget(-2);
    EXPECT_EQ(spring.position(), position);
    EXPECT_EQ(spring.velocity(), velocity);
    spring.advance(1e-4, normalSpring);
    EXPECT_GT(spring.position(), position) << "it is carried on before it turns back";
    spring.advance(10, normalSpring);
    EXPECT_NEAR(spring.position(), -2, 1e-9);
}

TEST(Spring, SettlesAtItsTarget) {
    Spring spring(3);
    EXPECT_TRUE(spring.isSettled(1e-6));
    spring.retarget(4);
    EXPECT_FALSE(spring.isSettled(1e-6));
    spring.advance(5, normalSpring);
    EXPECT_TRUE(spring.isSettled(1e-6));
}

TEST(Spring, StandsStillWithoutTime) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0, normalSpring);
    spring.advance(-1, normalSpring);
    EXPECT_EQ(spring.position(), 0);
    EXPECT_EQ(spring.velocity(), 0);
}

TEST(Spring, JumpsWithoutSpeed) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0.1, normalSpring);
    spring.jump(5);
    EXPECT_EQ(spring.position(), 5);
    EXPECT_EQ(spring.velocity(), 0);
    EXPECT_TRUE(spring.isSettled(0));
}

TEST(BarAnimation, MovesHeightAndColorTogether) {
    BarAnimation bar({0, QColor::fromRgbF(0, 0, 1)});
    EXPECT_TRUE(bar.isSettled());
    bar.retarget({1, QColor::fromRgbF(1, 0, 0)});
    EXPECT_FALSE(bar.isSettled());
    bar.advance(0.08, normalSpring);
    const double progress = springFromRest(0.08, normalSpring);
    EXPECT_NEAR(bar.look().ratio, progress, 1e-9);
    EXPECT_NEAR(bar.look().color.redF(), progress, 1e-4);
    EXPECT_NEAR(bar.look().color.blueF(), 1 - progress, 1e-4);
    bar.advance(5, normalSpring);
    EXPECT_TRUE(bar.isSettled());
    EXPECT_NEAR(bar.look().ratio, 1, 1e-6);
}

TEST(BarAnimation, OvershootsInHeightButNeverLeavesTheColors) {
    BarAnimation bar({0, QColor(0, 0, 255)});
    bar.retarget({1, QColor(255, 0, 0)});
    double highest = 0;
    for (int step = 0; step < 200; ++step) {
        bar.advance(0.005, normalSpring);
        highest = std::max(highest, bar.look().ratio);
        EXPECT_TRUE(bar.look().color.isValid());
    }
    EXPECT_GT(highest, 1);
}

TEST(BarAnimation, ShowsAJumpAtOnce) {
    BarAnimation bar({0, Qt::blue});
    bar.jump({0.5, Qt::red});
    EXPECT_EQ(bar.look().ratio, 0.5);
    EXPECT_EQ(bar.look().color, QColor(Qt::red));
    EXPECT_TRUE(bar.isSettled());
}

} // namespace
} // namespace orvelle
