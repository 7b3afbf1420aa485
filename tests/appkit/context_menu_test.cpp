#include "appkit/program.h"

#include <QCoreApplication>
#include <QTimer>

namespace orvelle {
namespace {

using namespace simulated;

class ContextMenuTest : public AppKitTest {
protected:
    /// Right-clicks an item and does this while its menu is open.
    static void openMenuOf(std::size_t item, std::function<void()> meanwhile) {
        desktop().script.whileMenuIsOpen = std::move(meanwhile);
        click(item, MouseButton::right);
    }
};

TEST_F(ContextMenuTest, OpensUnderItsItemWithItsThreeEntries) {
    launch();
    std::optional<std::vector<MenuEntryState>> entries;
    openMenuOf(memoryItem, [&] { entries = openMenu(); });
    EXPECT_EQ(entries, (std::vector<MenuEntryState>{
                           {.title = "Settings...", .keyEquivalent = ",", .hasTarget = true},
                           {},
                           {.title = "Quit Orvelle", .keyEquivalent = "q", .hasTarget = true}}));
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"menu memory"});
    EXPECT_EQ(shownPopoverCount(), 0);
}

TEST_F(ContextMenuTest, BelongsToTheItemOnlyWhileItIsOpen) {
    launch();
    bool hasMenu = false;
    openMenuOf(cpuItem, [&] { hasMenu = statusItems().at(cpuItem).hasMenu; });
    EXPECT_TRUE(hasMenu);
    for (const StatusItemState& item : statusItems())
        EXPECT_FALSE(item.hasMenu);
}

TEST_F(ContextMenuTest, LeavesTheLeftClickToThePanel) {
    launch();
    openMenuOf(cpuItem, {});
    desktop().deeds.clear();
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"show cpu"});
    EXPECT_EQ(shownPopover().anchorIdentifier, "cpu");
}

TEST_F(ContextMenuTest, OpensWithControlHeldToo) {
    launch();
    click(cpuItem, MouseButton::left, true);
    EXPECT_EQ(desktop().deeds, std::vector<std::string>{"menu cpu"});
}

TEST_F(ContextMenuTest, ClosesThePanelsFirst) {
    launch();
    click(cpuItem, MouseButton::left);
    desktop().deeds.clear();
    click(cpuItem, MouseButton::right);
    EXPECT_EQ(desktop().deeds, (std::vector<std::string>{"close cpu", "menu cpu"}));
}

TEST_F(ContextMenuTest, OpensTheSettings) {
    launch();
    openMenuOf(cpuItem, [] { chooseFromMenu(0); });
    ASSERT_EQ(windows().size(), 1U);
    EXPECT_TRUE(windows()[0].isKey);
}

TEST_F(ContextMenuTest, EndsTheProgram) {
    launch();
    QTimer::singleShot(0, [] { openMenuOf(sensorItem, [] { chooseFromMenu(2); }); });
    QTimer tooLate;
    tooLate.callOnTimeout([] { QCoreApplication::exit(1); });
    tooLate.start(std::chrono::seconds(10));
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_F(ContextMenuTest, SurvivesTheRemovalOfItsItemWhileItIsOpen) {
    Program& running = launch();
    openMenuOf(cpuItem, [&] {
        running.settings.setShowMemory(false);
        running.delegate.checkVisibility();
        EXPECT_FALSE(openMenu()) << "it went with its item";
    });
    EXPECT_EQ(statusItems().size(), 5U);
    for (const StatusItemState& item : statusItems())
        EXPECT_FALSE(item.hasMenu);
}

TEST_F(ContextMenuTest, RunsTheChosenActionAndIgnoresAnEntryWithoutOne) {
    StatusItem& item = program().addItem("clock");
    const std::unique_ptr<ContextMenu> menu = program().statusBar->makeContextMenu();
    int timesChosen = 0;
    const MenuEntry counted{QStringLiteral("Count"), {}, [&] { ++timesChosen; }};
    const MenuEntry idle{QStringLiteral("Idle"), {}, {}};
    desktop().script.whileMenuIsOpen = [] { chooseFromMenu(1); };
    menu->show(item, {idle, counted});
    EXPECT_EQ(timesChosen, 1);
    menu->show(item, {counted, idle});
    EXPECT_EQ(timesChosen, 1);
}

} // namespace
} // namespace orvelle
