#include "shell/wayland/strip_fixture.h"

#include <linux/input-event-codes.h>

namespace orvelle {
namespace {

constexpr std::uint32_t allEdges = 1 | 2 | 4 | 8;

class PressCatcherTest : public StripTest {
protected:
    PressCatcherTest() {
        compositor.addOutput(QStringLiteral("HDMI-A-1"), QSize(400, 300));
        second = &compositor.addOutput(QStringLiteral("HDMI-A-2"), QSize(500, 300));
    }
    void SetUp() override {
        start();
        ASSERT_TRUE(waitForStrip());
    }
    void catchPresses() {
        catcher = strip->catchPresses();
        QObject::connect(catcher.get(), &PressCatcher::pressed, catcher.get(), [this] { ++presses; });
    }
    /// What covers an output; null for nothing.
    [[nodiscard]] FakeSurface* coverOf(const FakeOutput& output) const {
        for (FakeSurface* surface : compositor.layerSurfaces()) {
            if (surface->isMapped() && surface->output == &output && surface->exclusiveZone <= 0)
                return surface;
        }
        return nullptr;
    }
    [[nodiscard]] bool waitForCovers() {
        return waitUntil([this] { return coverOf(*compositor.strip()->output) && coverOf(*second); });
    }

    FakeOutput* second;
    std::unique_ptr<PressCatcher> catcher;
    int presses = 0;
};

TEST_F(PressCatcherTest, CoversEveryScreenWithAScaledTransparentPixel) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    for (const FakeSurface* cover : {coverOf(*compositor.strip()->output), coverOf(*second)}) {
        EXPECT_EQ(cover->picture.size(), QSize(1, 1));
        EXPECT_EQ(cover->picture.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(cover->destination, cover->output->size);
        EXPECT_EQ(cover->anchor, allEdges);
        EXPECT_EQ(cover->keyboard, 0U);
    }
}

TEST_F(PressCatcherTest, LeavesTheStripAndWhatIsAboveWindowsOnItsScreenFree) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    const FakeSurface& beside = *coverOf(*compositor.strip()->output);
    EXPECT_EQ(beside.exclusiveZone, 0); // beside all that panels have reserved
    EXPECT_EQ(beside.layer, topLayer);
    EXPECT_EQ(coverOf(*second)->exclusiveZone, -1); // across panels
    EXPECT_EQ(coverOf(*second)->layer, overlayLayer);
}

TEST_F(PressCatcherTest, HearsPressesOfPointersAndFingers) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    FakeSeat& seat = compositor.seat();
    seat.enter(*coverOf(*second), QPointF(10, 10));
    seat.move(QPointF(20, 10));
    seat.turnWheel();
    settleBoth();
    EXPECT_EQ(presses, 0);
    seat.press(BTN_MIDDLE);
    ASSERT_TRUE(waitUntil([this] { return presses == 1; }));
    seat.touch(*coverOf(*compositor.strip()->output), 0, QPointF(10, 10));
    EXPECT_TRUE(waitUntil([this] { return presses == 2; }));
}

TEST_F(PressCatcherTest, DoesNotHearPressesOnTheStrip) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    bool isClicked = false;
    cpu->setClickHandler([&isClicked](ClickButton) { isClicked = true; });
    compositor.seat().enter(*compositor.strip(), cpu->bounds().center());
    compositor.seat().press(BTN_LEFT);
    compositor.seat().release(BTN_LEFT);
    ASSERT_TRUE(waitUntil([&isClicked] { return isClicked; }));
    EXPECT_EQ(presses, 0);
}

TEST_F(PressCatcherTest, MayEndWithAPress) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    QObject::connect(catcher.get(), &PressCatcher::pressed, catcher.get(), [this] { catcher.reset(); });
    compositor.seat().enter(*coverOf(*second), QPointF(10, 10));
    compositor.seat().press(BTN_LEFT);
    compositor.seat().release(BTN_LEFT);
    ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaces().size() == 1; }));
    EXPECT_EQ(presses, 1);
}

TEST_F(PressCatcherTest, FollowsScreensThatComeAndGo) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    compositor.removeOutput(*second);
    ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaces().size() == 2; }));
    second = &compositor.addOutput(QStringLiteral("HDMI-A-3"), QSize(200, 300));
    EXPECT_TRUE(waitForCovers());
}

TEST_F(PressCatcherTest, GivesTheScreensBackWhenItEnds) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    catcher.reset();
    EXPECT_TRUE(waitUntil([this] { return compositor.layerSurfaces().size() == 1; }));
}

TEST_F(PressCatcherTest, DoesNotCoverAScreenAgainFromWhichTheCompositorTookIt) {
    catchPresses();
    ASSERT_TRUE(waitForCovers());
    const int before = compositor.layerSurfaceCount;
    FakeCompositor::close(*coverOf(*second));
    settleBoth();
    EXPECT_EQ(compositor.layerSurfaceCount, before);
}

} // namespace
} // namespace orvelle
