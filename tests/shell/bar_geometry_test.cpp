#include "shell/painted/bar_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvelle {
namespace {

const QRect fullHd(0, 0, 1920, 1080);

TopDock dockAt(int top, int height, int left = 0, int width = 1920) {
    return {QRect(left, top, width, height), {top + height, left, left + width - 1}};
}

TEST(ScreenPixels, KeepTheOriginAndScaleTheSize) {
    EXPECT_EQ(screenPixels(QRect(2560, 100, 1280, 720), 1.5), QRect(2560, 100, 1920, 1080));
}

TEST(FreeOffset, IsTheUpperEdgeWithoutOtherDocks) {
    EXPECT_EQ(freeOffset(fullHd, 22, {}), 0);
}

TEST(FreeOffset, IsBelowAPanelAtTheTop) {
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(0, 30)}), 30);
}

TEST(FreeOffset, IsBelowSeveralPanelsInAnyOrder) {
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(30, 24), dockAt(0, 30)}), 54);
}

TEST(FreeOffset, IgnoresADockThatMadeRoomBelowTheBar) {
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(22, 30)}), 0);
}

TEST(FreeOffset, SkipsAGapThatIsTooLow) {
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(10, 30)}), 40);
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(0, 10), dockAt(31, 9)}), 40);
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(0, 10), dockAt(32, 9)}), 10);
}

TEST(FreeOffset, CountsTheStripThatAPanelReservesBelowItself) {
    EXPECT_EQ(freeOffset(fullHd, 22, {{QRect(100, 5, 800, 20), {30, 100, 899}}}), 30);
}

TEST(FreeOffset, IgnoresPanelsOfAnotherScreenBesideIt) {
    const QRect right(1920, 0, 1280, 1024);
    EXPECT_EQ(freeOffset(right, 22, {dockAt(0, 30)}), 0);
    EXPECT_EQ(freeOffset(right, 22, {dockAt(0, 30, 1920, 1280)}), 30);
}

TEST(FreeOffset, IgnoresPanelsOfTheScreenAbove) {
    const QRect below(0, 1080, 1920, 1080);
    EXPECT_EQ(freeOffset(below, 22, {dockAt(0, 30)}), 0);
    EXPECT_EQ(freeOffset(below, 22, {dockAt(1080, 30)}), 30);
}

TEST(FreeOffset, StaysAtTheTopWhenDocksLeaveNoRoomInTheUpperHalf) {
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(0, 530)}), 0);
    EXPECT_EQ(freeOffset(fullHd, 22, {dockAt(0, 518)}), 518);
    EXPECT_EQ(freeOffset(fullHd, 22, {{fullHd, {65535, 0, 65535}}}), 0);
}

TEST(BarGeometry, CoversTheWidthAtTheTop) {
    EXPECT_EQ(barGeometry(fullHd, 1, 0), QRect(0, 0, 1920, 22));
    EXPECT_EQ(barGeometry(QRect(1920, 200, 1280, 720), 2, 0), QRect(1920, 200, 1280, 22));
}

TEST(BarGeometry, NeverCoversTheDockAboveAtAnyScale) {
    for (const double pixelsPerPoint : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QRect screen(0, 0, 1000, 700);
        for (int offset = 0; offset < 60; ++offset) {
            const QRect bar = barGeometry(screen, pixelsPerPoint, offset);
            const int top = windowPixels(bar, screen, pixelsPerPoint).top();
            EXPECT_GE(top, offset) << pixelsPerPoint;
            EXPECT_LE(top, offset + std::ceil(pixelsPerPoint)) << pixelsPerPoint;
        }
    }
}

TEST(WindowPixels, ScaleTheDistanceFromTheScreensOrigin) {
    EXPECT_EQ(windowPixels(QRect(1920, 120, 1280, 22), QRect(1920, 100, 1280, 720), 1.5),
              QRect(1920, 130, 1920, 33));
}

TEST(StrutFor, IsTheBarsHeightInDevicePixels) {
    for (const auto& [pixelsPerPoint, height] : {std::pair{1.0, 22}, {1.5, 33}, {2.0, 44}}) {
        const QRect screen(0, 0, 960, 540);
        const QRect bar = windowPixels(barGeometry(screen, pixelsPerPoint, 0), screen, pixelsPerPoint);
        const QRect pixels = screenPixels(screen, pixelsPerPoint);
        EXPECT_EQ(strutFor(bar, pixels, pixels.size(), {}), (TopStrut{height, 0, pixels.width() - 1}));
    }
}

TEST(StrutFor, CountsFromTheRootsEdgeAndCoversTheScreensColumns) {
    const QRect screen(1920, 56, 1280, 1024);
    EXPECT_EQ(strutFor(QRect(1920, 86, 1280, 22), screen, QSize(3200, 1080), {fullHd}),
              (TopStrut{108, 1920, 3199}));
}

TEST(StrutFor, EndsAtTheRootsEdgeWhenTheWidthWasRoundedUp) {
    // 1366 pixels at 1.5 are 910.67 points, which Qt rounds to 911: 1367 pixels.
    const QRect screen(0, 0, 911, 512);
    const QRect bar = windowPixels(barGeometry(screen, 1.5, 0), screen, 1.5);
    EXPECT_EQ(strutFor(bar, screenPixels(screen, 1.5), QSize(1366, 768), {}), (TopStrut{33, 0, 1365}));
}

TEST(StrutFor, IsNothingBelowAnotherScreen) {
    const QRect below(0, 1080, 1920, 1080);
    EXPECT_EQ(strutFor(QRect(0, 1080, 1920, 22), below, QSize(1920, 2160), {fullHd}), std::nullopt);
    EXPECT_EQ(strutFor(QRect(0, 0, 1920, 22), fullHd, QSize(1920, 2160), {below}), (TopStrut{22, 0, 1919}));
}

TEST(StrutFor, IsKeptWhenTwoScreensShowTheSame) {
    EXPECT_EQ(strutFor(QRect(0, 0, 1920, 22), fullHd, fullHd.size(), {fullHd}), (TopStrut{22, 0, 1919}));
}

TEST(ItemBounds, StandSideBySideFlushRight) {
    const QList<QRectF> bounds = itemBounds({60, 70, 90}, 1000, 1);
    ASSERT_EQ(bounds.size(), 3);
    EXPECT_EQ(bounds[2], QRectF(1000 - barRightMarginPoints - 90, 0, 90, 22));
    EXPECT_EQ(bounds[1].right(), bounds[2].left());
    EXPECT_EQ(bounds[0].right(), bounds[1].left());
    EXPECT_EQ(bounds[0].width(), 60);
}

TEST(ItemBounds, MeetOnWholePixelsAtFractionalScales) {
    for (const double pixelsPerPoint : {1.25, 1.5, 1.75}) {
        const QList<QRectF> bounds = itemBounds({60, 45, 65, 50}, 853, pixelsPerPoint);
        for (qsizetype index = 0; index < bounds.size(); ++index) {
            const double leftPixels = bounds[index].left() * pixelsPerPoint;
            EXPECT_NEAR(leftPixels, std::round(leftPixels), 1e-9);
            if (index > 0) {
                EXPECT_DOUBLE_EQ(bounds[index].left(), bounds[index - 1].right());
            }
        }
        EXPECT_NEAR(bounds.last().right(), 853 - barRightMarginPoints, 0.51 / pixelsPerPoint);
    }
}

TEST(ItemBounds, KeepTheWidthOfAnItemWhereverItStands) {
    for (const double pixelsPerPoint : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const QList<double>& lengths : {QList<double>{45}, {45, 45, 45, 45}, {45, 70, 45, 65, 45, 35}}) {
            const QList<QRectF> bounds = itemBounds(lengths, 853, pixelsPerPoint);
            for (qsizetype index = 0; index < bounds.size(); ++index)
                EXPECT_NEAR(bounds[index].width() * pixelsPerPoint,
                            std::round(lengths[index] * pixelsPerPoint), 1e-9)
                    << "item " << index << " at scale " << pixelsPerPoint;
        }
    }
}

TEST(ItemBounds, AreNoneWithoutItems) {
    EXPECT_TRUE(itemBounds({}, 1000, 1).isEmpty());
}

TEST(ItemBounds, KeepTheLastItemVisibleInABarThatIsTooNarrow) {
    const QList<QRectF> bounds = itemBounds({60, 70}, 100, 1);
    EXPECT_EQ(bounds[1].right(), 100 - barRightMarginPoints);
    EXPECT_LT(bounds[0].left(), 0);
}

} // namespace
} // namespace orvelle
