#include "charts/bar_animation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

constexpr SpringParameters spring{.response = 0.4, .dampingFraction = 0.7};

TEST(BarAnimation, MovesHeightAndColorTogether) {
    BarAnimation bar({0, QColor::fromRgbF(0, 0, 1)});
    EXPECT_TRUE(bar.isSettled());
    bar.retarget({1, QColor::fromRgbF(1, 0, 0)});
    EXPECT_FALSE(bar.isSettled());
    Spring expected(0);
    expected.retarget(1);
    bar.advance(0.08, spring);
    expected.advance(0.08, spring);
    const double progress = expected.position();
    EXPECT_NEAR(bar.look().ratio, progress, 1e-9);
    EXPECT_NEAR(bar.look().color.redF(), progress, 1e-4);
    EXPECT_NEAR(bar.look().color.blueF(), 1 - progress, 1e-4);
    bar.advance(5, spring);
    EXPECT_TRUE(bar.isSettled());
    EXPECT_NEAR(bar.look().ratio, 1, 1e-6);
}

TEST(BarAnimation, OvershootsInHeightButKeepsItsColorValid) {
    BarAnimation bar({0, QColor(0, 0, 255)});
    bar.retarget({1, QColor(255, 0, 0)});
    double highest = 0;
    for (int step = 0; step < 200; ++step) {
        bar.advance(0.005, spring);
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

TEST(BarLook, BlendsHeightAndColorTogether) {
    const BarLook middle = interpolate(BarLook{0, QColor(0, 0, 255)}, BarLook{0.5, QColor(255, 0, 0)}, 0.5);
    EXPECT_DOUBLE_EQ(middle.ratio, 0.25);
    EXPECT_NEAR(middle.color.redF(), 0.5, 1e-3);
    EXPECT_NEAR(middle.color.blueF(), 0.5, 1e-3);
}

TEST(BarLook, ShowsARowOfAnotherLengthAtOnce) {
    const QList<BarLook> two{{0, Qt::red}, {0, Qt::red}};
    const QList<BarLook> one{{1, Qt::blue}};
    EXPECT_EQ(interpolate(two, one, 0.1), one);
    EXPECT_EQ(interpolate(one, two, 0.1), two);
}

} // namespace
} // namespace orvelle
