#include "shell/wayland/strip_fixture.h"

#include <QGuiApplication>
#include <QScreen>

namespace orvelle {
namespace {

constexpr std::uint32_t topLeftRight = 1 | 4 | 8;

class StripSurfaceTest : public StripTest {
protected:
    explicit StripSurfaceTest(const FakeOffers& offers = {})
        : StripTest(offers) {
        output = &compositor.addOutput(QStringLiteral("HDMI-A-1"), QSize(400, 300));
    }
    FakeOutput* output;
};

TEST_F(StripSurfaceTest, IsADockAtTheTopThatReservesItsSpaceAndTakesNoKeyboard) {
    start();
    ASSERT_TRUE(waitForStrip());
    const FakeSurface& surface = *compositor.strip();
    EXPECT_EQ(surface.name, QStringLiteral("dock"));
    EXPECT_EQ(surface.layer, topLayer);
    EXPECT_EQ(surface.anchor, topLeftRight);
    EXPECT_EQ(surface.requestedSize, QSize(0, barHeightPoints));
    EXPECT_EQ(surface.exclusiveZone, barHeightPoints);
    EXPECT_EQ(surface.keyboard, 0U);
    EXPECT_EQ(surface.output, output);
    EXPECT_NE(surface.acknowledged, 0U);
    EXPECT_EQ(surface.frameCallbacks, 0);
}

TEST_F(StripSurfaceTest, TellsItsPlaceOnlyWhileItIsShown) {
    start();
    EXPECT_FALSE(strip->bar().place().isOnScreen);
    EXPECT_EQ(strip->bar().place().screen, QGuiApplication::primaryScreen());
    ASSERT_TRUE(waitForStrip());
    const BarPlace place = strip->bar().place();
    EXPECT_TRUE(place.isOnScreen);
    EXPECT_EQ(place.screen, QGuiApplication::primaryScreen());
    EXPECT_EQ(place.geometry, QRect(place.screen->geometry().topLeft(), QSize(400, barHeightPoints)));
    EXPECT_EQ(strip->window().accessibleRoot()->rect(), place.geometry);
    EXPECT_EQ(strip->window().handle(), nullptr) << "a window of Qt was made";
}

TEST_F(StripSurfaceTest, ShowsNothingWithoutItemsAndAgainWithOne) {
    start();
    ASSERT_TRUE(waitForStrip());
    strip->bar().removeItem(*cpu);
    strip->bar().removeItem(*memory);
    ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaces().empty(); }));
    EXPECT_FALSE(strip->bar().place().isOnScreen);
    addItem(QStringLiteral("disk"), Qt::green, cpuPaints);
    ASSERT_TRUE(waitForStrip());
    EXPECT_TRUE(showsTheBar());
}

TEST_F(StripSurfaceTest, StaysWhenItIsEmptiedAndFilledAtOnce) {
    start();
    ASSERT_TRUE(waitForStrip());
    strip->bar().removeItem(*cpu);
    strip->bar().removeItem(*memory);
    addItem(QStringLiteral("disk"), Qt::green, cpuPaints);
    ASSERT_TRUE(waitUntil([this] { return showsTheBar(); }));
    EXPECT_EQ(compositor.layerSurfaceCount, 1);
}

TEST_F(StripSurfaceTest, WaitsForARealSize) {
    compositor.answer = [this](FakeSurface& surface) { compositor.configure(surface, QSize(0, 0)); };
    start();
    ASSERT_TRUE(waitUntil([this] { return !compositor.layerSurfaces().empty(); }));
    FakeSurface& surface = *compositor.layerSurfaces().front();
    ASSERT_TRUE(waitUntil([&surface] { return surface.acknowledged != 0; }));
    settleBoth();
    EXPECT_EQ(surface.pictures, 0);
    EXPECT_FALSE(strip->bar().place().isOnScreen);
    compositor.configure(surface, QSize(500, 0));
    ASSERT_TRUE(waitForStrip());
    EXPECT_EQ(surface.picture.size(), QSize(500, barHeightPoints));
}

TEST_F(StripSurfaceTest, IgnoresAnImpossibleSize) {
    compositor.answer = [this](FakeSurface& surface) { compositor.configure(surface, QSize(100'000, -1)); };
    start();
    ASSERT_TRUE(waitUntil([this] { return !compositor.layerSurfaces().empty(); }));
    settleBoth();
    EXPECT_EQ(compositor.strip(), nullptr);
    compositor.configure(*compositor.layerSurfaces().front(), QSize(500, barHeightPoints));
    EXPECT_TRUE(waitForStrip());
}

TEST_F(StripSurfaceTest, FollowsItsWidth) {
    start();
    ASSERT_TRUE(waitForStrip());
    int moves = 0;
    QObject::connect(&strip->bar(), &Bar::moved, &strip->bar(), [&moves] { ++moves; });
    compositor.configure(*compositor.strip(), QSize(640, barHeightPoints));
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->picture.width() == 640; }));
    EXPECT_EQ(memory->bounds().right(), 640 - barRightMarginPoints);
    EXPECT_TRUE(showsTheBar());
    EXPECT_EQ(moves, 1);
}

TEST_F(StripSurfaceTest, ReportsItsFirstPictureOnce) {
    start();
    int reports = 0;
    QObject::connect(&*strip, &WaylandStrip::firstPainted, &*strip, [&reports] { ++reports; });
    ASSERT_TRUE(waitForStrip());
    cpu->repaint();
    settleBoth();
    EXPECT_EQ(compositor.strip()->pictures, 2);
    EXPECT_EQ(reports, 1);
}

class OldCompositorTest : public StripSurfaceTest {
protected:
    OldCompositorTest()
        : StripSurfaceTest({.compositor = 1,
                            .output = 1,
                            .seat = 1,
                            .layerShell = 1,
                            .viewporter = 1,
                            .fractionalScale = 0,
                            .xdgOutput = 1}) {}
};

TEST_F(OldCompositorTest, ShowsTheBarAndHearsClicks) {
    start();
    int clicks = 0;
    cpu->setClickHandler([&clicks](ClickButton) { ++clicks; });
    ASSERT_TRUE(waitForStrip());
    EXPECT_TRUE(showsTheBar());
    cpu->repaint();
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->pictures == 2; }));
    EXPECT_FALSE(compositor.strip()->isDamageInPixels);
    compositor.seat().enter(*compositor.strip(), cpu->bounds().center());
    compositor.seat().press(0x110);
    compositor.seat().release(0x110);
    EXPECT_TRUE(waitUntil([&clicks] { return clicks == 1; }));
}

TEST_F(OldCompositorTest, GoesWithTheLastScreenAndComesBack) {
    start();
    ASSERT_TRUE(waitForStrip());
    compositor.removeOutput(*output);
    ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaces().empty(); }));
    compositor.addOutput(QStringLiteral("HDMI-A-2"), QSize(500, 300));
    EXPECT_TRUE(waitForStrip());
}

} // namespace
} // namespace orvelle
