#include "at_scale.h"
#include "charts/animated_bar_chart.h"
#include "charts/bar_rules.h"
#include "charts/mini_bar.h"
#include "support/odd_numbers.h"
#include "theme/system_colors.h"

namespace orvelle {
namespace {

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

TEST_P(Bars, ThatAreThinLinesAreSolidAndCentred) {
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

TEST_P(Bars, GlowIsShapedLikeTheBarOnePointAboveIt) {
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

TEST_P(Bars, OfAHundredThousandValuesArePaintedInTime) {
    AnimatedBarChart chart = Bars::chart(QList<double>(100000, 0.7));
    chart.showGlow = true;
    const QImage image = paintedChart(chart, {300, 20});
    EXPECT_EQ(paintedRect(image).width(), pixels(300));
}

TEST_P(Bars, MiniBarChangesColorAndStopsAtItsSlot) {
    const QRectF slot(2, 3, 4, 10);
    const auto paintedBar = [&](double value) {
        return painted({10, 20}, [&](QPainter& painter) { MiniBar{value, Qt::blue}.paint(painter, slot); });
    };
    EXPECT_EQ(colorAt(paintedBar(0.3), 4, 11), QColor(Qt::blue));
    EXPECT_EQ(colorAt(paintedBar(0.5), 4, 11), SystemColors::yellow);
    EXPECT_EQ(colorAt(paintedBar(0.75), 4, 11), SystemColors::red);
    EXPECT_EQ(colorAt(paintedBar(1.4), 4, 11), SystemColors::red);
    EXPECT_EQ(paintedRect(paintedBar(1.4)), QRect(pixels(2), pixels(3), pixels(4), pixels(10)));
    EXPECT_EQ(paintedRect(paintedBar(0.5)), QRect(pixels(2), pixels(8), pixels(4), pixels(5)));
}

TEST_P(Bars, MiniBarShowsASliverWhenIdle) {
    for (const double value : {0.0, -3.0, -infinity, notANumber}) {
        const auto paint = [&](QPainter& painter) { MiniBar{value, Qt::blue}.paint(painter, {2, 3, 4, 10}); };
        EXPECT_EQ(paintedRect(painted({10, 20}, paint)), QRect(pixels(2), pixels(12), pixels(4), pixels(1)));
    }
}

TEST_P(Bars, MiniBarStaysInASlotLowerThanItsSliver) {
    const auto paint = [&](QPainter& painter) { MiniBar{1, Qt::blue}.paint(painter, {2, 3, 4, 0.5}); };
    EXPECT_TRUE(
        QRect(pixels(2), pixels(3), pixels(4), pixels(1)).contains(paintedRect(painted({10, 20}, paint))));
    const auto paintNothing = [&](QPainter& painter) { MiniBar{1, Qt::blue}.paint(painter, {2, 3, 0, 0}); };
    EXPECT_TRUE(paintedRect(painted({10, 20}, paintNothing)).isEmpty());
}

TEST(AnimatedBarChart, HandsTheStylesRadiusToItsBarsAndPassesTheRestOn) {
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

TEST(AnimatedBarChart, LaysPillsThreePointsApartAndRoundedBarsAsAsked) {
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

TEST(AnimatedBar, LooksAsItsValueAsks) {
    const AnimatedBar bar{.value = 3, .maxValue = 4, .baseColor = Qt::blue};
    EXPECT_EQ(bar.look().ratio, 0.75);
    EXPECT_EQ(bar.look().color, barColor(0.75, Qt::blue));
}

} // namespace
} // namespace orvelle
