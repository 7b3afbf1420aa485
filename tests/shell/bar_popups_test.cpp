#include "shell/painted/bar_popups.h"
#include "shell/painted/bar_window.h"
#include "shell/x11/popup_window.h"
#include "support/waiting.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

std::unique_ptr<Popup> makePopup(QWindow& window) {
    return std::make_unique<PopupWindow>(window);
}

class BarPopoverTest : public ::testing::Test {
protected:
    static constexpr int popoverCount = 5;

    BarPopoverTest() {
        for (int index = 0; index < popoverCount; ++index) {
            items.push_back(&bar.addItem(QString::number(index), 60));
            popovers.push_back(std::make_unique<BarPopover>(bar, kept, makePopup, [this, index](double) {
                auto content = std::make_unique<QRasterWindow>();
                content->resize(320, 500);
                ++made[index];
                ++present;
                QObject::connect(content.get(), &QObject::destroyed, &bar, [this] { --present; });
                return content;
            }));
        }
        window.resize(1000, 22);
    }
    void openAndClose(int index) {
        BarPopover& popover = *popovers[static_cast<std::size_t>(index)];
        popover.show(*items[static_cast<std::size_t>(index)]);
        QCoreApplication::processEvents();
        ASSERT_TRUE(popover.isShown());
        popover.close();
    }

    BarWindow window;
    Bar& bar = window.bar();
    KeptPopovers kept;
    std::vector<const StatusItem*> items;
    int made[popoverCount] = {};
    int present = 0;
    std::vector<std::unique_ptr<BarPopover>> popovers;
};

TEST_F(BarPopoverTest, OpensAfterThePendingClicksAreHandled) {
    popovers[0]->show(*items[0]);
    EXPECT_TRUE(popovers[0]->isShown());
    EXPECT_EQ(made[0], 0);
    popovers[0]->close();
    QCoreApplication::processEvents();
    EXPECT_EQ(made[0], 0) << "two clicks at once change nothing";
    openAndClose(0);
    EXPECT_EQ(made[0], 1);
}

TEST_F(BarPopoverTest, KeepsTheWindowsOfTheTwoThatOpenedLast) {
    for (int index = 0; index < popoverCount; ++index)
        openAndClose(index);
    EXPECT_EQ(present, 2);
    openAndClose(3);
    EXPECT_EQ(made[3], 1);
    openAndClose(0);
    EXPECT_EQ(made[0], 2);
    EXPECT_EQ(present, 2);
    openAndClose(3);
    EXPECT_EQ(made[3], 1) << "it opened later than the others but one";
}

TEST_F(BarPopoverTest, ForgetsAPopoverThatIsGone) {
    for (int index = 0; index < 2; ++index)
        openAndClose(index);
    popovers.erase(popovers.begin());
    EXPECT_EQ(present, 1);
    EXPECT_EQ(kept.size(), 1U);
}

TEST_F(BarPopoverTest, IsNotShownWhenItsContentCannotBeMade) {
    BarPopover broken(bar, kept, makePopup, [](double) { return nullptr; });
    broken.show(*items[0]);
    QCoreApplication::processEvents();
    EXPECT_FALSE(broken.isShown());
    EXPECT_TRUE(kept.empty());
}

class BarContextMenuTest : public ::testing::Test {
protected:
    BarContextMenuTest() { window.setGeometry(0, 0, 1000, 22); }

    void show(const StatusItem& item) { menu.show(item, {{QStringLiteral("Quit"), {}, nullptr}}); }
    [[nodiscard]] static bool isShown() {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        return std::ranges::any_of(windows, [](const QWindow* window) {
            return window->isVisible() && window->title() == QStringLiteral("Orvelle menu");
        });
    }

    BarWindow window;
    Bar& bar = window.bar();
    const StatusItem& left = bar.addItem(QStringLiteral("left"), 60);
    const StatusItem& right = bar.addItem(QStringLiteral("right"), 60);
    BarContextMenu menu{bar, makePopup, [] {}};
};

TEST_F(BarContextMenuTest, ClosesWhenItIsAskedForUnderItsItemAgain) {
    show(left);
    EXPECT_TRUE(isShown());
    show(left);
    EXPECT_FALSE(isShown());
    show(left);
    EXPECT_TRUE(isShown());
}

TEST_F(BarContextMenuTest, MovesToAnotherItem) {
    show(left);
    show(right);
    EXPECT_TRUE(isShown());
}

TEST_F(BarContextMenuTest, OpensAgainAfterItWasClosed) {
    show(left);
    menu.close();
    EXPECT_FALSE(isShown());
    show(left);
    EXPECT_TRUE(isShown());
}

TEST_F(BarContextMenuTest, ClosesWhenTheBarMoves) {
    show(left);
    window.setY(30);
    EXPECT_TRUE(waitUntil([] { return !isShown(); }));
}

} // namespace
} // namespace orvelle
