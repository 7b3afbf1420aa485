#include "animation/animation_clock.h"
#include "appkit/program.h"
#include "shell/macos/macos_desktop.h"

namespace orvelle {
namespace {

using namespace simulated;

class ReducedMotionTest : public AppKitTest {
protected:
    AnimationClock clock;
};

TEST_F(ReducedMotionTest, FollowsTheUsersChoiceFromTheStart) {
    desktop().script.reducesMotion = true;
    const std::unique_ptr<QObject> follower = followReducedMacosMotion(clock);
    EXPECT_TRUE(clock.isReduced());
}

TEST_F(ReducedMotionTest, FollowsTheUserWhileTheProgramRuns) {
    std::unique_ptr<QObject> follower = followReducedMacosMotion(clock);
    EXPECT_FALSE(clock.isReduced());
    chooseReducedMotion(true);
    EXPECT_TRUE(clock.isReduced());
    chooseReducedMotion(false);
    EXPECT_FALSE(clock.isReduced());
    follower.reset();
    chooseReducedMotion(true);
    EXPECT_FALSE(clock.isReduced());
}

} // namespace
} // namespace orvelle
