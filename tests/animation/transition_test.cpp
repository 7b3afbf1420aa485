#include "animation/animation_timing.h"
#include "animation/transition.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(Transition, FollowsItsCurveForItsTime) {
    Transition<double> value(2);
    EXPECT_TRUE(value.isSettled());
    value.retarget(4, 0.5, easeOut());
    EXPECT_EQ(value.shown(), 2);
    value.advance(0.2);
    EXPECT_DOUBLE_EQ(value.shown(), 2 + 2 * easeOut().valueForProgress(0.4));
    EXPECT_FALSE(value.isSettled());
    value.advance(0.3);
    EXPECT_EQ(value.shown(), 4);
    EXPECT_TRUE(value.isSettled());
}

TEST(Transition, StartsFromTheShownValueWhenItsTargetChanges) {
    Transition<double> value(0);
    value.retarget(1, 0.4, easeInOut());
    value.advance(0.2);
    value.retarget(0, 0.4, easeInOut());
    EXPECT_NEAR(value.shown(), 0.5, 1e-6);
    value.advance(0.1);
    EXPECT_NEAR(value.shown(), 0.5 * (1 - easeInOut().valueForProgress(0.25)), 1e-6);
    value.advance(0.3);
    EXPECT_EQ(value.shown(), 0);
}

TEST(Transition, EndsExactlyAtItsTargetAfterALateStep) {
    Transition<double> value(0);
    value.retarget(0.1, 0.3, easeInOut());
    value.advance(1000);
    EXPECT_EQ(value.shown(), 0.1);
    value.advance(1);
    EXPECT_EQ(value.shown(), 0.1);
}

TEST(Transition, ShowsAJumpAtOnce) {
    Transition<double> value(0);
    value.retarget(1, 0.3, easeInOut());
    value.advance(0.1);
    value.jump(5);
    EXPECT_EQ(value.shown(), 5);
    EXPECT_TRUE(value.isSettled());
    value.retarget(6, 0.3, easeInOut());
    value.settle();
    EXPECT_EQ(value.shown(), 6);
}

TEST(Interpolate, BlendsASeriesSampleBySample) {
    EXPECT_EQ(interpolate(QList<double>{0, 1, 2}, QList<double>{1, 1, 0}, 0.5), (QList<double>{0.5, 1, 1}));
}

TEST(Interpolate, ResamplesASeriesOfAnotherLengthAlongItsLine) {
    const QList<double> three{0, 1, 0};
    EXPECT_EQ(interpolate(three, QList<double>{9, 9, 9, 9, 9}, 0), (QList<double>{0, 0.5, 1, 0.5, 0}));
    EXPECT_EQ(interpolate(three, QList<double>{9, 9}, 0), (QList<double>{0, 0}));
    EXPECT_EQ(interpolate(three, QList<double>{9, 9, 9, 9}, 1), (QList<double>{9, 9, 9, 9}));
}

TEST(Interpolate, ShowsTheSecondSeriesAtOnceWhereOneIsTooShortForALine) {
    const QList<double> line{1, 2, 3};
    for (const QList<double>& none : {QList<double>{}, QList<double>{7}}) {
        EXPECT_EQ(interpolate(none, line, 0.1), line);
        EXPECT_EQ(interpolate(line, none, 0.1), none);
    }
}

} // namespace
} // namespace orvelle
