#include "shell/wayland/strip_fixture.h"

namespace orvelle {
namespace {

constexpr std::uint32_t wholeScaleParts = 120;

class StripPictureTest : public StripTest {
protected:
    explicit StripPictureTest(const FakeOffers& offers = {})
        : StripTest(offers) {}

    void startOn(double outputScale) {
        compositor.addOutput(QStringLiteral("HDMI-A-1"), QSize(401, 300), outputScale);
        start();
        ASSERT_TRUE(waitForStrip());
        settleBoth();
    }
    void expectPictureAt(double pixelsPerPoint, const QSize& pixels) {
        EXPECT_EQ(strip->bar().place().pixelsPerPoint, pixelsPerPoint);
        EXPECT_EQ(compositor.strip()->picture.size(), pixels);
        EXPECT_TRUE(showsTheBar());
    }
};

TEST_F(StripPictureTest, IsTheBarPixelForPixel) {
    startOn(1);
    expectPictureAt(1, QSize(401, 22));
    EXPECT_EQ(compositor.strip()->destination, QSize(401, 22));
    EXPECT_EQ(compositor.strip()->bufferScale, 1);
    EXPECT_EQ(compositor.strip()->damage, QRect(0, 0, 401, 22));
}

TEST_F(StripPictureTest, IsCrispAtAFraction) {
    compositor.scaleParts = wholeScaleParts * 3 / 2;
    startOn(2);
    expectPictureAt(1.5, QSize(602, 33)); // 601.5, rounded
    EXPECT_EQ(compositor.strip()->destination, QSize(401, 22));
    EXPECT_EQ(compositor.strip()->bufferScale, 1);
}

TEST_F(StripPictureTest, LeavesNoRowUnpaintedWhereItsHeightIsNoWholeNumber) {
    compositor.scaleParts = wholeScaleParts * 5 / 4;
    startOn(2);
    expectPictureAt(1.25, QSize(501, 28));
}

TEST_F(StripPictureTest, IsCrispAtTwo) {
    compositor.scaleParts = wholeScaleParts * 2;
    startOn(2);
    expectPictureAt(2, QSize(802, 44));
    EXPECT_EQ(compositor.strip()->destination, QSize(401, 22));
}

TEST_F(StripPictureTest, FollowsTheScaleThatTheCompositorPrefers) {
    startOn(1);
    for (const std::uint32_t quarters : {5U, 6U, 8U, 4U}) {
        FakeCompositor::preferScale(*compositor.strip(), wholeScaleParts * quarters / 4);
        ASSERT_TRUE(waitUntil([&] {
            return strip->bar().place().pixelsPerPoint == quarters / 4.0 && showsTheBar();
        })) << "at "
            << quarters << " quarters";
    }
    EXPECT_EQ(compositor.layerSurfaceCount, 1);
}

TEST_F(StripPictureTest, IgnoresAScaleThatCannotBe) {
    startOn(1);
    FakeCompositor::preferScale(*compositor.strip(), 0);
    FakeCompositor::preferScale(*compositor.strip(), ~0U);
    settleBoth();
    expectPictureAt(1, QSize(401, 22));
}

TEST_F(StripPictureTest, RepaintsOnlyWhatHasChanged) {
    startOn(1);
    const int cpuBefore = cpuPaints;
    const int memoryBefore = memoryPaints;
    memory->repaint();
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->pictures == 2; }));
    EXPECT_EQ(memoryPaints, memoryBefore + 1);
    EXPECT_EQ(cpuPaints, cpuBefore);
    EXPECT_EQ(compositor.strip()->damage, memory->bounds().toAlignedRect());
    EXPECT_TRUE(compositor.strip()->isDamageInPixels);
}

TEST_F(StripPictureTest, DamageIsToldInPixelsOfThePicture) {
    compositor.scaleParts = wholeScaleParts * 2;
    startOn(2);
    memory->repaint();
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->pictures == 2; }));
    const QRect points = memory->bounds().toAlignedRect();
    EXPECT_EQ(compositor.strip()->damage, QRect(points.topLeft() * 2, points.size() * 2));
}

TEST_F(StripPictureTest, PaintsSeveralChangesOfATurnAtOnce) {
    startOn(1);
    memory->repaint();
    cpu->repaint();
    memory->repaint();
    settleBoth();
    EXPECT_EQ(compositor.strip()->pictures, 2);
}

TEST_F(StripPictureTest, IsNotPaintedAgainWhenTheSameSizeIsRepeated) {
    compositor.repeatsConfigure = true;
    startOn(1);
    for (int repetition = 0; repetition < 5; ++repetition)
        compositor.configure(*compositor.strip(), QSize(401, barHeightPoints));
    settleBoth();
    EXPECT_EQ(compositor.strip()->pictures, 1);
}

TEST_F(StripPictureTest, IsWholeInEachBufferWhenTheCompositorKeepsOne) {
    startOn(1);
    compositor.keepsBuffers = true;
    const auto change = [this](BarItem& item, const QColor& color) {
        const int before = compositor.strip()->pictures;
        item.setPaint([color](QPainter& painter, const QRectF& bounds, BarAppearance /*appearance*/) {
            painter.fillRect(bounds, color);
        });
        item.repaint();
        return waitUntil([&] { return compositor.strip()->pictures == before + 1; }) && showsTheBar();
    };
    EXPECT_TRUE(change(*cpu, Qt::green));
    EXPECT_TRUE(change(*memory, Qt::yellow)); // in the second buffer
    compositor.releaseBuffers();
    EXPECT_TRUE(change(*cpu, Qt::cyan));
    EXPECT_TRUE(change(*memory, Qt::magenta));
}

TEST_F(StripPictureTest, WaitsForABufferAndIsPaintedWhenOneIsReleased) {
    compositor.keepsBuffers = true;
    startOn(1);
    cpu->repaint();
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->pictures == 2; }));
    for (int change = 0; change < 5; ++change) {
        cpu->repaint();
        memory->repaint();
        settleBoth();
    }
    EXPECT_EQ(compositor.strip()->pictures, 2);
    compositor.releaseBuffers();
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->pictures == 3; }));
    settleBoth();
    EXPECT_EQ(compositor.strip()->pictures, 3);
    EXPECT_TRUE(showsTheBar());
}

TEST_F(StripPictureTest, TakesAnotherSizeWhileTheCompositorKeepsAllBuffers) {
    compositor.keepsBuffers = true;
    startOn(1);
    cpu->repaint();
    ASSERT_TRUE(waitUntil([this] { return compositor.strip()->pictures == 2; }));
    compositor.configure(*compositor.strip(), QSize(300, barHeightPoints));
    EXPECT_TRUE(waitUntil([this] { return compositor.strip()->picture.width() == 300 && showsTheBar(); }));
}

class WithoutFractionsTest : public StripPictureTest {
protected:
    WithoutFractionsTest()
        : StripPictureTest({.fractionalScale = 0}) {}
};

TEST_F(WithoutFractionsTest, TheStripTakesTheWholeScaleOfItsScreen) {
    startOn(2);
    expectPictureAt(2, QSize(802, 44));
    EXPECT_EQ(compositor.strip()->destination, QSize(401, 22));
}

TEST_F(WithoutFractionsTest, TheStripIsCrispAtTheFractionThatTheSizesOfItsScreenTell) {
    startOn(1.5);
    expectPictureAt(1.5, QSize(602, 33));
    EXPECT_EQ(compositor.strip()->destination, QSize(401, 22));
    EXPECT_EQ(compositor.strip()->pictures, 1);
}

TEST_F(WithoutFractionsTest, TheStripFollowsTheScaleOfItsScreen) {
    FakeOutput& output = compositor.addOutput(QStringLiteral("HDMI-A-1"), QSize(400, 300));
    start();
    ASSERT_TRUE(waitForStrip());
    for (const double pixelsPerPoint : {2.0, 1.25, 1.0}) {
        FakeCompositor::setScale(output, pixelsPerPoint);
        const QSize points(output.size.width(), barHeightPoints);
        compositor.configure(*compositor.strip(), points);
        EXPECT_TRUE(waitUntil([&] {
            return compositor.strip()->destination == points &&
                   strip->bar().place().pixelsPerPoint == pixelsPerPoint && showsTheBar();
        })) << "at "
            << pixelsPerPoint;
    }
}

class WithoutSizesTest : public StripPictureTest {
protected:
    WithoutSizesTest()
        : StripPictureTest({.fractionalScale = 0, .xdgOutput = 0}) {}
};

TEST_F(WithoutSizesTest, TheStripTakesTheWholeScaleOfItsScreen) {
    startOn(1.5);
    expectPictureAt(2, QSize(802, 44));
    EXPECT_EQ(compositor.strip()->destination, QSize(401, 22));
}

class WithoutViewportsTest : public StripPictureTest {
protected:
    WithoutViewportsTest()
        : StripPictureTest({.viewporter = 0}) {}
};

TEST_F(WithoutViewportsTest, TheStripTakesTheWholeScaleOfItsScreen) {
    compositor.scaleParts = wholeScaleParts * 3 / 2;
    startOn(1.5);
    expectPictureAt(2, QSize(802, 44));
    EXPECT_EQ(compositor.strip()->bufferScale, 2);
}

TEST(ScreenScaleTest, IsTheFractionThatTheSizesTell) {
    EXPECT_EQ(screenScale(1, QSize(1280, 800), QSize(1280, 800)), 1);
    EXPECT_EQ(screenScale(2, QSize(1280, 800), QSize(853, 533)), 1.5);
    EXPECT_EQ(screenScale(2, QSize(1280, 800), QSize(533, 853)), 1.5) << "of a screen that is turned";
    EXPECT_EQ(screenScale(2, QSize(1366, 768), QSize(1092, 614)), 1.25);
    EXPECT_EQ(screenScale(2, QSize(3840, 2160), QSize(1920, 1080)), 2);
    EXPECT_EQ(screenScale(1, QSize(1000, 800), QSize(2000, 1600)), 0.5);
}

TEST(ScreenScaleTest, IsWholeWhereTheSizesTellNothingOrSomethingElse) {
    EXPECT_EQ(screenScale(2, QSize(), QSize(853, 533)), 2);
    EXPECT_EQ(screenScale(2, QSize(1280, 800), QSize()), 2);
    EXPECT_EQ(screenScale(2, QSize(1280, 800), QSize(1280, 800)), 2);
    EXPECT_EQ(screenScale(1, QSize(1280, 800), QSize(1, 1)), 1);
}

} // namespace
} // namespace orvelle
