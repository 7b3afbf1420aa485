#include "shell/wayland/strip_fixture.h"

#include <linux/input-event-codes.h>

namespace orvelle {
namespace {

class StripInputTest : public StripTest {
protected:
    StripInputTest() { output = &compositor.addOutput(QStringLiteral("HDMI-A-1"), QSize(400, 300)); }

    void SetUp() override {
        start();
        for (BarItem* item : {cpu, memory}) {
            item->setClickHandler(
                [this, item](ClickButton button) { clicks.append({item->identifier(), button}); });
        }
        ASSERT_TRUE(waitForStrip());
        ASSERT_TRUE(waitUntil([this] { return seat().pointerCount() == 1 && seat().touchCount() == 1; }));
    }
    [[nodiscard]] FakeSeat& seat() { return compositor.seat(); }
    [[nodiscard]] FakeSurface& surface() { return *compositor.strip(); }
    static QPointF middle(const BarItem& item) { return item.bounds().center(); }
    [[nodiscard]] bool waitForHighlight(const BarItem& item, bool highlighted) {
        return waitUntil([&] { return item.isHighlighted() == highlighted; });
    }
    void expectNoClick() {
        settleBoth();
        EXPECT_TRUE(clicks.isEmpty());
    }

    FakeOutput* output;
    using Clicks = QList<std::pair<QString, ClickButton>>;
    static inline const QString cpuName = QStringLiteral("cpu");
    static inline const QString memoryName = QStringLiteral("memory");
    Clicks clicks;
};

TEST_F(StripInputTest, AClickReachesTheItemUnderThePointerWithItsButton) {
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    seat().release(BTN_LEFT);
    seat().move(middle(*memory));
    seat().press(BTN_RIGHT);
    seat().release(BTN_RIGHT);
    const Clicks expected{{cpuName, ClickButton::left}, {memoryName, ClickButton::right}};
    ASSERT_TRUE(waitUntil([this] { return clicks.size() == 2; }));
    EXPECT_EQ(clicks, expected);
    EXPECT_TRUE(waitUntil([this] { return seat().cursorScale() == 1; }));
}

TEST_F(StripInputTest, TheCursorHasTheScaleOfTheScreen) {
    FakeCompositor::setScale(*output, 2);
    ASSERT_TRUE(waitUntil([this] { return strip->bar().place().pixelsPerPoint == 2; }));
    settleBoth();
    seat().enter(surface(), middle(*cpu));
    EXPECT_TRUE(waitUntil([this] { return seat().cursorScale() == 2; }));
}

TEST_F(StripInputTest, FourHundredClicksAreFourHundredClicks) {
    seat().enter(surface(), middle(*cpu));
    for (int click = 0; click < 400; ++click) {
        seat().move(middle(click % 2 == 0 ? *memory : *cpu));
        seat().press(BTN_LEFT);
        seat().release(BTN_LEFT);
        if (click % 20 == 0)
            QTest::qWait(0);
    }
    ASSERT_TRUE(waitUntil([this] { return clicks.size() == 400; }));
    settleBoth();
    EXPECT_EQ(clicks.size(), 400);
    EXPECT_EQ(clicks.count({cpuName, ClickButton::left}), 200);
    EXPECT_EQ(compositor.layerSurfaceCount, 1);
}

TEST_F(StripInputTest, OtherButtonsAndTheWheelDoNothing) {
    seat().enter(surface(), middle(*cpu));
    for (const std::uint32_t button : {0x112U, 0x113U, 0x114U}) {
        seat().press(button);
        seat().release(button);
    }
    seat().turnWheel();
    expectNoClick();
}

TEST_F(StripInputTest, APressIsTakenBackWhenThePointerLeaves) {
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    ASSERT_TRUE(waitForHighlight(*cpu, true));
    seat().leave(surface());
    ASSERT_TRUE(waitForHighlight(*cpu, false));
    seat().release(BTN_LEFT);
    expectNoClick();
}

TEST_F(StripInputTest, APressIsTakenBackWhenTheButtonIsLetGoElsewhere) {
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    seat().move(middle(*memory));
    seat().release(BTN_LEFT);
    expectNoClick();
    EXPECT_FALSE(cpu->isHighlighted());
}

TEST_F(StripInputTest, APressIsTakenBackWhenThePointerIsUnplugged) {
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    ASSERT_TRUE(waitForHighlight(*cpu, true));
    seat().setCapabilities(false, true);
    ASSERT_TRUE(waitForHighlight(*cpu, false));
    ASSERT_TRUE(waitUntil([this] { return seat().pointerCount() == 0; }));
    seat().setCapabilities(true, true);
    ASSERT_TRUE(waitUntil([this] { return seat().pointerCount() == 1; }));
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    seat().release(BTN_LEFT);
    EXPECT_TRUE(waitUntil([this] { return clicks.size() == 1; }));
}

TEST_F(StripInputTest, APressIsTakenBackWhenTheSeatGoes) {
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    ASSERT_TRUE(waitForHighlight(*cpu, true));
    compositor.removeSeat();
    EXPECT_TRUE(waitForHighlight(*cpu, false));
}

TEST_F(StripInputTest, SurvivesASurfaceThatGoesUnderThePointer) {
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    ASSERT_TRUE(waitForHighlight(*cpu, true));
    strip->bar().removeItem(*cpu);
    strip->bar().removeItem(*memory);
    seat().move(QPointF(10, 10)); // crosses the end of the surface
    ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaces().empty(); }));
    seat().move(QPointF(20, 10));
    seat().release(BTN_LEFT);
    expectNoClick();
}

TEST_F(StripInputTest, AClickMayEmptyTheBar) {
    cpu->setClickHandler([this](ClickButton) {
        strip->bar().removeItem(*memory);
        strip->bar().removeItem(*cpu);
    });
    seat().enter(surface(), middle(*cpu));
    seat().press(BTN_LEFT);
    seat().release(BTN_LEFT);
    EXPECT_TRUE(waitUntil([this] { return compositor.layerSurfaces().empty(); }));
}

// Nothing waits between a touch and what ends it, because a busy machine may take longer than a finger that
// stays.

TEST_F(StripInputTest, ATapIsALeftClick) {
    seat().touch(surface(), 0, middle(*memory));
    seat().lift(0);
    ASSERT_TRUE(waitUntil([this] { return !clicks.isEmpty(); }));
    EXPECT_EQ(clicks, (Clicks{{memoryName, ClickButton::left}}));
}

TEST_F(StripInputTest, AFingerThatStaysMakesARightClick) {
    seat().touch(surface(), 0, middle(*memory));
    ASSERT_TRUE(waitUntil([this] { return !clicks.isEmpty(); }));
    seat().lift(0);
    settleBoth();
    EXPECT_EQ(clicks, (Clicks{{memoryName, ClickButton::right}}));
    EXPECT_FALSE(memory->isHighlighted());
}

TEST_F(StripInputTest, AFingerThatMovesAwayClicksNothing) {
    seat().touch(surface(), 0, middle(*memory));
    seat().moveFinger(0, QPointF(20, 10));
    QTest::qWait(static_cast<int>(TouchInput::holdTime.count()) + 100);
    seat().lift(0);
    expectNoClick();
}

TEST_F(StripInputTest, AFingerThatMovesOnItsItemIsNotHeld) {
    seat().touch(surface(), 0, middle(*memory));
    seat().moveFinger(0, middle(*memory) + QPointF(15, 0));
    QTest::qWait(static_cast<int>(TouchInput::holdTime.count()) + 100);
    seat().lift(0);
    ASSERT_TRUE(waitUntil([this] { return !clicks.isEmpty(); }));
    settleBoth();
    EXPECT_EQ(clicks, (Clicks{{memoryName, ClickButton::left}}));
}

TEST_F(StripInputTest, OnlyTheFirstFingerCounts) {
    seat().touch(surface(), 0, middle(*memory));
    seat().touch(surface(), 1, middle(*cpu));
    seat().lift(1);
    seat().lift(0);
    ASSERT_TRUE(waitUntil([this] { return !clicks.isEmpty(); }));
    settleBoth();
    EXPECT_EQ(clicks, (Clicks{{memoryName, ClickButton::left}}));
}

TEST_F(StripInputTest, ATouchIsTakenBackWhenTheCompositorTakesIt) {
    seat().touch(surface(), 0, middle(*memory));
    seat().cancelTouch();
    QTest::qWait(static_cast<int>(TouchInput::holdTime.count()) + 100);
    expectNoClick();
    EXPECT_FALSE(memory->isHighlighted());
}

TEST_F(StripInputTest, ATouchIsTakenBackWhenTheScreenIsUnplugged) {
    seat().touch(surface(), 0, middle(*memory));
    seat().setCapabilities(true, false);
    EXPECT_TRUE(waitUntil([this] { return seat().touchCount() == 0; }));
    EXPECT_FALSE(memory->isHighlighted());
    expectNoClick();
}

} // namespace
} // namespace orvelle
