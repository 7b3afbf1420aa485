#include "announcements.h"
#include "shell/painted/bar_popups.h"
#include "shell/painted/bar_window.h"
#include "shell/x11/popup_window.h"

#include <QGuiApplication>
#include <QRasterWindow>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class BarAccessibilityTest : public ::testing::Test {
protected:
    BarAccessibilityTest() { window.setGeometry(100, 50, 400, barHeightPoints); }

    BarItem& addItem(const QString& name, const QString& text) {
        BarItem& item = bar.addItem(name.toLower(), 60);
        item.setWords(name, text);
        item.setClickHandler([this](ClickButton button) { clicks.append(button); });
        return item;
    }
    BarItem& addCPU() { return addItem(QStringLiteral("CPU"), QStringLiteral("CPU 12%")); }
    BarItem& addMemory() { return addItem(QStringLiteral("Memory"), QStringLiteral("Memory 45%")); }

    QAccessibleInterface* toolBar() { return QAccessible::queryAccessibleInterface(&window); }
    static QAccessibleActionInterface& actions(QAccessibleInterface& interface) {
        return *interface.actionInterface();
    }

    BarWindow window;
    Bar& bar = window.bar();
    QList<ClickButton> clicks;
};

TEST_F(BarAccessibilityTest, TheBarIsAToolBarOfTheApplication) {
    ASSERT_NE(toolBar(), nullptr);
    EXPECT_TRUE(toolBar()->isValid());
    EXPECT_EQ(toolBar()->role(), QAccessible::ToolBar);
    EXPECT_EQ(toolBar()->text(QAccessible::Name), QStringLiteral("Orvelle"));
    EXPECT_EQ(toolBar()->rect(), QRect(100, 50, 400, barHeightPoints));
    EXPECT_EQ(toolBar()->window(), &window);
    QAccessibleInterface* application = QAccessible::queryAccessibleInterface(qGuiApp);
    EXPECT_EQ(toolBar()->parent(), application);
    EXPECT_GE(application->indexOfChild(toolBar()), 0);
}

TEST_F(BarAccessibilityTest, TheBarIsInvisibleWhileItIsHidden) {
    EXPECT_TRUE(toolBar()->state().invisible);
    addCPU();
    EXPECT_TRUE(toolBar()->child(0)->state().invisible);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_FALSE(toolBar()->state().invisible);
    EXPECT_FALSE(toolBar()->child(0)->state().invisible);
}

TEST_F(BarAccessibilityTest, EveryItemIsAButtonWithANameAndItsValues) {
    addCPU();
    addMemory();
    ASSERT_EQ(toolBar()->childCount(), 2);
    const QAccessibleInterface* memory = toolBar()->child(1);
    EXPECT_EQ(memory->role(), QAccessible::Button);
    EXPECT_EQ(memory->text(QAccessible::Name), QStringLiteral("Memory"));
    EXPECT_EQ(memory->text(QAccessible::Description), QStringLiteral("Memory 45%"));
    EXPECT_EQ(memory->text(QAccessible::Value), QStringLiteral("Memory 45%"));
    EXPECT_EQ(memory->text(QAccessible::Help), QString());
    EXPECT_EQ(memory->parent(), toolBar());
    EXPECT_EQ(memory->childCount(), 0);
    EXPECT_EQ(toolBar()->indexOfChild(memory), 1);
    EXPECT_EQ(toolBar()->indexOfChild(toolBar()), -1);
    EXPECT_EQ(toolBar()->child(-1), nullptr);
    EXPECT_EQ(toolBar()->child(2), nullptr);
}

TEST_F(BarAccessibilityTest, AnItemWithoutAPictureHasNoName) {
    bar.addItem(QStringLiteral("cpu"), 60);
    EXPECT_EQ(toolBar()->child(0)->text(QAccessible::Name), QString());
}

TEST_F(BarAccessibilityTest, AnItemIsFoundWhereItIsPainted) {
    addCPU();
    addMemory();
    const QRect memory = toolBar()->child(1)->rect();
    EXPECT_EQ(memory, QRect(500 - 8 - 60, 50, 60, barHeightPoints));
    EXPECT_EQ(toolBar()->childAt(memory.center().x(), memory.center().y()), toolBar()->child(1));
    EXPECT_EQ(toolBar()->childAt(memory.left() - 1, 60), toolBar()->child(0));
    EXPECT_EQ(toolBar()->childAt(110, 60), nullptr);
    EXPECT_EQ(toolBar()->childAt(memory.center().x(), 49), nullptr);
}

TEST_F(BarAccessibilityTest, ItsActionsAreTheClicks) {
    addCPU();
    QAccessibleActionInterface& actions = this->actions(*toolBar()->child(0));
    EXPECT_EQ(actions.actionNames(), (QStringList{QAccessibleActionInterface::pressAction(),
                                                  QAccessibleActionInterface::showMenuAction()}));
    actions.doAction(QAccessibleActionInterface::pressAction());
    actions.doAction(QAccessibleActionInterface::showMenuAction());
    actions.doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(clicks, (QList<ClickButton>{ClickButton::left, ClickButton::right}));
}

TEST_F(BarAccessibilityTest, AnActionMayRemoveTheItem) {
    BarItem& item = addCPU();
    item.setClickHandler([this, &item](ClickButton) { bar.removeItem(item); });
    QAccessibleInterface* button = toolBar()->child(0);
    actions(*button).doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(button->isValid());
    EXPECT_EQ(toolBar()->childCount(), 0);
}

TEST_F(BarAccessibilityTest, AnItemIsPressedWhileTheMouseHoldsItDown) {
    addCPU();
    const QPoint middle(400 - 8 - 30, 11);
    EXPECT_FALSE(toolBar()->child(0)->state().pressed);
    QTest::mousePress(&window, Qt::LeftButton, {}, middle);
    EXPECT_TRUE(toolBar()->child(0)->state().pressed);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middle);
    EXPECT_FALSE(toolBar()->child(0)->state().pressed);
}

TEST_F(BarAccessibilityTest, AnItemIsExpandedWhileItsPopoverIsShown) {
    const BarItem& cpu = addCPU();
    const BarItem& memory = addMemory();
    KeptPopovers kept;
    const auto makePopup = [](QWindow& content) { return std::make_unique<PopupWindow>(content); };
    BarPopover popover(bar, kept, makePopup, [](double) {
        auto content = std::make_unique<QRasterWindow>();
        content->resize(320, 500);
        return content;
    });
    const auto isExpanded = [this](int index) { return bool(toolBar()->child(index)->state().expanded); };
    EXPECT_FALSE(isExpanded(0));
    popover.show(cpu);
    EXPECT_TRUE(isExpanded(0));
    popover.show(memory);
    EXPECT_FALSE(isExpanded(0));
    EXPECT_TRUE(isExpanded(1));
    const Announcements announcements;
    popover.close();
    EXPECT_FALSE(isExpanded(1));
    EXPECT_EQ(Announcements::names(QAccessible::StateChanged), QStringList{QStringLiteral("Memory")});
}

TEST_F(BarAccessibilityTest, AnInterfaceIsInvalidOnceItsItemIsGone) {
    BarItem& item = addCPU();
    addMemory();
    QAccessibleInterface* kept = toolBar()->child(0);
    const QAccessible::Id id = QAccessible::uniqueId(kept);
    bar.removeItem(item);
    EXPECT_FALSE(kept->isValid());
    EXPECT_TRUE(kept->state().invalid);
    EXPECT_EQ(kept->text(QAccessible::Name), QString());
    EXPECT_EQ(kept->rect(), QRect());
    EXPECT_EQ(kept->parent(), nullptr);
    EXPECT_EQ(kept->window(), nullptr);
    actions(*kept).doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(clicks.isEmpty());
    EXPECT_EQ(toolBar()->child(0)->text(QAccessible::Name), QStringLiteral("Memory"));
    QCoreApplication::processEvents();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(BarAccessibilityTest, AnInterfaceIsInvalidOnceTheBarIsGone) {
    auto other = std::make_unique<BarWindow>();
    other->bar().addItem(QStringLiteral("cpu"), 60);
    QAccessibleInterface* kept = QAccessible::queryAccessibleInterface(other.get())->child(0);
    other.reset();
    EXPECT_FALSE(kept->isValid());
    EXPECT_EQ(kept->parent(), nullptr);
}

TEST_F(BarAccessibilityTest, NewValuesAreAnnouncedOnceEach) {
    BarItem& item = addCPU();
    const Announcements announcements;
    static_cast<void>(toolBar()->child(0)); // an assistive program has looked at the bar
    const auto say = [&item](const QString& text) { item.setWords(QStringLiteral("CPU"), text); };
    say(QStringLiteral("CPU 13%"));
    say(QStringLiteral("CPU 13%"));
    say(QStringLiteral("CPU 14%"));
    EXPECT_EQ(Announcements::names(QAccessible::DescriptionChanged).size(), 2);
    EXPECT_TRUE(Announcements::names(QAccessible::NameChanged).isEmpty());
}

TEST_F(BarAccessibilityTest, ItemsThatComeAndGoAreAnnounced) {
    const Announcements announcements;
    BarItem& item = addCPU();
    EXPECT_EQ(Announcements::names(QAccessible::ObjectCreated).size(), 1);
    bar.removeItem(item);
    EXPECT_EQ(Announcements::names(QAccessible::ObjectDestroyed), QStringList{QStringLiteral("CPU")});
}

class AccessibleBarTest : public ::testing::Test {
protected:
    AccessibleBarTest() { bar.bar().addItem(QStringLiteral("cpu"), 60); }

    BarPlace place{nullptr, QRect(100, 50, 400, barHeightPoints), 1, false};
    AccessibleBar bar{[this] { return place; }};
    QAccessibleInterface* toolBar = bar.accessibleRoot();
};

TEST_F(AccessibleBarTest, IsAToolBarOfTheApplicationWithoutEverBeingShown) {
    QAccessibleInterface* application = QAccessible::queryAccessibleInterface(qGuiApp);
    ASSERT_NE(toolBar, nullptr);
    EXPECT_EQ(toolBar->role(), QAccessible::ToolBar);
    EXPECT_EQ(toolBar->parent(), application);
    ASSERT_GE(application->indexOfChild(toolBar), 0);
    EXPECT_EQ(application->child(application->indexOfChild(toolBar)), toolBar);
    EXPECT_EQ(bar.handle(), nullptr) << "a window was made";
}

TEST_F(AccessibleBarTest, TellsThePlaceOfItsBarAndNotOfItsWindow) {
    bar.setGeometry(0, 0, 1, 1);
    EXPECT_EQ(toolBar->rect(), place.geometry);
    const QRect item = toolBar->child(0)->rect();
    EXPECT_EQ(item, QRect(500 - 8 - 60, 50, 60, barHeightPoints));
    EXPECT_EQ(toolBar->childAt(item.center().x(), item.center().y()), toolBar->child(0));
}

TEST_F(AccessibleBarTest, IsVisibleWhenItsBarIsOnTheScreen) {
    EXPECT_TRUE(toolBar->state().invisible);
    EXPECT_TRUE(toolBar->child(0)->state().invisible);
    place.isOnScreen = true;
    EXPECT_FALSE(toolBar->state().invisible);
    EXPECT_FALSE(toolBar->child(0)->state().invisible);
}

TEST_F(BarAccessibilityTest, NoInterfaceIsMadeWhileNobodyListens) {
    ASSERT_FALSE(hasAssistiveListener());
    BarItem& item = addCPU();
    item.setExpanded(true);
    item.setWords(QStringLiteral("CPU"), QStringLiteral("CPU 99%"));
    EXPECT_EQ(item.accessible().get(), nullptr);
    static_cast<void>(toolBar()->child(0));
    EXPECT_NE(item.accessible().get(), nullptr);
}

} // namespace
} // namespace orvelle
