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
    Animation animation{clock, [this](double elapsed) { steps.push_back(elapsed); }};
};

TEST_F(AnimationClockTest, RunsItsTimerOnlyWhileAnAnimationRuns) {
    EXPECT_FALSE(clock.isRunning());
    animation.start(16ms);
    EXPECT_TRUE(clock.isRunning());
    animation.stop();
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(AnimationClockTest, PassesTheElapsedTimeToAnAnimation) {
    seconds = 10;
    animation.start(16ms);
    seconds = 10.02;
    clock.step();
    seconds = 10.05;
    clock.step();
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_NEAR(steps[0], 0.02, 1e-9);
    EXPECT_NEAR(steps[1], 0.03, 1e-9);
}

TEST_F(AnimationClockTest, StepsAnAnimationNoOftenerThanItsInterval) {
    animation.start(100ms);
    pass(0.09);
    EXPECT_TRUE(steps.empty());
    pass(0.91);
    EXPECT_EQ(steps.size(), 10U);
}

TEST_F(AnimationClockTest, MergesStepsThatAreDueAlmostTogether) {
    int others = 0;
    Animation other(clock, [&others](double) { ++others; });
    animation.start(16ms);
    seconds = 0.002;
    other.start(16ms);
    seconds = 0.016;
    clock.step();
    EXPECT_EQ(steps.size(), 1U);
    EXPECT_EQ(others, 1);
}

TEST_F(AnimationClockTest, DoesNotRestartARunningAnimation) {
    animation.start(16ms);
    seconds = 0.01;
    animation.start(16ms);
    seconds = 0.02;
    clock.step();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_NEAR(steps[0], 0.02, 1e-9) << "its time still counts from the first start";
}

TEST_F(AnimationClockTest, LetsAStepDestroyAnotherAnimation) {
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

TEST_F(AnimationClockTest, LetsAnAnimationStopItself) {
    Animation* self = nullptr;
    Animation once(clock, [&self](double) { self->stop(); });
    self = &once;
    once.start(16ms);
    seconds = 0.02;
    clock.step();
    EXPECT_FALSE(once.isRunning());
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(AnimationClockTest, AnnouncesAChangeOfReducedMotionOnce) {
    int turns = 0;
    QObject::connect(&clock, &AnimationClock::reducedChanged, &clock, [&turns] { ++turns; });
    clock.setReduced(true);
    clock.setReduced(true);
    EXPECT_EQ(turns, 1);
    EXPECT_TRUE(clock.isReduced());
}

} // namespace
} // namespace orvelle
