#include "shell/x11/x11_context_menu.h"
#include "support/waiting.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

class X11ContextMenuTest : public ::testing::Test {
protected:
    X11ContextMenuTest() { bar.setGeometry(0, 0, 1000, 22); }

    void show(const StatusItem& item) { menu.show(item, {{QStringLiteral("Quit"), {}, nullptr}}); }
    [[nodiscard]] static bool isShown() {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        return std::ranges::any_of(windows, [](const QWindow* window) {
            return window->isVisible() && window->title() == QStringLiteral("Orvelle menu");
        });
    }

    BarWindow bar;
    const StatusItem& left = bar.addItem(QStringLiteral("left"), 60);
    const StatusItem& right = bar.addItem(QStringLiteral("right"), 60);
    X11ContextMenu menu{bar, [] {}};
};

TEST_F(X11ContextMenuTest, ClosesWhenItIsAskedForUnderItsItemAgain) {
    show(left);
    EXPECT_TRUE(isShown());
    show(left);
    EXPECT_FALSE(isShown());
    show(left);
    EXPECT_TRUE(isShown());
}

TEST_F(X11ContextMenuTest, MovesToAnotherItem) {
    show(left);
    show(right);
    EXPECT_TRUE(isShown());
}

TEST_F(X11ContextMenuTest, OpensAgainAfterItWasClosed) {
    show(left);
    menu.close();
    EXPECT_FALSE(isShown());
    show(left);
    EXPECT_TRUE(isShown());
}

TEST_F(X11ContextMenuTest, ClosesWhenTheBarMoves) {
    show(left);
    bar.setY(30);
    EXPECT_TRUE(waitUntil([] { return !isShown(); }));
}

} // namespace
} // namespace orvelle
