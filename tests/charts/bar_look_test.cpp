#include "charts/bar_look.h"
#include "support/odd_numbers.h"
#include "theme/colors.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

const QColor baseColor = QColor::fromRgbF(0.2F, 0.5F, 1.0F);

void expectColor(const QColor& color, double red, double green, double blue) {
    EXPECT_NEAR(color.redF(), red, 1e-4);
    EXPECT_NEAR(color.greenF(), green, 1e-4);
    EXPECT_NEAR(color.blueF(), blue, 1e-4);
    EXPECT_EQ(color.alpha(), 255);
}

TEST(BarFillRatio, IsTheShareOfTheMaximum) {
    EXPECT_DOUBLE_EQ(barFillRatio(1, 4), 0.25);
}

TEST(BarFillRatio, IsClampedBetweenEmptyAndFull) {
    EXPECT_EQ(barFillRatio(-1, 4), 0);
    EXPECT_EQ(barFillRatio(9, 4), 1);
    EXPECT_EQ(barFillRatio(infinity, 4), 1);
    EXPECT_EQ(barFillRatio(-infinity, 4), 0);
}

TEST(BarFillRatio, IsEmptyWithoutAMaximum) {
    EXPECT_EQ(barFillRatio(1, 0), 0);
    EXPECT_EQ(barFillRatio(1, -2), 0);
    EXPECT_EQ(barFillRatio(1, notANumber), 0);
}

TEST(BarFillRatio, IsEmptyForAnythingThatIsNotANumber) {
    EXPECT_EQ(barFillRatio(notANumber, 1), 0);
    EXPECT_EQ(barFillRatio(infinity, infinity), 0);
}

TEST(BarHeight, NeverFallsBelowOnePoint) {
    EXPECT_EQ(barHeight(0.5, 50), 25);
    EXPECT_EQ(barHeight(0, 50), 1);
    EXPECT_EQ(barHeight(0.01, 50), 1);
    EXPECT_EQ(barHeight(-3, 50), 1);
}

TEST(BarColor, IsTheBaseColorBelowHalf) {
    EXPECT_EQ(barColor(0, baseColor), baseColor);
    EXPECT_EQ(barColor(0.4999, QColor(10, 20, 30, 40)), QColor(10, 20, 30, 40)) << "opacity is kept";
}

TEST(BarColor, StartsItsBlendAtHalfWithTheBaseColor) {
    expectColor(barColor(0.5, baseColor), 0.2, 0.5, 1);
}

TEST(BarColor, IsHalfwayToAmberInTheMiddleOfTheBlend) {
    expectColor(barColor(0.625, baseColor), 0.6, 0.675, 0.5);
}

TEST(BarColor, IsAmberAtThreeQuarters) {
    expectColor(barColor(0.75, baseColor), 1, 0.85, 0);
}

TEST(BarColor, FadesFromAmberToRed) {
    expectColor(barColor(0.875, baseColor), 1, 0.425, 0);
    expectColor(barColor(1, baseColor), 1, 0, 0);
}

TEST(BarColor, StaysRedWhereASpringOvershoots) {
    expectColor(barColor(1.04, baseColor), 1, 0, 0);
}

TEST(BarColor, BlendsFromAColorOfAnotherColorSpace) {
    expectColor(barColor(0.5, QColor::fromHsvF(0, 1, 1)), 1, 0, 0);
}

TEST(BarColor, BlendsFromWhiteWithoutAValidBaseColor) {
    expectColor(barColor(0.5, QColor()), 1, 1, 1);
}

TEST(BarColor, LosesItsOpacityOnlyInTheBlend) {
    const QColor translucent(0, 0, 255, 100);
    EXPECT_EQ(barColor(0.4, translucent).alpha(), 100);
    EXPECT_EQ(barColor(0.6, translucent).alpha(), 255);
}

TEST(MiniBarColor, ChangesAtHalfAndAtThreeQuarters) {
    EXPECT_EQ(miniBarColor(0.4999, baseColor), baseColor);
    EXPECT_EQ(miniBarColor(0.5, baseColor), SystemColors::yellow);
    EXPECT_EQ(miniBarColor(0.7499, baseColor), SystemColors::yellow);
    EXPECT_EQ(miniBarColor(0.75, baseColor), SystemColors::red);
    EXPECT_EQ(miniBarColor(1.4, baseColor), SystemColors::red);
    EXPECT_EQ(miniBarColor(notANumber, baseColor), baseColor);
}

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

TEST(BarLook, LooksAlikeWithinHalfAPixelAndAShade) {
    const auto looksLike = [](const BarLook& other, double fullPixels) {
        return looksAlike({{0.5, Qt::blue}}, {other}, fullPixels);
    };
    EXPECT_TRUE(looksLike({0.504, Qt::blue}, 100));
    EXPECT_FALSE(looksLike({0.506, Qt::blue}, 100));
    EXPECT_FALSE(looksLike({0.494, Qt::blue}, 100));
    EXPECT_FALSE(looksLike({0.504, Qt::blue}, 200)) << "at twice the scale";
    EXPECT_TRUE(looksLike({0.5, QColor(0, 4, 255)}, 100));
    EXPECT_FALSE(looksLike({0.5, QColor(0, 6, 255)}, 100));
    EXPECT_FALSE(looksAlike({{0.5, Qt::blue}}, {}, 100)) << "another number of bars";
}

TEST(BarLook, ShowsARowOfAnotherLengthAtOnce) {
    const QList<BarLook> two{{0, Qt::red}, {0, Qt::red}};
    const QList<BarLook> one{{1, Qt::blue}};
    EXPECT_EQ(interpolate(two, one, 0.1), one);
    EXPECT_EQ(interpolate(one, two, 0.1), two);
}

} // namespace
} // namespace orvelle
