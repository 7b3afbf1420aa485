#include "at_scale.h"
#include "charts/animated_bar_chart.h"
#include "support/odd_numbers.h"

#include <algorithm>

namespace orvelle {
namespace {

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

TEST(BarRow, ShrinksTheGapsWhereTheyWouldLeaveNoRoomForBars) {
    const BarRow row = barRow(200, 288, 2);
    EXPECT_GT(row.slotWidth, 0);
    EXPECT_DOUBLE_EQ(row.slotWidth, row.gap);
    EXPECT_NEAR(200 * row.slotWidth + 199 * row.gap, 288, 1e-9);
}

TEST(BarRow, ShrinksTheGapsWhereBarsWouldBeHairlines) {
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

TEST(BarWidth, IsThreeTenthsOfTheSlotForThinLinesButAtLeastOneAndAHalf) {
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

class Bars : public AtScale {
protected:
    static AnimatedBarChart chart(const QList<double>& values) {
        return {.values = values,
                .maxValue = 1,
                .barSpacing = 2,
                .baseColor = Qt::blue,
                .showGlow = false,
                .height = 20,
                .animateChanges = false,
                .barStyle = BarChartStyle::square};
    }

    [[nodiscard]] QImage paintedChart(const AnimatedBarChart& chart, const QSizeF& size) const {
        return painted(size, [&](QPainter& painter) { chart.paint(painter, {{0, 0}, size}); });
    }
};

INSTANTIATE_TEST_SUITE_P(, Bars, bothScales);

TEST_P(Bars, GrowFromTheBottom) {
    const QImage image = paintedChart(chart({0.25, 1}), {42, 20});
    EXPECT_EQ(colorAt(image, 10, 14).alpha(), 0);
    EXPECT_GT(colorAt(image, 10, 16).alpha(), 0);
    EXPECT_GT(colorAt(image, 32, 1).alpha(), 0);
    EXPECT_EQ(colorAt(image, 20.5, 19).alpha(), 0) << "the gap between the bars";
}

TEST_P(Bars, AreOnePointHighInTheBaseColorWithoutAMaximum) {
    for (const double maximum : {0.0, -1.0}) {
        AnimatedBarChart chart = Bars::chart({5, 9});
        chart.maxValue = maximum;
        const QImage image = paintedChart(chart, {42, 20});
        EXPECT_EQ(paintedRect(image), QRect(0, pixels(19), pixels(42), pixels(1)));
        EXPECT_EQ(colorAt(image, 5, 19).blue(), 255);
        EXPECT_EQ(colorAt(image, 5, 19).red(), 0);
    }
}

TEST_P(Bars, AreFullAndRedAboveTheMaximum) {
    const QImage image = paintedChart(chart({7}), {20, 20});
    EXPECT_EQ(paintedRect(image), QRect(0, 0, pixels(20), pixels(20)));
    EXPECT_TRUE(isNear(colorAt(image, 10, 10), QColor::fromRgbF(1, 0, 0, 0.75F), 6));
}

TEST_P(Bars, FadeFromTopToBottom) {
    const QImage image = paintedChart(chart({1}), {20, 20});
    EXPECT_NEAR(colorAt(image, 10, 0).alphaF(), 0.9, 0.02);
    EXPECT_NEAR(colorAt(image, 10, 10).alphaF(), 0.75, 0.02);
    EXPECT_NEAR(colorAt(image, 10, 19.5).alphaF(), 0.6, 0.02);
}

TEST_P(Bars, InThinLineStyleAreSolidAndCentred) {
    AnimatedBarChart chart = Bars::chart({0.4});
    chart.barStyle = BarChartStyle::thinLine;
    const QImage image = paintedChart(chart, {20, 20});
    EXPECT_EQ(paintedRect(image), QRect(pixels(7), pixels(12), pixels(6), pixels(8)));
    EXPECT_EQ(colorAt(image, 10, 16), QColor(Qt::blue));
}

TEST_P(Bars, ChartWithoutValuesDrawsNothingAndKeepsItsHeight) {
    const AnimatedBarChart empty = chart({});
    EXPECT_TRUE(paintedRect(paintedChart(empty, {40, 20})).isEmpty());
    EXPECT_EQ(empty.height, 20);
}

TEST_P(Bars, ChartIsCentredInATallerSpace) {
    const QImage image = paintedChart(chart({1}), {20, 40});
    EXPECT_EQ(paintedRect(image), QRect(0, pixels(10), pixels(20), pixels(20)));
}

TEST_P(Bars, GlowIsClearWhenItIsSwitchedOff) {
    AnimatedBarChart chart = Bars::chart({0.5});
    chart.glowIntensity = GlowIntensity::intense;
    const QRectF middle(20, 20, 20, 20);
    const auto paint = [&](QPainter& painter) { chart.paint(painter, middle); };
    EXPECT_EQ(paintedRect(painted({60, 60}, paint)), QRect(pixels(20), pixels(30), pixels(20), pixels(10)));
}

TEST_P(Bars, GlowSitsOnePointHigherThanTheBarAndStaysWithinItsOverhang) {
    AnimatedBarChart chart = Bars::chart({1});
    chart.showGlow = true;
    chart.glowIntensity = GlowIntensity::medium;
    const QRectF middle(20, 20, 20, 20);
    const auto paint = [&](QPainter& painter) { chart.paint(painter, middle); };
    const QImage image = painted({60, 60}, paint);
    const double overhang = chart.bars().first().overhang();
    const QRectF allowed(pixels(20 - overhang), pixels(20 - overhang), pixels(20 + 2 * overhang),
                         pixels(20 + 2 * overhang));
    EXPECT_TRUE(allowed.contains(paintedRect(image)));
    const int above = colorAt(image, 30, 18.5).alpha();
    const int below = colorAt(image, 30, 41.5).alpha();
    EXPECT_GT(above, below) << "the bar is fainter at the bottom, and the glow is raised";
    EXPECT_GT(below, 0);
    EXPECT_EQ(colorAt(image, 30, 18.5).red(), 255);
}

TEST_P(Bars, GlowHasTheShapeOfTheBarOnePointAboveIt) {
    // A thin line has the same opacity everywhere, so that its glow is alike at both ends.
    AnimatedBarChart chart = Bars::chart({0.4});
    chart.barStyle = BarChartStyle::thinLine;
    chart.height = 40;
    chart.showGlow = true;
    chart.glowIntensity = GlowIntensity::intense;
    const auto paint = [&](QPainter& painter) { chart.paint(painter, {20, 20, 40, 40}); };
    const QImage image = painted({80, 80}, paint);
    const int middle = pixels(40);
    const int top = pixels(44); // of the bar, which ends at 60
    const int bottom = pixels(60) - 1;
    const int rise = pixels(1);
    for (int distance = 1; distance < pixels(4); ++distance) {
        const int above = image.pixelColor(middle, top - 2 * rise - distance).alpha();
        const int below = image.pixelColor(middle, bottom + distance).alpha();
        EXPECT_NEAR(above, below, 2) << distance << " pixels from the bar";
        EXPECT_GT(image.pixelColor(middle, top - distance).alpha(), below + 2) << distance;
    }
}

TEST_P(Bars, PaintTheSameFromACacheAsWithoutOne) {
    AnimatedBarChart chart = Bars::chart({0.2, 0.8, 1});
    chart.showGlow = true;
    PictureCache<BarPicture> cache;
    const QRectF middle(20, 20, 40, 20);
    const auto direct = [&](QPainter& painter) { chart.paint(painter, middle); };
    const auto kept = [&](QPainter& painter) { chart.paint(painter, middle, &cache); };
    const QImage expected = painted({80, 60}, direct);
    EXPECT_LE(largestDifference(painted({80, 60}, kept), expected), 2);
    EXPECT_LE(largestDifference(painted({80, 60}, kept), expected), 2);
    EXPECT_EQ(cache.drawCount(), 3U) << "one picture for each bar, drawn once";
}

TEST_P(Bars, SurviveAnyInput) {
    for (const double value : {notANumber, infinity, -infinity, 1e308, -1e308, 0.5}) {
        for (const double maximum : {notANumber, infinity, 1e-308, 0.0, -1.0, 1.0}) {
            AnimatedBarChart chart = Bars::chart({value, value});
            chart.maxValue = maximum;
            chart.showGlow = true;
            for (const double height : {0.0, 0.3, -4.0, notANumber, 1e9, 20.0}) {
                chart.height = height;
                (void)paintedChart(chart, {30, 20});
            }
        }
    }
}

TEST_P(Bars, PaintAHundredThousandValuesInTime) {
    AnimatedBarChart chart = Bars::chart(QList<double>(100000, 0.7));
    chart.showGlow = true;
    const QImage image = paintedChart(chart, {300, 20});
    EXPECT_EQ(paintedRect(image).width(), pixels(300));
}

TEST(AnimatedBarChart, GivesItsBarsTheRadiusOfTheStyleAndItsOwnFields) {
    AnimatedBarChart chart{.values = {1, 2}, .maxValue = 4, .baseColor = Qt::green};
    chart.glowIntensity = GlowIntensity::subtle;
    const QList<AnimatedBar> bars = chart.bars();
    ASSERT_EQ(bars.size(), 2);
    EXPECT_EQ(bars[1].value, 2);
    EXPECT_EQ(bars[1].maxValue, 4);
    EXPECT_EQ(bars[1].cornerRadius, 3);
    EXPECT_EQ(bars[1].baseColor, QColor(Qt::green));
    EXPECT_EQ(bars[1].glowIntensity, GlowIntensity::subtle);
}

TEST(AnimatedBarChart, LaysPillsThreePointsApartAndRoundedBarsByTheirSpacing) {
    AnimatedBarChart chart{.values = {1, 1, 1}, .barSpacing = 1, .height = 20};
    const auto gap = [&](BarChartStyle style) {
        chart.barStyle = style;
        const QList<QRectF> places = chart.barSlots({0, 0, 100, 20}, 3);
        EXPECT_NEAR(places.last().right(), 100, 1e-9);
        return places[1].left() - places[0].right();
    };
    EXPECT_NEAR(gap(BarChartStyle::pill), 3, 1e-9);
    EXPECT_NEAR(gap(BarChartStyle::thinLine), 3, 1e-9);
    EXPECT_NEAR(gap(BarChartStyle::rounded), 1, 1e-9);
    EXPECT_NEAR(gap(BarChartStyle::square), 1, 1e-9);
}

TEST(AnimatedBar, TakesHeightAndColorFromItsValue) {
    const AnimatedBar bar{.value = 3, .maxValue = 4, .baseColor = Qt::blue};
    EXPECT_EQ(bar.look().ratio, 0.75);
    EXPECT_EQ(bar.look().color, barColor(0.75, Qt::blue));
}

} // namespace
} // namespace orvelle
