#include "at_scale.h"
#include "charts/gradient_bar.h"

#include <limits>

namespace orvelle {
namespace {

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

TEST_P(GradientBarPainting, GrowsStrongerTowardsTheEndOfItsFill) {
    const QImage image = paintedBar(0.5);
    EXPECT_NEAR(colorAt(image, 1, 4).red(), 0.7 * 255, 4);
    EXPECT_NEAR(colorAt(image, 25, 4).red(), 0.85 * 255, 4);
}

TEST_P(GradientBarPainting, ShowsOnlyItsTrackWhenItIsEmpty) {
    for (const double fraction : {0.0, -0.2, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(colorAt(paintedBar(fraction), 1, 4).red(), 0) << fraction;
}

TEST_P(GradientBarPainting, ReachesBeyondItsTrackWhileTheSpringOvershoots) {
    const GradientBar bar{.fraction = 1.05, .color = Qt::red, .trackColor = Qt::blue};
    const QImage image =
        painted({120, 8}, [&](QPainter& painter) { bar.paint(painter, {{0, 0}, QSizeF(100, 8)}, 1.05); });
    EXPECT_EQ(paintedRect(image), QRect(0, 0, pixels(105), pixels(8)));
    EXPECT_GT(colorAt(image, 103, 4).red(), 240);
}

TEST_P(GradientBarPainting, FillsItsTrackAndNoMore) {
    EXPECT_EQ(paintedRect(paintedBar(1)), QRect(0, 0, pixels(100), pixels(8)));
    EXPECT_LT(colorAt(paintedBar(1), 0, 0).alpha(), 200) << "the corners are round";
}

} // namespace
} // namespace orvelle
