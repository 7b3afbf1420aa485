#include "shell/tray/plain_popup.h"
#include "support/waiting.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class PlainPopupTest : public ::testing::Test {
protected:
    void show() { popup.show(*QGuiApplication::primaryScreen(), {100, 50, 320, 500}, {}); }

    QRasterWindow window;
    PlainPopup popup{window, PopupKeyboard::takes};
    QSignalSpy closed{&popup, &Popup::closed};
    QSignalSpy dismissed{&popup, &Popup::dismissed};
};

TEST_F(PlainPopupTest, OpensWithTheKeyboardWhereItIsTold) {
    QSignalSpy painted(&popup, &Popup::painted);
    show();
    EXPECT_TRUE(popup.isShown());
    EXPECT_EQ(window.geometry(), QRect(100, 50, 320, 500));
    EXPECT_TRUE(waitUntil([this] { return window.isActive(); }));
    EXPECT_TRUE(waitUntil([&painted] { return painted.size() == 1; }));
}

TEST_F(PlainPopupTest, ClosesOnceHoweverOftenItIsTold) {
    show();
    popup.close();
    popup.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(closed.size(), 1);
    EXPECT_TRUE(dismissed.isEmpty());
}

TEST_F(PlainPopupTest, IsDismissedByEscape) {
    show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(popup.isShown());
    EXPECT_EQ(dismissed.size(), 1);
    EXPECT_EQ(closed.size(), 1);
}

TEST_F(PlainPopupTest, ClosesWhenAnotherWindowGetsTheKeyboard) {
    show();
    ASSERT_TRUE(waitUntil([this] { return window.isActive(); }));
    QRasterWindow other;
    other.show();
    other.requestActivate();
    EXPECT_TRUE(waitUntil([this] { return !popup.isShown(); }));
}

TEST(PassivePopupTest, LeavesTheKeyboardToOtherWindows) {
    QRasterWindow window;
    PlainPopup popup(window, PopupKeyboard::leaves);
    popup.show(*QGuiApplication::primaryScreen(), {0, 0, 300, 22}, {});
    EXPECT_TRUE(window.flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    QRasterWindow other;
    other.show();
    other.requestActivate();
    ASSERT_TRUE(waitUntil([&other] { return other.isActive(); }));
    EXPECT_TRUE(popup.isShown());
}

} // namespace
} // namespace orvelle
