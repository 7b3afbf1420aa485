#include "app/app_delegate_fixture.h"

#include <QCoreApplication>

namespace orvelle {
namespace {

using AppDelegateWindowsTest = AppDelegateTest;

TEST_F(AppDelegateWindowsTest, ARightClickOpensTheMenuUnderItsItem) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    bar.items.front()->click(ClickButton::right);
    bar.items.back()->click(ClickButton::right);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("menu cpu"),
                                      QStringLiteral("menu ") + bar.items.back()->identifier()}));
}

TEST_F(AppDelegateWindowsTest, ALeftClickOpensAPanelAndNoMenu) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    EXPECT_TRUE(windowCalls.isEmpty()); // the windows are not loaded before they are needed
    bar.items.front()->click(ClickButton::left);
    EXPECT_EQ(bar.calls, QStringList{QStringLiteral("open cpu")});
    EXPECT_EQ(windowCalls, (QStringList{QStringLiteral("load"), QStringLiteral("cpu panel 7")}));
    EXPECT_TRUE(delegate.isPopoverShown(QStringLiteral("cpu")));
    EXPECT_FALSE(delegate.isPopoverShown(QStringLiteral("memory")));
}

TEST_F(AppDelegateWindowsTest, ClosesAPanelOnTheSecondClick) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    for (int count = 0; count < 3; ++count)
        bar.items.front()->click(ClickButton::left);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("open cpu"), QStringLiteral("close cpu"),
                                      QStringLiteral("open cpu")}));
    EXPECT_EQ(windowCalls.size(), 2); // the content is made once
}

TEST_F(AppDelegateWindowsTest, ShowsOnePanelAtATime) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    bar.items[0]->click(ClickButton::left);
    bar.items[1]->click(ClickButton::left);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("open cpu"), QStringLiteral("close cpu"),
                                      QStringLiteral("open memory")}));
    EXPECT_EQ(windowCalls.filter(QStringLiteral("load")).size(), 1);
}

TEST_F(AppDelegateWindowsTest, ClosesThePanelBeforeTheMenuOpens) {
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::left);
    bar.calls.clear();
    bar.items[0]->click(ClickButton::right);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("close cpu"), QStringLiteral("menu cpu")}));
    EXPECT_FALSE(delegate.isPopoverShown(QStringLiteral("cpu")));
}

TEST_F(AppDelegateWindowsTest, ClosesTheMenuBeforeAPanelOpens) {
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::right);
    bar.calls.clear();
    bar.items[0]->click(ClickButton::left);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("close menu"), QStringLiteral("open cpu")}));
}

TEST_F(AppDelegateWindowsTest, RecreatesThePanelsTogetherWithTheItems) {
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::left);
    settings.setShowMemory(!settings.showMemory());
    delegate.checkVisibility();
    EXPECT_FALSE(delegate.isPopoverShown(QStringLiteral("cpu")));
    windowCalls.clear();
    bar.items[0]->click(ClickButton::left);
    EXPECT_EQ(windowCalls, QStringList{QStringLiteral("cpu panel 7")});
}

TEST_F(AppDelegateWindowsTest, IgnoresAClickOnAnUnknownItem) {
    delegate.applicationDidFinishLaunching();
    const RecordingStatusBar::Item stranger(QStringLiteral("unknown"), 40);
    bar.calls.clear();
    delegate.togglePopover(stranger);
    EXPECT_TRUE(bar.calls.isEmpty());
}

TEST_F(AppDelegateWindowsTest, KeepsRunningWhenTheWindowsCannotBeLoaded) {
    canLoadViews = false;
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::left);
    delegate.openSettings();
    EXPECT_FALSE(windowCalls.contains(QStringLiteral("forward")));
    canLoadViews = true;
    delegate.openSettings();
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
}

TEST_F(AppDelegateWindowsTest, OpensTheSameSettingsWindowFromEverywhere) {
    delegate.applicationDidFinishLaunching();
    delegate.openSettings();
    EXPECT_EQ(windowCalls,
              (QStringList{QStringLiteral("load"), QStringLiteral("settings"), QStringLiteral("forward")}));
    windowCalls.clear();
    context->openSettings(); // the button in a panel
    bar.items.front()->click(ClickButton::right);
    bar.menuEntries.front().action();
    EXPECT_EQ(windowCalls, (QStringList{QStringLiteral("forward"), QStringLiteral("forward")}));
}

TEST_F(AppDelegateWindowsTest, ASecondStartMovesTheKeyboardToTheItemsOrOpensTheSettingsWhenThereAreNone) {
    delegate.applicationDidFinishLaunching();
    delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(windowCalls.isEmpty());
    EXPECT_EQ(bar.calls.last(), QStringLiteral("keyboard"));
    showAll(false);
    bar.calls.clear();
    delegate.applicationShouldHandleReopen();
    EXPECT_FALSE(bar.calls.contains(QStringLiteral("keyboard")));
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
}

TEST_F(AppDelegateWindowsTest, ClosesTheMenuBeforeItsItemIsRemoved) {
    delegate.applicationDidFinishLaunching();
    bar.items.front()->click(ClickButton::right);
    bar.calls.clear();
    settings.setShowMemory(!settings.showMemory());
    delegate.checkVisibility();
    EXPECT_EQ(bar.calls.value(0), QStringLiteral("close menu"));
}

TEST_F(AppDelegateWindowsTest, EndsTheProgramFromTheMenu) {
    delegate.applicationDidFinishLaunching();
    bar.items.front()->click(ClickButton::right);
    ASSERT_EQ(bar.menuEntries.size(), 3U);
    EXPECT_EQ(bar.menuEntries.back().title, QStringLiteral("Quit Orvelle"));
    QTimer::singleShot(0, &bar, bar.menuEntries.back().action);
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(AppDelegateWindowsTest, GivesTheDesktopTheMenuThatItShowsItself) {
    delegate.applicationDidFinishLaunching();
    ASSERT_EQ(bar.desktopMenu.size(), 3U);
    QTimer::singleShot(0, &bar, bar.desktopMenu.back().action);
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST(ContextMenuEntries, AreSettingsASeparatorAndQuit) {
    QStringList calls;
    const std::vector<MenuEntry> entries =
        contextMenuEntries([&calls] { calls.append(QStringLiteral("settings")); },
                           [&calls] { calls.append(QStringLiteral("quit")); });
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].title, QStringLiteral("Settings..."));
    EXPECT_EQ(entries[0].keyEquivalent, QStringLiteral(","));
    EXPECT_TRUE(entries[1].title.isEmpty());
    EXPECT_EQ(entries[2].title, QStringLiteral("Quit Orvelle"));
    EXPECT_EQ(entries[2].keyEquivalent, QStringLiteral("q"));
    entries[0].action();
    entries[2].action();
    EXPECT_EQ(calls, (QStringList{QStringLiteral("settings"), QStringLiteral("quit")}));
}

} // namespace
} // namespace orvelle
