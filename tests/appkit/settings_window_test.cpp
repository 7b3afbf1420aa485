#include "appkit/program.h"

namespace orvelle {
namespace {

using namespace simulated;

class SettingsWindowTest : public AppKitTest {};

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
    Program& running = launch();
    running.delegate.openSettings();
    EXPECT_EQ(desktop().deeds, (std::vector<std::string>{"front Orvelle Settings", "activate"}));
    ASSERT_EQ(windows().size(), 1U);
    EXPECT_TRUE(windows()[0].isVisible);
    EXPECT_TRUE(windows()[0].isKey);
    EXPECT_TRUE(windows()[0].hasContent);
    EXPECT_TRUE(windows()[0].contentTakesKeys);
    EXPECT_TRUE(running.contentWindows.at(0)->isVisible());
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
    Program& running = launch();
    running.delegate.openSettings();
    closeWindow(0);
    EXPECT_FALSE(windows().at(0).isVisible);
    running.delegate.openSettings();
    ASSERT_EQ(windows().size(), 1U);
    EXPECT_TRUE(windows()[0].isVisible);
    EXPECT_TRUE(windows()[0].isKey);
    EXPECT_EQ(running.contents.size(), 1);
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
