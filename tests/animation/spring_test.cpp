#include "animation/spring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvelle {
namespace {

constexpr SpringParameters normalSpring{.response = 0.4, .dampingFraction = 0.7};

/// The analytic solution: the position of a spring that starts at rest at 0 and is pulled to 1.
double springFromRest(double seconds, const SpringParameters& parameters) {
    const double frequency = 2 * std::numbers::pi / parameters.response;
    const double damped = frequency * std::sqrt(1 - parameters.dampingFraction * parameters.dampingFraction);
    const double ratio = parameters.dampingFraction * frequency / damped;
    return 1 - std::exp(-parameters.dampingFraction * frequency * seconds) *
                   (std::cos(damped * seconds) + ratio * std::sin(damped * seconds));
}

TEST(Spring, FollowsTheAnalyticSolutionFromRest) {
    for (double seconds = 0.01; seconds < 1.5; seconds += 0.07) {
        Spring spring(0);
        spring.retarget(1);
        spring.advance(seconds, normalSpring);
        EXPECT_NEAR(spring.position(), springFromRest(seconds, normalSpring), 1e-12);
    }
}

TEST(Spring, ReachesTheSamePositionInOneStepAsInMany) {
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

TEST(Spring, OvershootsByWhatItsDampingLeaves) {
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

TEST(Spring, MovesAtTheVelocityItReports) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0.1, normalSpring);
    Spring later = spring;
    later.advance(1e-6, normalSpring);
    EXPECT_NEAR((later.position() - spring.position()) / 1e-6, spring.velocity(), 1e-3);
}

TEST(Spring, KeepsPositionAndVelocityWhenItsTargetChanges) {
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

TEST(Spring, StandsStillWhenNoTimePasses) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0, normalSpring);
    spring.advance(-1, normalSpring);
    EXPECT_EQ(spring.position(), 0);
    EXPECT_EQ(spring.velocity(), 0);
}

TEST(Spring, RestsAfterAJump) {
    Spring spring(0);
    spring.retarget(1);
    spring.advance(0.1, normalSpring);
    spring.jump(5);
    EXPECT_EQ(spring.position(), 5);
    EXPECT_EQ(spring.velocity(), 0);
    EXPECT_TRUE(spring.isSettled(0));
}

} // namespace
} // namespace orvelle
