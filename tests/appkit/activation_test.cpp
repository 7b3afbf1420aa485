#include "appkit/program.h"

#include <QTest>

#include <algorithm>

namespace orvelle {
namespace {

using namespace simulated;

class ActivationTest : public AppKitTest {
protected:
    /// Longer than the program waits for the next thing to be opened.
    static void waitForTheEnd() { QTest::qWait(600); }
    static bool isHidden() {
        return std::ranges::count(desktop().deeds, std::string("hide the program")) > 0;
    }
    Program& openSettings() {
        Program& running = launch();
        running.delegate.openSettings();
        letTheSystemRespond();
        return running;
    }
};

TEST_F(ActivationTest, IsLeftToOtherProgramsUntilSomethingOpens) {
    launch();
    waitForTheEnd();
    EXPECT_FALSE(desktop().isActive);
    EXPECT_TRUE(desktop().deeds.empty());
}

TEST_F(ActivationTest, GoesBackWhenAPanelHasClosedAndComesWithTheNext) {
    launch();
    for (int count = 1; count <= 2; ++count) {
        click(cpuItem, MouseButton::left);
        EXPECT_TRUE(desktop().isActive);
        EXPECT_TRUE(shownPopover().isKey);
        waitForTheEnd();
        EXPECT_TRUE(desktop().isActive) << "while it is open";
        pressEscape();
        waitForTheEnd();
        EXPECT_FALSE(desktop().isActive);
        EXPECT_EQ(std::ranges::count(desktop().deeds, std::string("hide the program")), count);
    }
}

TEST_F(ActivationTest, GoesBackWhenTheSettingsHaveClosed) {
    openSettings();
    closeWindow(0);
    waitForTheEnd();
    EXPECT_FALSE(desktop().isActive);
}

TEST_F(ActivationTest, IsLeftToTheProgramThatTheUserChose) {
    launch();
    click(cpuItem, MouseButton::left);
    clickElsewhere();
    waitForTheEnd();
    EXPECT_FALSE(isHidden());
}

TEST_F(ActivationTest, StaysWhileTheSettingsAreOpen) {
    openSettings();
    click(cpuItem, MouseButton::left);
    pressEscape();
    waitForTheEnd();
    EXPECT_TRUE(desktop().isActive);
    EXPECT_TRUE(windows().at(0).contentTakesKeys) << "they get the keyboard back";
}

TEST_F(ActivationTest, DoesNotHideSettingsThatAreInTheDock) {
    openSettings();
    minimizeWindow(0);
    click(cpuItem, MouseButton::left);
    pressEscape();
    waitForTheEnd();
    EXPECT_FALSE(isHidden());
}

TEST_F(ActivationTest, StaysFromOnePanelToTheNext) {
    desktop().script.asksBeforeClosingPopover = false;
    launch();
    click(cpuItem, MouseButton::left);
    press(memoryItem, MouseButton::left);
    QTest::qWait(100);
    release(memoryItem, MouseButton::left);
    waitForTheEnd();
    EXPECT_FALSE(isHidden());
    EXPECT_TRUE(shownPopover().contentTakesKeys);
}

TEST_F(ActivationTest, DoesNotGoBackUnderAnOpenMenu) {
    launch();
    click(cpuItem, MouseButton::left);
    desktop().script.whileMenuIsOpen = [] {
        waitForTheEnd();
        EXPECT_FALSE(isHidden());
    };
    click(cpuItem, MouseButton::right);
    waitForTheEnd();
    EXPECT_TRUE(isHidden()) << "but afterwards";
}

TEST_F(ActivationTest, StaysWithTheSettingsThatAMenuOpened) {
    launch();
    desktop().script.whileMenuIsOpen = [] { chooseFromMenu(0); };
    click(cpuItem, MouseButton::right);
    waitForTheEnd();
    EXPECT_TRUE(desktop().isActive);
    EXPECT_TRUE(windows().at(0).contentTakesKeys);
}

TEST_F(ActivationTest, GoesBackWhenTheItemOfAnOpenPanelIsRemoved) {
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    running.showAll(false);
    running.delegate.checkVisibility();
    waitForTheEnd();
    EXPECT_FALSE(desktop().isActive);
}

} // namespace
} // namespace orvelle
