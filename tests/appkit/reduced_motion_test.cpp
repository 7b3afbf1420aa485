#include "appkit/program.h"
#include "charts/motion.h"

namespace orvelle {
namespace {

using namespace simulated;

class ReducedMotionTest : public AppKitTest {
protected:
    Motion motion;
};

TEST_F(ReducedMotionTest, IsWhatTheUserHasChosenFromTheStart) {
    desktop().script.reducesMotion = true;
    const std::unique_ptr<QObject> follower = followReducedMotion(motion);
    EXPECT_TRUE(motion.isReduced());
}

TEST_F(ReducedMotionTest, FollowsTheUserWhileTheProgramRuns) {
    std::unique_ptr<QObject> follower = followReducedMotion(motion);
    EXPECT_FALSE(motion.isReduced());
    chooseReducedMotion(true);
    EXPECT_TRUE(motion.isReduced());
    chooseReducedMotion(false);
    EXPECT_FALSE(motion.isReduced());
    follower.reset();
    chooseReducedMotion(true);
    EXPECT_FALSE(motion.isReduced());
}

} // namespace
} // namespace orvelle
