#include "appkit/program.h"

#include <QCoreApplication>
#include <QEvent>

namespace orvelle {
namespace {

using namespace simulated;

class SettingsWindowTest : public AppKitTest {
protected:
    /// The program with its settings open and the keyboard in them.
    Program& openSettings() {
        Program& running = launch();
        running.delegate.openSettings();
        letTheSystemRespond();
        return running;
    }
    /// What a user sees and can do.
    static void expectOpen() {
        ASSERT_EQ(windows().size(), 1U);
        EXPECT_TRUE(windows()[0].isVisible);
        EXPECT_TRUE(windows()[0].isKey);
        EXPECT_TRUE(windows()[0].showsContent);
        EXPECT_TRUE(windows()[0].contentTakesKeys);
    }
};

TEST_F(SettingsWindowTest, IsDarkWithATransparentTitleBar) {
    Program& running = launch();
    running.delegate.openSettings();
    ASSERT_EQ(windows().size(), 1U);
    const WindowState window = windows()[0];
    EXPECT_EQ(window.width, 460);
    EXPECT_EQ(window.height, 640);
    EXPECT_EQ(window.styleMask, 32775U);
    EXPECT_EQ(window.backing, 2U) << "buffered";
    EXPECT_FALSE(window.isDeferred);
    EXPECT_EQ(window.title, "Orvelle Settings");
    EXPECT_TRUE(window.isTitlebarTransparent);
    EXPECT_EQ(window.titleVisibility, 0) << "visible";
    EXPECT_TRUE(window.isMovableByBackground);
    EXPECT_FALSE(window.isReleasedWhenClosed);
    EXPECT_EQ(window.appearance, "NSAppearanceNameDarkAqua");
    EXPECT_EQ(window.backgroundWhite, 0.1);
    EXPECT_EQ(window.backgroundAlpha, 1.0);
    EXPECT_TRUE(window.isCentered);
    EXPECT_EQ(window.autosaveName, "OrvelleSettings");
}

TEST_F(SettingsWindowTest, ComesToTheFrontOfAllProgramsWithTheKeyboardInIt) {
    const Program& running = openSettings();
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"front Orvelle Settings"});
    expectOpen();
    EXPECT_TRUE(desktop().isActive);
    EXPECT_TRUE(running.contentWindows.at(0)->isVisible());
}

TEST_F(SettingsWindowTest, ShowsItsContentBelowTheTitle) {
    openSettings();
    const WindowState window = windows().at(0);
    EXPECT_EQ(window.contentFrame, (std::array<double, 4>{0, 0, 460, 640 - 28}));
}

TEST_F(SettingsWindowTest, GivesTheKeyboardToItsContentAgainWhenTheUserComesBack) {
    openSettings();
    activateOtherProgram();
    EXPECT_FALSE(windows().at(0).contentTakesKeys);
    activateByTheUser();
    expectOpen();
}

TEST_F(SettingsWindowTest, StaysWithoutTheKeyboardWhenTheSystemRefusesToActivateTheProgram) {
    desktop().failCallsTo("activateIgnoringOtherApps");
    openSettings();
    EXPECT_TRUE(windows().at(0).isVisible);
    EXPECT_TRUE(windows().at(0).showsContent);
    EXPECT_FALSE(windows().at(0).isKey);
    activateByTheUser();
    expectOpen();
}

TEST_F(SettingsWindowTest, IsOneHoweverOftenItIsOpened) {
    Program& running = launch();
    running.delegate.openSettings();
    running.delegate.openSettings();
    ASSERT_EQ(windows().size(), 1U);
    EXPECT_EQ(windows()[0].timesBroughtForward, 2);
    EXPECT_EQ(running.contents, QStringList{QStringLiteral("settings")});
}

TEST_F(SettingsWindowTest, IsReusedAfterItWasClosed) {
    Program& running = openSettings();
    closeWindow(0);
    EXPECT_FALSE(windows().at(0).isVisible);
    EXPECT_FALSE(running.contentWindows.at(0)->isVisible()) << "which resets it and stops its charts";
    running.delegate.openSettings();
    letTheSystemRespond();
    expectOpen();
    EXPECT_EQ(running.contents.size(), 1);
}

TEST_F(SettingsWindowTest, ClosesWhenItsContentHidesAtEscapeAndOpensWhole) {
    Program& running = openSettings();
    pressEscape();
    EXPECT_FALSE(windows().at(0).isVisible);
    running.delegate.openSettings();
    letTheSystemRespond();
    expectOpen();
    pressEscape();
    EXPECT_FALSE(windows().at(0).isVisible) << "as often as the user likes";
}

TEST_F(SettingsWindowTest, OpensWholeAfterItsContentLostItsNativeWindow) {
    Program& running = openSettings();
    // What Qt sends to every window when the program is asked to end; another program may prevent the end.
    QEvent close(QEvent::Close);
    QCoreApplication::sendEvent(running.contentWindows.at(0), &close);
    EXPECT_TRUE(close.isAccepted()) << "a refusal would prevent the end";
    EXPECT_FALSE(windows().at(0).isVisible);
    EXPECT_FALSE(windows().at(0).showsContent);
    running.delegate.openSettings();
    letTheSystemRespond();
    expectOpen();
}

TEST_F(SettingsWindowTest, ComesBackFromTheDock) {
    Program& running = openSettings();
    minimizeWindow(0);
    EXPECT_FALSE(windows().at(0).isKey);
    running.delegate.openSettings();
    letTheSystemRespond();
    EXPECT_FALSE(windows().at(0).isMiniaturized);
    expectOpen();
}

TEST_F(SettingsWindowTest, OpensOnTheNextRequestWhenItsContentCouldNotBeMade) {
    Program& running = launch();
    running.canMakeContents = false;
    running.delegate.openSettings();
    EXPECT_TRUE(windows().empty());
    running.canMakeContents = true;
    running.delegate.openSettings();
    EXPECT_EQ(windows().size(), 1U);
}

TEST_F(SettingsWindowTest, OpensWhenTheProgramIsStartedAgainWithEveryModuleHidden) {
    Program& running = launch();
    running.delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(windows().empty());
    running.showAll(false);
    running.delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(statusItems().empty());
    EXPECT_EQ(windows().size(), 1U);
}

} // namespace
} // namespace orvelle
