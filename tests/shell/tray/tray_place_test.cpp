#include "shell/tray/tray_place.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

const QList<QRect> twoScreens{{0, 0, 1920, 1080}, {1920, 0, 1280, 800}};

TEST(ClickedScreenTest, IsWhereTheCursorIsWhateverTheTrayTells) {
    EXPECT_EQ(clickedScreen(twoScreens, QPoint(2000, 5), {100, 5}), 1);
    EXPECT_EQ(clickedScreen(twoScreens, QPoint(10, 5), {2000, 5}), 0);
}

TEST(ClickedScreenTest, IsThatOfTheClickWithoutACursor) {
    EXPECT_EQ(clickedScreen(twoScreens, {}, {3000, 10}), 1);
    EXPECT_EQ(clickedScreen(twoScreens, {}, {1800, 10}), 0);
}

TEST(ClickedScreenTest, IsThePrimaryOneWhenTheClickCountsFromTheIconsCorner) {
    const QList<QRect> primaryOnTheRight{{1920, 0, 1280, 800}, {0, 0, 1920, 1080}};
    EXPECT_EQ(clickedScreen(primaryOnTheRight, {}, {12, 9}), 0);
    EXPECT_EQ(clickedScreen(primaryOnTheRight, {}, {900, 9}), 1);
}

TEST(ClickedScreenTest, IsThePrimaryOneForAPointOnNoScreen) {
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    for (const QPoint point : {QPoint(-1, -1), QPoint(largest, largest), QPoint(smallest, smallest)}) {
        EXPECT_EQ(clickedScreen(twoScreens, {}, point), 0);
        EXPECT_EQ(clickedScreen(twoScreens, point, {}), 0);
    }
}

constexpr QSize stripSize(300, 22);
constexpr QSize panelOfUsualSize(320, 500);

TEST(TrayPlacesTest, LieAtTheUpperRightBelowTheDesktopsBar) {
    const QRect screen(100, 50, 1280, 800);
    const TrayPlaces places = trayPlaces({screen, screen.adjusted(0, 30, 0, 0)}, stripSize, panelOfUsualSize);
    EXPECT_EQ(places.strip, QRect(1380 - 4 - 300, 84, 300, 22));
    EXPECT_EQ(places.panel, QRect(1380 - 4 - 320, 84 + 22 + 4, 320, 500));
}

TEST(TrayPlacesTest, HaveThePanelAtTheTopWithoutTabs) {
    const QRect screen(0, 0, 1280, 800);
    const TrayPlaces places = trayPlaces({screen, screen}, {}, panelOfUsualSize);
    EXPECT_TRUE(places.strip.isEmpty());
    EXPECT_EQ(places.panel, QRect(956, 4, 320, 500));
}

TEST(TrayPlacesTest, LieAtTheLowerRightAboveABarThere) {
    const QRect screen(0, 0, 1280, 800);
    const TrayPlaces places =
        trayPlaces({screen, screen.adjusted(0, 0, 0, -40)}, stripSize, panelOfUsualSize);
    EXPECT_EQ(places.panel, QRect(956, 760 - 4 - 500, 320, 500));
    EXPECT_EQ(places.strip.bottom() + 1 + 4, places.panel.top());
}

TEST(TrayPlacesTest, LieAtTheTopBetweenTwoBars) {
    const QRect screen(0, 0, 1280, 800);
    const TrayPlaces places =
        trayPlaces({screen, screen.adjusted(0, 30, 0, -40)}, stripSize, panelOfUsualSize);
    EXPECT_EQ(places.strip.top(), 34);
}

TEST(TrayPlacesTest, ShortenThePanelOnALowScreen) {
    const QRect screen(0, 0, 800, 400);
    const TrayPlaces atTheTop = trayPlaces({screen, screen}, stripSize, panelOfUsualSize);
    EXPECT_EQ(atTheTop.panel, QRect(476, 30, 320, 366));
    const TrayPlaces atTheBottom =
        trayPlaces({screen, screen.adjusted(0, 0, 0, -40)}, stripSize, panelOfUsualSize);
    EXPECT_EQ(atTheBottom.strip.top(), 4);
    EXPECT_EQ(atTheBottom.panel, QRect(476, 30, 320, 326));
}

TEST(TrayPlacesTest, KeepAPanelOfSomeHeightOnAScreenWithoutRoom) {
    const QRect screen(0, 0, 100, 20);
    EXPECT_EQ(trayPlaces({screen, screen}, stripSize, panelOfUsualSize).panel.height(), 1);
}

} // namespace
} // namespace orvelle
