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

TEST(Transition, GoesOnFromWhereItStandsWhenItsTargetChanges) {
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

TEST(Transition, EndsExactlyAtItsTargetHoweverLateTheStep) {
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

TEST(Mixed, BlendsLengthAndColorOfABar) {
    const BarLook middle = interpolate(BarLook{0, QColor(0, 0, 255)}, BarLook{0.5, QColor(255, 0, 0)}, 0.5);
    EXPECT_DOUBLE_EQ(middle.ratio, 0.25);
    EXPECT_NEAR(middle.color.redF(), 0.5, 1e-3);
    EXPECT_NEAR(middle.color.blueF(), 0.5, 1e-3);
}

TEST(Mixed, DoesNotBlendRowsOfDifferentLength) {
    const QList<BarLook> two{{0, Qt::red}, {0, Qt::red}};
    const QList<BarLook> one{{1, Qt::blue}};
    EXPECT_EQ(interpolate(two, one, 0.1), one);
    EXPECT_EQ(interpolate(one, two, 0.1), two);
}

TEST(Mixed, BlendsSeriesSampleBySample) {
    EXPECT_EQ(interpolate(QList<double>{0, 1, 2}, QList<double>{1, 1, 0}, 0.5), (QList<double>{0.5, 1, 1}));
}

TEST(Mixed, ReadsASeriesOfAnotherLengthOffItsLine) {
    const QList<double> three{0, 1, 0};
    EXPECT_EQ(interpolate(three, QList<double>{9, 9, 9, 9, 9}, 0), (QList<double>{0, 0.5, 1, 0.5, 0}));
    EXPECT_EQ(interpolate(three, QList<double>{9, 9}, 0), (QList<double>{0, 0}));
    EXPECT_EQ(interpolate(three, QList<double>{9, 9, 9, 9}, 1), (QList<double>{9, 9, 9, 9}));
}

TEST(Mixed, TakesTheNewSeriesWhereOneHasNoLine) {
    const QList<double> line{1, 2, 3};
    for (const QList<double>& none : {QList<double>{}, QList<double>{7}}) {
        EXPECT_EQ(interpolate(none, line, 0.1), line);
        EXPECT_EQ(interpolate(line, none, 0.1), none);
    }
}

} // namespace
} // namespace orvelle
