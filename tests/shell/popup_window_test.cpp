#include "shell/x11/popup_window.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QRect wholeScreen(0, 0, 1280, 800);

TEST(MenuGeometry, BeginsAtTheItemsLowerLeftCorner) {
    EXPECT_EQ(menuGeometry(QRectF(600, 0, 60, 22), QSize(180, 60), wholeScreen), QRect(600, 22, 180, 60));
}

TEST(MenuGeometry, StaysOnTheScreen) {
    EXPECT_EQ(menuGeometry(QRectF(1212, 0, 60, 22), QSize(180, 60), wholeScreen), QRect(1096, 22, 180, 60));
    EXPECT_EQ(menuGeometry(QRectF(-30, 0, 60, 22), QSize(180, 60), wholeScreen), QRect(4, 22, 180, 60));
    EXPECT_EQ(menuGeometry(QRectF(20, 0, 60, 22), QSize(180, 60), QRect(0, 0, 100, 100)).left(), 4);
}

TEST(MenuGeometry, StaysOnASecondScreen) {
    const QRect right(1280, 100, 1000, 700);
    EXPECT_EQ(menuGeometry(QRectF(2200, 100, 60, 22), QSize(180, 60), right), QRect(2096, 122, 180, 60));
}

TEST(RoundedRegion, LacksItsCornersAlone) {
    const QRegion region = roundedRegion(QSize(40, 30), 10);
    EXPECT_EQ(region.boundingRect(), QRect(0, 0, 40, 30));
    for (const QPoint& corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 29), QPoint(39, 29)})
        EXPECT_FALSE(region.contains(corner));
    for (const QPoint& inside : {QPoint(20, 0), QPoint(0, 15), QPoint(39, 15), QPoint(20, 29), QPoint(4, 4)})
        EXPECT_TRUE(region.contains(inside));
}

class PopupWindowTest : public ::testing::Test {
protected:
    PopupWindowTest() {
        QObject::connect(&popup, &PopupWindow::closed, &window, [this] { ++closedCount; });
    }
    void show() {
        popup.show(*window.screen(), QRect(100, 30, 200, 100), {});
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QRasterWindow window;
    PopupWindow popup{window};
    int closedCount = 0;
};

TEST_F(PopupWindowTest, OpensAtTheGivenGeometry) {
    show();
    EXPECT_TRUE(popup.isShown());
    EXPECT_EQ(window.geometry(), QRect(100, 30, 200, 100));
}

TEST_F(PopupWindowTest, ClosesWithEscape) {
    show();
    QTest::keyClick(&window, Qt::Key_A);
    EXPECT_TRUE(popup.isShown());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(popup.isShown());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupWindowTest, ClosesWhenAnotherWindowGetsTheKeyboard) {
    show();
    QRasterWindow other;
    other.show();
    other.requestActivate();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !popup.isShown(); }));
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupWindowTest, ClosesWhenItsScreenGetsAnotherSize) {
    show();
    QScreen* shownOn = window.screen();
    Q_EMIT shownOn->geometryChanged(shownOn->geometry());
    EXPECT_FALSE(popup.isShown());
    EXPECT_EQ(closedCount, 1);
    Q_EMIT shownOn->geometryChanged(shownOn->geometry());
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupWindowTest, ClosesWhenAnotherScreenBecomesThePrimaryOne) {
    show();
    Q_EMIT qGuiApp->primaryScreenChanged(window.screen());
    EXPECT_FALSE(popup.isShown());
}

TEST_F(PopupWindowTest, ClosesOnceWhenItsWindowIsClosed) {
    show();
    window.close();
    EXPECT_FALSE(popup.isShown());
    EXPECT_EQ(closedCount, 1);
    popup.close();
    EXPECT_EQ(closedCount, 1);
}

TEST_F(PopupWindowTest, ReturnsOnceWhenTheWindowManagerMovesIt) {
    for (int round = 0; round < 2; ++round) {
        show();
        window.setPosition(102, 50);
        EXPECT_TRUE(QTest::qWaitFor([this] { return window.position() == QPoint(100, 30); }));
        window.setPosition(102, 50);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.position(), QPoint(102, 50)) << "it insists";
        popup.close();
    }
}

TEST_F(PopupWindowTest, OpensAgain) {
    for (int round = 1; round <= 3; ++round) {
        show();
        popup.close();
        EXPECT_EQ(closedCount, round);
    }
}

} // namespace
} // namespace orvelle
