#include "shell/wayland/strip_fixture.h"

#include <QElapsedTimer>

namespace orvelle {
namespace {

class StripOutputsTest : public StripTest {
protected:
    FakeOutput& add(const QString& name) { return compositor.addOutput(name, QSize(400, 300)); }
    [[nodiscard]] bool isOn(const FakeOutput& output) const {
        return compositor.strip() != nullptr && compositor.strip()->output == &output;
    }
    [[nodiscard]] bool waitForStripOn(const FakeOutput& output) {
        return waitUntil([&] { return isOn(output); });
    }
};

TEST_F(StripOutputsTest, WaitsForAScreen) {
    start();
    settleBoth();
    EXPECT_EQ(compositor.layerSurfaceCount, 0);
    EXPECT_TRUE(waitForStripOn(add(QStringLiteral("HDMI-A-1"))));
}

TEST_F(StripOutputsTest, TakesTheFirstScreenAndStaysThere) {
    const FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    add(QStringLiteral("HDMI-A-2"));
    start();
    ASSERT_TRUE(waitForStrip());
    add(QStringLiteral("HDMI-A-3"));
    settleBoth();
    EXPECT_TRUE(isOn(first));
    EXPECT_EQ(compositor.layerSurfaceCount, 1);
}

TEST_F(StripOutputsTest, MovesWhenItsScreenGoes) {
    FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    const FakeOutput& second = add(QStringLiteral("HDMI-A-2"));
    start();
    ASSERT_TRUE(waitForStripOn(first));
    compositor.removeOutput(first);
    EXPECT_TRUE(waitForStripOn(second));
    EXPECT_TRUE(showsTheBar());
    EXPECT_EQ(compositor.layerSurfaceCount, 2);
}

TEST_F(StripOutputsTest, MovesWhenItsScreenGoesWithoutClosingIt) {
    FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    const FakeOutput& second = add(QStringLiteral("HDMI-A-2"));
    start();
    ASSERT_TRUE(waitForStripOn(first));
    // The place may be asked for at any time.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &*strip,
                     [this] { static_cast<void>(strip->bar().place()); });
    compositor.removeOutput(first, false);
    ASSERT_TRUE(waitForStripOn(second));
    EXPECT_EQ(compositor.layerSurfaces().size(), 1U);
}

TEST_F(StripOutputsTest, StaysWhenAnotherScreenGoes) {
    const FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    FakeOutput& second = add(QStringLiteral("HDMI-A-2"));
    start();
    ASSERT_TRUE(waitForStripOn(first));
    compositor.removeOutput(second);
    settleBoth();
    EXPECT_TRUE(isOn(first));
    EXPECT_EQ(compositor.layerSurfaceCount, 1);
}

TEST_F(StripOutputsTest, SurvivesTheLastScreenAndAppearsOnTheNext) {
    FakeOutput* last = &add(QStringLiteral("HDMI-A-1"));
    start();
    ASSERT_TRUE(waitForStripOn(*last));
    for (const char* name : {"HDMI-A-2", "HDMI-A-1"}) {
        compositor.removeOutput(*last);
        ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaces().empty(); }));
        EXPECT_FALSE(strip->bar().place().isOnScreen);
        EXPECT_NE(strip->bar().place().screen, nullptr);
        last = &add(QString::fromLatin1(name));
        EXPECT_TRUE(waitForStripOn(*last));
        EXPECT_TRUE(showsTheBar());
    }
}

TEST_F(StripOutputsTest, SurvivesAScreenThatGoesBeforeItIsShownThere) {
    compositor.answer = nullptr;
    FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    start();
    ASSERT_TRUE(waitUntil([this] { return compositor.layerSurfaceCount == 1; }));
    compositor.removeOutput(first);
    settleBoth();
    compositor.answer = [this](FakeSurface& surface) { compositor.configure(surface, QSize(400, 22)); };
    EXPECT_TRUE(waitForStripOn(add(QStringLiteral("HDMI-A-2"))));
}

TEST_F(StripOutputsTest, TriesAnotherScreenWhenTheCompositorClosesIt) {
    const FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    const FakeOutput& second = add(QStringLiteral("HDMI-A-2"));
    start();
    ASSERT_TRUE(waitForStripOn(first));
    int moves = 0;
    QObject::connect(&strip->bar(), &Bar::moved, &strip->bar(), [&moves] { ++moves; });
    FakeCompositor::close(*compositor.strip());
    ASSERT_TRUE(waitForStripOn(second));
    EXPECT_GE(moves, 1);
    FakeCompositor::close(*compositor.strip());
    EXPECT_TRUE(waitForStripOn(first));
}

TEST_F(StripOutputsTest, ComesBackToTheOnlyScreen) {
    const FakeOutput& first = add(QStringLiteral("HDMI-A-1"));
    start();
    ASSERT_TRUE(waitForStripOn(first));
    FakeCompositor::close(*compositor.strip());
    ASSERT_TRUE(waitUntil([this] { return compositor.strip() == nullptr; }));
    EXPECT_TRUE(waitForStripOn(first));
    EXPECT_TRUE(showsTheBar());
}

TEST_F(StripOutputsTest, TakesItsTimeWhenItIsClosedAgainAndAgain) {
    add(QStringLiteral("HDMI-A-1"));
    compositor.answer = [](FakeSurface& surface) { FakeCompositor::close(surface); };
    start();
    QTest::qWait(1000);
    // At 0, 50, 150, 350 and 750 ms; a busy machine makes fewer.
    EXPECT_GE(compositor.layerSurfaceCount, 2);
    EXPECT_LE(compositor.layerSurfaceCount, 5);
    EXPECT_LE(compositor.layerSurfaces().size(), 1U);
}

TEST_F(StripOutputsTest, EndsWhileItsClosedSurfaceIsStillThere) {
    add(QStringLiteral("HDMI-A-1"));
    start();
    ASSERT_TRUE(waitForStrip());
    FakeCompositor::close(*compositor.strip());
    ASSERT_TRUE(waitUntil([this] { return !strip->bar().place().isOnScreen; }));
    strip.reset();
    EXPECT_TRUE(waitUntil([this] { return compositor.layerSurfaces().empty(); }));
}

TEST(RetryDelayTest, GrowsUntilAStripHasLivedLong) {
    RetryDelay delay;
    const std::chrono::milliseconds short_{20};
    std::chrono::milliseconds last = delay.next(short_);
    EXPECT_EQ(last, RetryDelay::first);
    while (last < RetryDelay::longest) {
        const std::chrono::milliseconds next = delay.next(short_);
        ASSERT_GT(next, last);
        last = next;
    }
    EXPECT_EQ(delay.next(short_), RetryDelay::longest);
    EXPECT_EQ(delay.next(RetryDelay::longLife), RetryDelay::first);
    EXPECT_GT(delay.next(short_), RetryDelay::first);
}

} // namespace
} // namespace orvelle
