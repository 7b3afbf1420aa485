#include "animation/spring.h"
#include "charts/at_scale.h"
#include "charts/continuous_rounded_rect.h"
#include "quick_fixture.h"
#include "windows/charts/shape_items.h"

namespace orvelle {
namespace {

class GradientBarHosting : public QuickFixture {
protected:
    GradientBarHosting() {
        bar->setProperty("color", QColor(Qt::red));
        bar->setProperty("fraction", 0.2);
    }

    std::unique_ptr<GradientBarItem> bar = placed<GradientBarItem>();
};

TEST_F(GradientBarHosting, ShowsItsFractionAtOnceWhenItIsFirstShown) {
    showWindow();
    EXPECT_EQ(bar->shownFraction(), 0.2);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(GradientBarHosting, FollowsAChangeByASpringThatOvershootsOnce) {
    showWindow();
    bar->setProperty("fraction", 0.6);
    Spring expected(0.2);
    expected.retarget(0.6);
    double largest = 0;
    for (int frame = 0; frame < 40; ++frame) {
        seconds += 0.04;
        clock.step();
        expected.advance(0.04, {.response = 0.4, .dampingFraction = 0.7});
        EXPECT_NEAR(bar->shownFraction(), expected.position(), 0.002);
        largest = std::max(largest, bar->shownFraction());
    }
    // e^(-pi d / sqrt(1 - d^2)) of the way beyond the target, for a damping fraction d of 0.7.
    EXPECT_NEAR(largest, 0.6 + 0.4 * 0.046, 0.002);
    EXPECT_EQ(bar->shownFraction(), 0.6);
    EXPECT_FALSE(clock.isRunning()) << "the animation has ended";
}

TEST_F(GradientBarHosting, ShowsTheNewFractionAtOnceUnderReducedMotionAndWhileHidden) {
    clock.setReduced(true);
    showWindow();
    bar->setProperty("fraction", 0.9);
    EXPECT_EQ(bar->shownFraction(), 0.9);
    clock.setReduced(false);
    window.hide();
    bar->setProperty("fraction", 0.1);
    EXPECT_EQ(bar->shownFraction(), 0.1);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(GradientBarHosting, IsNotCutOffWhileItOvershoots) {
    bar->setProperty("fraction", 0.0);
    showWindow();
    bar->setProperty("fraction", 1.0);
    pass(0.28); // about half of the period that the damping leaves: the furthest way out
    EXPECT_NEAR(bar->shownFraction(), 1.046, 0.002);
    waitForFrame();
    EXPECT_GT(colorAt(40 + 100 + 3, 30 + 25).red(), 200);
    EXPECT_EQ(colorAt(40 + 100 + 6, 30 + 25).red(), 0);
}

TEST_F(GradientBarHosting, ShowsAnotherColorWithoutAnimation) {
    showWindow();
    bar->setProperty("color", QColor(Qt::green));
    EXPECT_FALSE(clock.isRunning());
    waitForFrame();
    EXPECT_GT(colorAt(42, 50).green(), 100);
}

class ContinuousRectangleHosting : public QuickFixture {
protected:
    ContinuousRectangleHosting() {
        plate.setParentItem(window.contentItem());
        plate.setSize({100, 50});
        plate.setProperty("color", QColor(Qt::red));
        plate.setProperty("radius", 20);
    }

    /// The expected picture: the path filled with this colour on the window's black.
    [[nodiscard]] static QImage filled(const QPainterPath& path, const QColor& color) {
        return paintedImage({100, 50}, 1, [&](QPainter& painter) {
            painter.fillRect(QRect(0, 0, 100, 50), Qt::black);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillPath(path, color);
        });
    }
    [[nodiscard]] QImage shown() { return window.grabWindow().copy(0, 0, 100, 50); }

    ContinuousRectangleItem plate;
};

TEST_F(ContinuousRectangleHosting, HasCornersThatBendGradually) {
    showWindow();
    const QRectF place(0, 0, 100, 50);
    EXPECT_LE(largestDifference(shown(), filled(continuousRoundedRect(place, 20), Qt::red)), 2);
    QPainterPath circular;
    circular.addRoundedRect(place, 20, 20);
    EXPECT_GT(largestDifference(shown(), filled(circular, Qt::red)), 40);
}

TEST_F(ContinuousRectangleHosting, FollowsItsColorAndRadius) {
    showWindow();
    plate.setProperty("color", QColor(Qt::green));
    plate.setProperty("radius", 5);
    waitForFrame();
    EXPECT_LE(largestDifference(shown(), filled(continuousRoundedRect(QRectF(0, 0, 100, 50), 5), Qt::green)),
              2);
}

} // namespace
} // namespace orvelle
