#include "announcements.h"
#include "shell/painted/bar_window.h"
#include "shell/x11/x11_bar_focus.h"
#include "support/waiting.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

class BarKeyboardTest : public ::testing::Test {
protected:
    BarKeyboardTest() {
        window.setGeometry(0, 0, 400, barHeightPoints);
        for (const char* name : {"cpu", "memory", "disk"})
            add(QString::fromLatin1(name));
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    BarItem& add(const QString& name) {
        BarItem& item = bar.addItem(name, 60);
        item.setClickHandler([this, name](ClickButton button) {
            clicks.append(name +
                          (button == ClickButton::left ? QStringLiteral(" left") : QStringLiteral(" right")));
        });
        return item;
    }
    /// What the server says once it has moved the keyboard.
    void focusIn() { send(QEvent::FocusIn); }
    void focusOut() { send(QEvent::FocusOut); }
    void take() {
        focus.take();
        focusIn();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window, key, modifiers);
    }
    /// The item that shows that it has the keyboard.
    [[nodiscard]] QString focused() const { return bar.focusedItem(); }

    BarWindow window;
    Bar& bar = window.bar();
    X11BarFocus focus{window};
    QStringList clicks;

private:
    void send(QEvent::Type type) {
        QFocusEvent event(type);
        QCoreApplication::sendEvent(&window, &event);
    }
};

TEST_F(BarKeyboardTest, StartsAtTheFirstItem) {
    EXPECT_EQ(focused(), QString());
    take();
    EXPECT_EQ(focused(), QStringLiteral("cpu"));
}

TEST_F(BarKeyboardTest, MovesToTheNeighboursRoundTheEnds) {
    take();
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), QStringLiteral("memory"));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("cpu"));
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), QStringLiteral("disk"));
    press(Qt::Key_Home);
    EXPECT_EQ(focused(), QStringLiteral("cpu"));
    press(Qt::Key_End);
    press(Qt::Key_Backtab);
    EXPECT_EQ(focused(), QStringLiteral("memory"));
}

TEST_F(BarKeyboardTest, ClicksTheItemWithBothButtons) {
    take();
    press(Qt::Key_Return);
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Menu);
    press(Qt::Key_F10, Qt::ShiftModifier);
    press(Qt::Key_F10);
    press(Qt::Key_A);
    EXPECT_EQ(clicks, (QStringList{QStringLiteral("cpu left"), QStringLiteral("memory left"),
                                   QStringLiteral("memory left"), QStringLiteral("memory right"),
                                   QStringLiteral("memory right")}));
}

TEST_F(BarKeyboardTest, LeavesWithEscapeAndComesBackToTheSameItem) {
    take();
    press(Qt::Key_Right);
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QString());
    press(Qt::Key_Return);
    EXPECT_TRUE(clicks.isEmpty()) << "it does not have the keyboard any more";
    focusOut();
    take();
    EXPECT_EQ(focused(), QStringLiteral("memory"));
}

TEST_F(BarKeyboardTest, ShowsNothingWhenAWindowManagerHandsItTheKeyboardUnasked) {
    focusIn();
    EXPECT_EQ(focused(), QString());
    press(Qt::Key_Return);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarKeyboardTest, ShowsNothingWhenAnotherWindowGetsTheKeyboard) {
    take();
    focusOut();
    EXPECT_EQ(focused(), QString());
    focusIn();
    EXPECT_EQ(focused(), QString()) << "it was not taken again";
}

TEST_F(BarKeyboardTest, ReturnsWhenEscapeClosesWhatAKeyOpened) {
    take();
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    focusOut(); // the panel has the keyboard
    focus.resume();
    focusIn();
    EXPECT_EQ(focused(), QStringLiteral("memory"));
    focusOut();
    focus.resume();
    focusIn();
    EXPECT_EQ(focused(), QString()) << "no key has opened anything since";
}

TEST_F(BarKeyboardTest, ReturnsToAnItemThatWasChosenWithoutAKey) {
    focus.choose(*bar.items()[1]);
    EXPECT_EQ(focused(), QString()) << "what opens has the keyboard";
    focus.resume();
    focusIn();
    EXPECT_EQ(focused(), QStringLiteral("memory"));
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), QStringLiteral("disk"));
}

TEST_F(BarKeyboardTest, DoesNotReturnWhenTheMouseOpenedWhatEscapeCloses) {
    take();
    press(Qt::Key_Return);
    focusOut();
    QTest::mouseClick(&window, Qt::LeftButton, {}, bar.items()[1]->bounds().center().toPoint());
    focus.resume();
    focusIn();
    EXPECT_EQ(focused(), QString());
}

TEST_F(BarKeyboardTest, StaysAtItsModuleWhenTheItemsAreCreatedAgain) {
    take();
    press(Qt::Key_Right);
    while (!bar.isEmpty())
        bar.removeItem(*bar.items().front());
    press(Qt::Key_Return); // nothing to click
    add(QStringLiteral("network"));
    add(QStringLiteral("memory"));
    press(Qt::Key_Return);
    EXPECT_EQ(clicks, QStringList{QStringLiteral("memory left")});
}

TEST_F(BarKeyboardTest, StartsAtTheFirstItemWhenItsOwnHasGone) {
    take();
    press(Qt::Key_End);
    bar.removeItem(*bar.items().back());
    press(Qt::Key_Return);
    EXPECT_EQ(clicks, QStringList{QStringLiteral("cpu left")});
}

TEST_F(BarKeyboardTest, IsNotTakenWithoutItems) {
    while (!bar.isEmpty())
        bar.removeItem(*bar.items().front());
    take();
    add(QStringLiteral("cpu"));
    press(Qt::Key_Return);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarKeyboardTest, SurvivesAHandlerThatRemovesEveryItem) {
    bar.items().front()->setClickHandler([this](ClickButton) {
        while (!bar.isEmpty())
            bar.removeItem(*bar.items().front());
    });
    take();
    press(Qt::Key_Return);
    press(Qt::Key_Right);
    EXPECT_TRUE(bar.isEmpty());
}

TEST_F(BarKeyboardTest, AnnouncesTheFocusToAssistivePrograms) {
    const Announcements announcements;
    QAccessibleInterface* toolBar = window.accessibleRoot();
    EXPECT_TRUE(toolBar->child(1)->state().focusable);
    take();
    press(Qt::Key_Right);
    EXPECT_EQ(Announcements::names(QAccessible::Focus).size(), 2);
    EXPECT_FALSE(toolBar->child(0)->state().focused);
    EXPECT_TRUE(toolBar->child(1)->state().focused);
}

TEST_F(BarKeyboardTest, PaintsARingAroundTheItem) {
    const auto cornerless = [this](std::size_t index) {
        const QRectF bounds = bar.items()[index]->bounds();
        const QImage picture = window.screen()->grabWindow(window.winId()).toImage();
        return picture.pixelColor(static_cast<int>(bounds.center().x()), 1);
    };
    const QColor plain = cornerless(0);
    take();
    EXPECT_TRUE(waitUntil([&] { return cornerless(0).blue() > plain.blue() + 60; }));
    EXPECT_EQ(cornerless(1), plain);
    press(Qt::Key_Right);
    EXPECT_TRUE(waitUntil([&] { return cornerless(0) == plain; }));
    EXPECT_GT(cornerless(1).blue(), plain.blue() + 60);
}

} // namespace
} // namespace orvelle
