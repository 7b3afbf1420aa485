#include "at_scale.h"
#include "charts/plain_bars.h"
#include "support/odd_numbers.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

class MiniBarPainting : public AtScale {};

INSTANTIATE_TEST_SUITE_P(, MiniBarPainting, bothScales);

TEST_P(MiniBarPainting, ChangesColorAndStopsAtItsSlot) {
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

TEST_P(MiniBarPainting, ShowsASliverWhenIdle) {
    for (const double value : {0.0, -3.0, -infinity, notANumber}) {
        const auto paint = [&](QPainter& painter) { MiniBar{value, Qt::blue}.paint(painter, {2, 3, 4, 10}); };
        EXPECT_EQ(paintedRect(painted({10, 20}, paint)), QRect(pixels(2), pixels(12), pixels(4), pixels(1)));
    }
}

TEST_P(MiniBarPainting, StaysInASlotLowerThanItsSliver) {
    const auto paint = [&](QPainter& painter) { MiniBar{1, Qt::blue}.paint(painter, {2, 3, 4, 0.5}); };
    EXPECT_TRUE(
        QRect(pixels(2), pixels(3), pixels(4), pixels(1)).contains(paintedRect(painted({10, 20}, paint))));
    const auto paintNothing = [&](QPainter& painter) { MiniBar{1, Qt::blue}.paint(painter, {2, 3, 0, 0}); };
    EXPECT_TRUE(paintedRect(painted({10, 20}, paintNothing)).isEmpty());
}

class GradientBarPainting : public AtScale {
protected:
    static constexpr QSizeF size{100, 8};

    [[nodiscard]] QImage paintedBar(double fraction) const {
        const GradientBar bar{.fraction = fraction, .color = Qt::red, .trackColor = Qt::blue};
        return painted(size, [&](QPainter& painter) { bar.paint(painter, {{0, 0}, size}, fraction); });
    }
};

INSTANTIATE_TEST_SUITE_P(, GradientBarPainting, bothScales);

TEST_P(GradientBarPainting, FillsItsTrackFromTheLeft) {
    const QImage image = paintedBar(0.5);
    EXPECT_GT(colorAt(image, 49, 4).red(), 240);
    EXPECT_EQ(colorAt(image, 51, 4).red(), 0);
    EXPECT_EQ(colorAt(image, 99, 4).blue(), 255);
}

TEST_P(GradientBarPainting, BecomesStrongerTowardsTheEndOfItsFill) {
    const QImage image = paintedBar(0.5);
    EXPECT_NEAR(colorAt(image, 1, 4).red(), 0.7 * 255, 4);
    EXPECT_NEAR(colorAt(image, 25, 4).red(), 0.85 * 255, 4);
}

TEST_P(GradientBarPainting, ShowsOnlyItsTrackWhenItIsEmpty) {
    for (const double fraction : {0.0, -0.2, notANumber})
        EXPECT_EQ(colorAt(paintedBar(fraction), 1, 4).red(), 0) << fraction;
}

TEST_P(GradientBarPainting, ReachesBeyondItsTrackWhileTheSpringOvershoots) {
    const GradientBar bar{.fraction = 1.05, .color = Qt::red, .trackColor = Qt::blue};
    const QImage image =
        painted({120, 8}, [&](QPainter& painter) { bar.paint(painter, {{0, 0}, QSizeF(100, 8)}, 1.05); });
    EXPECT_EQ(paintedRect(image), QRect(0, 0, pixels(105), pixels(8)));
    EXPECT_GT(colorAt(image, 103, 4).red(), 240);
}

TEST_P(GradientBarPainting, FillsItsTrackExactlyWhenFull) {
    EXPECT_EQ(paintedRect(paintedBar(1)), QRect(0, 0, pixels(100), pixels(8)));
    EXPECT_LT(colorAt(paintedBar(1), 0, 0).alpha(), 200) << "the corners are round";
}

} // namespace
} // namespace orvelle
