#include "appkit/program.h"

#include <QCoreApplication>
#include <QEvent>

namespace orvelle {
namespace {

using namespace simulated;

class PopoverTest : public AppKitTest {};

TEST_F(PopoverTest, IsMadeWithEachItemAndShownWithNone) {
    launch();
    ASSERT_EQ(popovers().size(), 6U);
    for (const PopoverState& popover : popovers()) {
        EXPECT_EQ(popover.width, 320);
        EXPECT_EQ(popover.height, 500);
        EXPECT_EQ(popover.behavior, 1) << "transient";
        EXPECT_TRUE(popover.animates);
        EXPECT_FALSE(popover.isShown);
        EXPECT_FALSE(popover.hasContent) << "which is made when it is first seen";
    }
}

TEST_F(PopoverTest, OpensUnderItsItemWithTheKeyboardInIt) {
    Program& running = launch();
    click(memoryItem, MouseButton::left);
    const PopoverState popover = shownPopover();
    EXPECT_EQ(popover.anchorIdentifier, "memory");
    EXPECT_EQ(popover.anchorWidth, 70);
    EXPECT_EQ(popover.anchorHeight, 22);
    EXPECT_EQ(popover.edge, 1U) << "the edge of the least y, under the menu bar";
    EXPECT_TRUE(popover.isKey);
    EXPECT_TRUE(popover.hasContent);
    EXPECT_TRUE(popover.showsContent);
    EXPECT_TRUE(popover.contentTakesKeys);
    EXPECT_TRUE(desktop().isActive) << "nothing reacts to the pointer otherwise";
    EXPECT_EQ(running.contents, QStringList{QStringLiteral("memory")});
    EXPECT_EQ(running.panelCornerRadius, 0) << "the system rounds its popovers";
    ASSERT_EQ(running.contentWindows.size(), 1U);
    EXPECT_TRUE(running.contentWindows[0]->isVisible());
    EXPECT_EQ(running.contentWindows[0]->flags() & Qt::SubWindow, Qt::SubWindow);
}

TEST_F(PopoverTest, ClosesWithTheSecondClickAndOpensWithTheThird) {
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 0);
    EXPECT_FALSE(running.contentWindows.at(0)->isVisible()) << "what nobody sees is not drawn";
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 1);
    EXPECT_TRUE(running.contentWindows.at(0)->isVisible());
    EXPECT_EQ(desktop().deeds, (std::vector<std::string>{"show cpu", "close cpu", "show cpu"}));
    EXPECT_EQ(running.contents.size(), 1) << "the content is made once";
}

TEST_F(PopoverTest, ClosesWithTheSecondClickWhenItsPressHasAlreadyClosedIt) {
    desktop().script.asksBeforeClosingPopover = false;
    launch();
    click(cpuItem, MouseButton::left);
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(desktop().deeds, (std::vector<std::string>{"show cpu", "close cpu"}));
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 1);
}

TEST_F(PopoverTest, StaysOpenWhileItsOwnItemIsPressed) {
    launch();
    click(cpuItem, MouseButton::left);
    press(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 1);
    release(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 0);
}

TEST_F(PopoverTest, OpensAgainWhenTheClickThatClosedItWasLongAgo) {
    desktop().script.asksBeforeClosingPopover = false;
    launch();
    click(cpuItem, MouseButton::left);
    clickElsewhere();
    EXPECT_EQ(shownPopoverCount(), 0);
    desktop().script.uptimeSeconds += 0.31;
    release(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 1);
}

TEST_F(PopoverTest, OpensInPlaceOfAnotherOneWithOneClick) {
    for (const bool asks : {true, false}) {
        desktop().script.asksBeforeClosingPopover = asks;
        launch();
        click(cpuItem, MouseButton::left);
        click(sensorItem, MouseButton::left);
        EXPECT_EQ(shownPopover().anchorIdentifier, "sensor");
        EXPECT_EQ(desktop().deeds, (std::vector<std::string>{"show cpu", "close cpu", "show sensor"}));
        startAfresh();
    }
}

TEST_F(PopoverTest, OpensInPlaceOfAnotherOneThatIsStillFading) {
    desktop().script.popoversFade = true;
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    click(memoryItem, MouseButton::left);
    EXPECT_TRUE(running.contentWindows.at(0)->isVisible()) << "to be seen fading";
    finishFading();
    EXPECT_FALSE(running.contentWindows.at(0)->isVisible());
    EXPECT_EQ(shownPopover().anchorIdentifier, "memory");
    EXPECT_TRUE(shownPopover().isKey);
}

TEST_F(PopoverTest, ClosesWithEscapeAndWithAClickElsewhere) {
    launch();
    click(cpuItem, MouseButton::left);
    pressEscape();
    EXPECT_EQ(shownPopoverCount(), 0);
    click(cpuItem, MouseButton::left);
    clickElsewhere();
    EXPECT_EQ(shownPopoverCount(), 0);
}

TEST_F(PopoverTest, MayBeDestroyedWhileItFades) {
    desktop().script.popoversFade = true;
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    click(cpuItem, MouseButton::left);
    running.showAll(false);
    running.delegate.checkVisibility();
    finishFading();
    EXPECT_TRUE(popovers().empty());
    EXPECT_TRUE(running.contentWindows.empty());
}

TEST_F(PopoverTest, MayBeDestroyedBeforeItHasFaded) {
    desktop().script.popoversFade = true;
    launch();
    click(cpuItem, MouseButton::left);
    click(cpuItem, MouseButton::left);
    end();
    finishFading(); // its window outlives it until then
    EXPECT_TRUE(popovers().empty());
}

TEST_F(PopoverTest, FadesWithItsContentAfterEscape) {
    desktop().script.popoversFade = true;
    const Program& running = launch();
    click(cpuItem, MouseButton::left);
    pressEscape();
    EXPECT_TRUE(shownPopover().showsContent);
    finishFading();
    EXPECT_EQ(shownPopoverCount(), 0);
    EXPECT_FALSE(running.contentWindows.at(0)->isVisible());
    click(cpuItem, MouseButton::left);
    EXPECT_TRUE(shownPopover().contentTakesKeys);
}

TEST_F(PopoverTest, ClosesWhenItsContentLosesItsNativeWindowAndOpensWhole) {
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    QEvent close(QEvent::Close); // as when the program is asked to end
    QCoreApplication::sendEvent(running.contentWindows.at(0), &close);
    EXPECT_TRUE(close.isAccepted());
    EXPECT_EQ(shownPopoverCount(), 0);
    click(cpuItem, MouseButton::left);
    EXPECT_TRUE(shownPopover().showsContent);
    EXPECT_TRUE(shownPopover().contentTakesKeys);
}

TEST_F(PopoverTest, OpensWithoutTheKeyboardWhenTheSystemRefusesToActivateTheProgram) {
    desktop().failCallsTo("activateIgnoringOtherApps");
    launch();
    click(cpuItem, MouseButton::left);
    EXPECT_TRUE(shownPopover().showsContent);
    EXPECT_FALSE(shownPopover().isKey);
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 0);
}

TEST_F(PopoverTest, OpensTheSettingsFromItsContentAndStays) {
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    ASSERT_TRUE(running.context);
    running.context->openSettings(); // the gear button
    EXPECT_EQ(shownPopoverCount(), 1);
    EXPECT_EQ(windows().size(), 1U);
}

TEST_F(PopoverTest, DoesNotOpenWithoutContent) {
    Program& running = launch();
    running.canMakeContents = false;
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 0);
    EXPECT_TRUE(desktop().deeds.empty());
    running.canMakeContents = true;
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 1);
}

TEST_F(PopoverTest, OpensWithoutTheKeyboardWhenItGetsNoWindow) {
    desktop().failCallsTo("popover's window");
    launch();
    click(cpuItem, MouseButton::left);
    EXPECT_FALSE(shownPopover().isKey);
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 0);
}

TEST_F(PopoverTest, OpensOnTheNextClickWhenTheSystemDidNotShowIt) {
    desktop().failCallsTo("showRelativeToRect");
    launch();
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 0);
    desktop().failCallsTo("nothing");
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopoverCount(), 1);
}

} // namespace
} // namespace orvelle
