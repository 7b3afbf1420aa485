#include "announcements.h"
#include "shell/painted/menu_window.h"
#include "three_entries.h"

#include <QGuiApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

class MenuAccessibilityTest : public ::testing::Test {
protected:
    MenuAccessibilityTest() {
        menu.setEntries(threeEntries());
        menu.setGeometry(QRect(QPoint(200, 22), menu.wantedSize()));
        QObject::connect(&menu, &MenuWindow::chosen, &menu,
                         [this](std::size_t index) { chosen.append(static_cast<int>(index)); });
    }
    QAccessibleInterface* popup() { return QAccessible::queryAccessibleInterface(&menu); }
    void press(int index) {
        popup()->child(index)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    MenuWindow menu;
    QList<int> chosen;
};

TEST_F(MenuAccessibilityTest, TheMenuIsAPopupMenuOfTheApplication) {
    ASSERT_NE(popup(), nullptr);
    EXPECT_EQ(popup()->role(), QAccessible::PopupMenu);
    EXPECT_EQ(popup()->text(QAccessible::Name), QStringLiteral("Orvelle menu"));
    EXPECT_EQ(popup()->childCount(), 3);
    EXPECT_GE(QAccessible::queryAccessibleInterface(qGuiApp)->indexOfChild(popup()), 0);
    EXPECT_TRUE(popup()->state().invisible);
    menu.show();
    EXPECT_FALSE(popup()->state().invisible);
}

TEST_F(MenuAccessibilityTest, EveryEntryHasItsNameAndItsKeys) {
    const QAccessibleInterface* quit = popup()->child(2);
    EXPECT_EQ(quit->role(), QAccessible::MenuItem);
    EXPECT_EQ(quit->text(QAccessible::Name), QStringLiteral("Quit Orvelle"));
    EXPECT_EQ(quit->text(QAccessible::Accelerator), QStringLiteral("Ctrl+Q"));
    EXPECT_EQ(quit->parent(), popup());
    EXPECT_EQ(popup()->indexOfChild(quit), 2);
    EXPECT_TRUE(quit->state().focusable);
    QAccessibleActionInterface* actions = popup()->child(0)->actionInterface();
    EXPECT_EQ(actions->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
    EXPECT_EQ(actions->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
              QStringList{QStringLiteral("Ctrl+,")});
    EXPECT_TRUE(actions->keyBindingsForAction(QAccessibleActionInterface::showMenuAction()).isEmpty());
}

TEST_F(MenuAccessibilityTest, ASeparatorCannotBeChosen) {
    const QAccessibleInterface* separator = popup()->child(1);
    EXPECT_EQ(separator->role(), QAccessible::Separator);
    EXPECT_FALSE(separator->state().focusable);
    EXPECT_TRUE(popup()->child(1)->actionInterface()->actionNames().isEmpty());
    menu.show();
    press(1);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(MenuAccessibilityTest, AnEntryIsFoundWhereItIsPainted) {
    const QRect quit = popup()->child(2)->rect();
    EXPECT_EQ(quit, menuRows(menu.entries(), menu.width()).at(2).translated(200, 22));
    EXPECT_EQ(popup()->childAt(quit.center().x(), quit.center().y()), popup()->child(2));
    EXPECT_EQ(popup()->childAt(quit.center().x(), 21), nullptr);
}

TEST_F(MenuAccessibilityTest, PressingChoosesWhileTheMenuIsShown) {
    press(2);
    EXPECT_TRUE(chosen.isEmpty());
    menu.show();
    press(2);
    press(0);
    EXPECT_EQ(chosen, (QList<int>{2, 0}));
}

TEST_F(MenuAccessibilityTest, TheFocusFollowsTheKeysAndIsAnnounced) {
    const Announcements announcements;
    EXPECT_EQ(popup()->focusChild(), nullptr);
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_TRUE(popup()->child(0)->state().focused);
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_FALSE(popup()->child(0)->state().focused);
    EXPECT_EQ(popup()->focusChild(), popup()->child(2));
    EXPECT_EQ(Announcements::names(QAccessible::Focus),
              (QStringList{QStringLiteral("Settings..."), QStringLiteral("Quit Orvelle")}));
}

TEST_F(MenuAccessibilityTest, OpeningAndClosingIsAnnounced) {
    const Announcements announcements;
    menu.show();
    EXPECT_EQ(Announcements::names(QAccessible::PopupMenuStart).size(), 1);
    menu.hide();
    EXPECT_EQ(Announcements::names(QAccessible::PopupMenuEnd).size(), 1);
}

TEST_F(MenuAccessibilityTest, NoInterfaceIsMadeWhileNobodyListens) {
    ASSERT_FALSE(hasAssistiveListener());
    menu.show();
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_EQ(menu.current(), 0U);
    EXPECT_EQ(menu.accessibleEntry(0).get(), nullptr);
}

TEST_F(MenuAccessibilityTest, AnInterfaceIsInvalidOnceItsEntryIsGone) {
    menu.show();
    QAccessibleInterface* kept = popup()->child(2);
    const QAccessible::Id id = QAccessible::uniqueId(kept);
    menu.setEntries({{QStringLiteral("Only one"), {}, nullptr}});
    EXPECT_FALSE(kept->isValid());
    EXPECT_EQ(kept->text(QAccessible::Name), QString());
    EXPECT_EQ(kept->rect(), QRect());
    EXPECT_TRUE(kept->actionInterface()->actionNames().isEmpty());
    kept->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(chosen.isEmpty());
    ASSERT_EQ(popup()->childCount(), 1);
    EXPECT_EQ(popup()->child(0)->text(QAccessible::Name), QStringLiteral("Only one"));
    QCoreApplication::processEvents();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(MenuAccessibilityTest, EntriesThatGoAreAnnounced) {
    static_cast<void>(popup()->child(0));
    const Announcements announcements;
    menu.setEntries({});
    EXPECT_EQ(Announcements::names(QAccessible::ObjectDestroyed), QStringList{QStringLiteral("Settings...")});
}

} // namespace
} // namespace orvelle
