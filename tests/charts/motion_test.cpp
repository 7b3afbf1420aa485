#include "charts/motion.h"
#include "support/manual_motion.h"

#include <gtest/gtest.h>

#include <memory>

namespace orvelle {
namespace {

using namespace std::chrono_literals;

class MotionTest : public ::testing::Test, protected ManualMotion {
protected:
    std::vector<double> steps;
    MovingPart part{motion, [this](double elapsed) { steps.push_back(elapsed); }};
};

TEST_F(MotionTest, RunsNoTimerWhileNothingMoves) {
    EXPECT_FALSE(motion.isRunning());
    part.start(16ms);
    EXPECT_TRUE(motion.isRunning());
    part.stop();
    EXPECT_FALSE(motion.isRunning());
}

TEST_F(MotionTest, TellsAPartHowMuchTimeHasPassed) {
    seconds = 10;
    part.start(16ms);
    seconds = 10.02;
    motion.step();
    seconds = 10.05;
    motion.step();
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_NEAR(steps[0], 0.02, 1e-9);
    EXPECT_NEAR(steps[1], 0.03, 1e-9);
}

TEST_F(MotionTest, HasAPartStepNoOftenerThanItsInterval) {
    part.start(100ms);
    pass(0.09);
    EXPECT_TRUE(steps.empty());
    pass(0.91);
    EXPECT_EQ(steps.size(), 10U);
}

TEST_F(MotionTest, TakesStepsTogetherThatAreDueAlmostTogether) {
    int others = 0;
    MovingPart other(motion, [&others](double) { ++others; });
    part.start(16ms);
    seconds = 0.002;
    other.start(16ms);
    seconds = 0.016;
    motion.step();
    EXPECT_EQ(steps.size(), 1U);
    EXPECT_EQ(others, 1);
}

TEST_F(MotionTest, DoesNotStartAPartTwice) {
    part.start(16ms);
    seconds = 0.01;
    part.start(16ms);
    seconds = 0.02;
    motion.step();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_NEAR(steps[0], 0.02, 1e-9) << "it goes on, it does not begin again";
}

TEST_F(MotionTest, LetsAStepDestroyAnotherPart) {
    int others = 0;
    auto other = std::make_unique<MovingPart>(motion, [&others](double) { ++others; });
    MovingPart destroyer(motion, [&other](double) { other.reset(); });
    destroyer.start(16ms);
    other->start(16ms);
    seconds = 0.02;
    motion.step();
    EXPECT_EQ(others, 0);
    EXPECT_EQ(other, nullptr);
}

TEST_F(MotionTest, LetsAPartStopItself) {
    MovingPart* self = nullptr;
    MovingPart once(motion, [&self](double) { self->stop(); });
    self = &once;
    once.start(16ms);
    seconds = 0.02;
    motion.step();
    EXPECT_FALSE(once.isMoving());
    EXPECT_FALSE(motion.isRunning());
}

TEST_F(MotionTest, TellsWhenTheSwitchIsTurned) {
    int turns = 0;
    QObject::connect(&motion, &Motion::reducedChanged, &motion, [&turns] { ++turns; });
    motion.setReduced(true);
    motion.setReduced(true);
    EXPECT_EQ(turns, 1);
    EXPECT_TRUE(motion.isReduced());
}

} // namespace
} // namespace orvelle
