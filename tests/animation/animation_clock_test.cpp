#include "animation/animation_clock.h"
#include "support/manual_clock.h"

#include <gtest/gtest.h>

#include <memory>

namespace orvelle {
namespace {

using namespace std::chrono_literals;

class AnimationClockTest : public ::testing::Test, protected ManualClock {
protected:
    std::vector<double> steps;
    Animation part{clock, [this](double elapsed) { steps.push_back(elapsed); }};
};

TEST_F(AnimationClockTest, RunsNoTimerWhileNothingMoves) {
    EXPECT_FALSE(clock.isRunning());
    part.start(16ms);
    EXPECT_TRUE(clock.isRunning());
    part.stop();
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(AnimationClockTest, TellsAPartHowMuchTimeHasPassed) {
    seconds = 10;
    part.start(16ms);
    seconds = 10.02;
    clock.step();
    seconds = 10.05;
    clock.step();
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_NEAR(steps[0], 0.02, 1e-9);
    EXPECT_NEAR(steps[1], 0.03, 1e-9);
}

TEST_F(AnimationClockTest, HasAPartStepNoOftenerThanItsInterval) {
    part.start(100ms);
    pass(0.09);
    EXPECT_TRUE(steps.empty());
    pass(0.91);
    EXPECT_EQ(steps.size(), 10U);
}

TEST_F(AnimationClockTest, TakesStepsTogetherThatAreDueAlmostTogether) {
    int others = 0;
    Animation other(clock, [&others](double) { ++others; });
    part.start(16ms);
    seconds = 0.002;
    other.start(16ms);
    seconds = 0.016;
    clock.step();
    EXPECT_EQ(steps.size(), 1U);
    EXPECT_EQ(others, 1);
}

TEST_F(AnimationClockTest, DoesNotStartAPartTwice) {
    part.start(16ms);
    seconds = 0.01;
    part.start(16ms);
    seconds = 0.02;
    clock.step();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_NEAR(steps[0], 0.02, 1e-9) << "it goes on, it does not begin again";
}

TEST_F(AnimationClockTest, LetsAStepDestroyAnotherPart) {
    int others = 0;
    auto other = std::make_unique<Animation>(clock, [&others](double) { ++others; });
    Animation destroyer(clock, [&other](double) { other.reset(); });
    destroyer.start(16ms);
    other->start(16ms);
    seconds = 0.02;
    clock.step();
    EXPECT_EQ(others, 0);
    EXPECT_EQ(other, nullptr);
}

TEST_F(AnimationClockTest, LetsAPartStopItself) {
    Animation* self = nullptr;
    Animation once(clock, [&self](double) { self->stop(); });
    self = &once;
    once.start(16ms);
    seconds = 0.02;
    clock.step();
    EXPECT_FALSE(once.isMoving());
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(AnimationClockTest, TellsWhenTheSwitchIsTurned) {
    int turns = 0;
    QObject::connect(&clock, &AnimationClock::reducedChanged, &clock, [&turns] { ++turns; });
    clock.setReduced(true);
    clock.setReduced(true);
    EXPECT_EQ(turns, 1);
    EXPECT_TRUE(clock.isReduced());
}

} // namespace
} // namespace orvelle
