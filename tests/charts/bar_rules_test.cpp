#include "charts/bar_rules.h"
#include "support/odd_numbers.h"
#include "theme/system_colors.h"

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

TEST(BarFillRatio, IsHeldBetweenEmptyAndFull) {
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

TEST(BarFillRatio, IsEmptyForWhatIsNotANumber) {
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

TEST(BarColor, BlendsFromAColorThatIsGivenInAnotherSpace) {
    expectColor(barColor(0.5, QColor::fromHsvF(0, 1, 1)), 1, 0, 0);
}

TEST(BarColor, BlendsFromWhiteWhenThereIsNoColor) {
    expectColor(barColor(0.5, QColor()), 1, 1, 1);
}

TEST(BarColor, LosesItsOpacityOnlyInTheBlend) {
    const QColor translucent(0, 0, 255, 100);
    EXPECT_EQ(barColor(0.4, translucent).alpha(), 100);
    EXPECT_EQ(barColor(0.6, translucent).alpha(), 255);
}

TEST(BarCornerRadius, ComesFromTheStyle) {
    EXPECT_EQ(barCornerRadius(BarChartStyle::rounded), 3.0);
    EXPECT_EQ(barCornerRadius(BarChartStyle::square), 0.0);
    EXPECT_EQ(barCornerRadius(BarChartStyle::pill), 50.0);
    EXPECT_EQ(barCornerRadius(BarChartStyle::thinLine), 0.5);
}

TEST(BarSpacing, IsAtLeastThreePointsForPillsAndThinLines) {
    EXPECT_EQ(barSpacingFor(BarChartStyle::pill, 1), 3);
    EXPECT_EQ(barSpacingFor(BarChartStyle::thinLine, 1), 3);
    EXPECT_EQ(barSpacingFor(BarChartStyle::thinLine, 5), 5);
    EXPECT_EQ(barSpacingFor(BarChartStyle::rounded, 1), 1);
    EXPECT_EQ(barSpacingFor(BarChartStyle::square, 1), 1);
}

TEST(BarRow, SharesTheWidthThatTheGapsLeave) {
    const BarRow row = barRow(4, 46, 2);
    EXPECT_DOUBLE_EQ(row.slotWidth, 10);
    EXPECT_DOUBLE_EQ(row.gap, 2);
}

TEST(BarRow, ShrinksTheGapsRatherThanLoseBars) {
    const BarRow row = barRow(200, 288, 2);
    EXPECT_GT(row.slotWidth, 0);
    EXPECT_DOUBLE_EQ(row.slotWidth, row.gap);
    EXPECT_NEAR(200 * row.slotWidth + 199 * row.gap, 288, 1e-9);
}

TEST(BarRow, ShrinksTheGapsRatherThanDrawHairlines) {
    const BarRow row = barRow(24, 72, 3); // the gaps would leave an eighth of a point
    EXPECT_DOUBLE_EQ(row.slotWidth, 1);
    EXPECT_NEAR(24 * row.slotWidth + 23 * row.gap, 72, 1e-9);
    for (qsizetype count = 1; count < 300; ++count) {
        const BarRow any = barRow(count, 288, 3);
        EXPECT_GE(any.slotWidth, std::min(1.0, 288.0 / static_cast<double>(2 * count - 1))) << count;
        EXPECT_LE(any.gap, 3) << count;
    }
}

TEST(BarRow, IsEmptyWithoutBars) {
    EXPECT_EQ(barRow(0, 100, 2).slotWidth, 0);
}

TEST(BarWidth, IsAThirdOfTheSlotForThinLinesButNeverBelowOneAndAHalf) {
    EXPECT_DOUBLE_EQ(barWidth(BarChartStyle::thinLine, 4), 1.5);
    EXPECT_DOUBLE_EQ(barWidth(BarChartStyle::thinLine, 20), 6);
    EXPECT_DOUBLE_EQ(barWidth(BarChartStyle::rounded, 20), 20);
}

TEST(BarShape, StandsAtTheBottomOfItsSlot) {
    const QRectF slot(10, 20, 20, 50);
    for (const auto style : {BarChartStyle::rounded, BarChartStyle::square, BarChartStyle::pill})
        EXPECT_EQ(barShape(style, slot, 30, 3).boundingRect(), QRectF(10, 40, 20, 30));
    EXPECT_EQ(barShape(BarChartStyle::thinLine, slot, 30, 3).boundingRect(), QRectF(17, 40, 6, 30));
}

TEST(BarShape, RoundsItsCornersByStyle) {
    const QRectF slot(0, 0, 20, 50);
    const QPointF corner(0.2, 0.2);
    const QPointF pillShoulder(2, 2);
    EXPECT_TRUE(barShape(BarChartStyle::square, slot, 50, 0).contains(corner));
    EXPECT_FALSE(barShape(BarChartStyle::rounded, slot, 50, 3).contains(corner));
    EXPECT_TRUE(barShape(BarChartStyle::rounded, slot, 50, 3).contains(pillShoulder));
    EXPECT_FALSE(barShape(BarChartStyle::pill, slot, 50, 0).contains(pillShoulder)) << "always a capsule";
}

TEST(BarGlowRadius, IsHalvedAroundThinLines) {
    EXPECT_EQ(barGlowRadius(BarChartStyle::rounded, GlowIntensity::intense), 8);
    EXPECT_EQ(barGlowRadius(BarChartStyle::pill, GlowIntensity::subtle), 2);
    EXPECT_EQ(barGlowRadius(BarChartStyle::thinLine, GlowIntensity::intense), 4);
    EXPECT_EQ(barGlowRadius(BarChartStyle::thinLine, GlowIntensity::medium), 2);
    EXPECT_EQ(barGlowRadius(BarChartStyle::thinLine, GlowIntensity::none), 0);
}

TEST(MiniBarColor, ChangesAtPlainThresholds) {
    EXPECT_EQ(miniBarColor(0.4999, baseColor), baseColor);
    EXPECT_EQ(miniBarColor(0.5, baseColor), SystemColors::yellow);
    EXPECT_EQ(miniBarColor(0.7499, baseColor), SystemColors::yellow);
    EXPECT_EQ(miniBarColor(0.75, baseColor), SystemColors::red);
    EXPECT_EQ(miniBarColor(1.4, baseColor), SystemColors::red);
    EXPECT_EQ(miniBarColor(notANumber, baseColor), baseColor);
}

} // namespace
} // namespace orvelle
