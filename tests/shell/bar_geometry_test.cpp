#include "shell/painted/bar.h"
#include "shell/x11/bar_geometry.h"

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

TEST(StrutInUnits, IsInPointsWhereTheWindowManagerCountsInPoints) {
    const TopStrut pixels{44, 0, 2559};
    EXPECT_EQ(strutInUnitsOf(QSize(1280, 800), QSize(2560, 1600), pixels), (TopStrut{22, 0, 1279}));
    // 1366 by 768 points at 1.25.
    EXPECT_EQ(strutInUnitsOf(QSize(1366, 768), QSize(1708, 960), TopStrut{28, 0, 1707}),
              (TopStrut{23, 0, 1365}));
}

TEST(StrutInUnits, CoversNoLessThanThePixels) {
    EXPECT_EQ(strutInUnitsOf(QSize(1280, 800), QSize(1920, 1200), TopStrut{35, 961, 1000}),
              (TopStrut{24, 640, 667}));
}

TEST(StrutInUnits, IsUnchangedWhereTheDesktopIsAsLargeAsTheRootWindow) {
    const TopStrut pixels{44, 0, 2559};
    EXPECT_EQ(strutInUnitsOf(QSize(2560, 1600), QSize(2560, 1600), pixels), pixels);
    EXPECT_EQ(strutInUnitsOf(QSize(5120, 1600), QSize(2560, 1600), pixels), pixels);
}

TEST(StrutInUnits, IsUnchangedWhenTheDesktopsSizeMakesNoSense) {
    const TopStrut pixels{44, 0, 2559};
    for (const QSize& desktop : {QSize(0, 0), QSize(-1, -1), QSize(1280, 0), QSize(1280, 1600),
                                 QSize(1280, 900), QSize(65535, 65535)})
        EXPECT_EQ(strutInUnitsOf(desktop, QSize(2560, 1600), pixels), pixels) << desktop.width();
    EXPECT_EQ(strutInUnitsOf(QSize(1280, 800), QSize(0, 0), pixels), pixels);
}

TEST(StrutInUnits, TakesTheLargestSizesThatAnXServerCanName) {
    EXPECT_EQ(strutInUnitsOf(QSize(65534, 65534), QSize(65535, 65535), TopStrut{24, 0, 65534}),
              (TopStrut{24, 0, 65533}));
    EXPECT_EQ(strutInUnitsOf(QSize(65534, 1), QSize(65535, 65535), TopStrut{24, 0, 65534}),
              (TopStrut{24, 0, 65534}));
}

} // namespace
} // namespace orvelle
