#include "appkit/program.h"

#include <QColor>
#include <QSignalSpy>

#include <algorithm>

namespace orvelle {
namespace {

using namespace simulated;

const std::vector<std::string> everyKey{"cpu", "memory", "network", "disk", "battery", "sensor"};
const std::set<std::string> everyEdge{"leading", "trailing", "top", "bottom"};

void paintHalfRed(QPainter& painter, const QRectF& bounds, BarAppearance /*appearance*/) {
    painter.fillRect(QRectF(bounds.topLeft(), QSizeF(bounds.width(), bounds.height() / 2)),
                     QColor(255, 0, 0));
}

class StatusItemsTest : public AppKitTest {
protected:
    /// Half red, half transparent, so that the order of the bytes and the rows is seen.
    void addHalfRedItem() {
        StatusItem& item = program().addItem("cpu", 60);
        item.setPaint(&paintHalfRed);
        item.repaint();
    }
};

TEST_F(StatusItemsTest, StandInTableOrderWithTheirFixedLengths) {
    launch();
    EXPECT_EQ(itemIdentifiers(), everyKey);
    std::vector<double> lengths;
    for (const StatusItemState& item : statusItems())
        lengths.push_back(item.length);
    EXPECT_EQ(lengths, (std::vector<double>{60, 70, 90, 45, 65, 50}));
}

TEST_F(StatusItemsTest, StandInTableOrderAfterAModuleWasSwitchedOffAndOn) {
    Program& running = launch();
    for (const bool isShown : {false, true}) {
        running.settings.setShowNetwork(isShown);
        running.delegate.checkVisibility();
    }
    EXPECT_EQ(itemIdentifiers(), everyKey);
}

TEST_F(StatusItemsTest, KeepThePlaceThatTheUserDraggedThemTo) {
    Program& running = launch();
    dragToTheRightEnd(cpuItem);
    const std::vector<std::string> dragged{"memory", "network", "disk", "battery", "sensor", "cpu"};
    EXPECT_EQ(itemIdentifiers(), dragged);
    running.settings.setShowNetwork(false);
    running.delegate.checkVisibility();
    EXPECT_EQ(itemIdentifiers(), (std::vector<std::string>{"memory", "disk", "battery", "sensor", "cpu"}));
    end();
    launch();
    EXPECT_EQ(itemIdentifiers(), dragged) << "when the program starts again";
}

TEST_F(StatusItemsTest, SendTheirActionAtBothMouseUpsAndCarryTheirModulesKey) {
    launch();
    for (const StatusItemState& item : statusItems()) {
        EXPECT_EQ(item.actionMask, 20U);
        EXPECT_EQ(item.action, "statusItemClicked:");
        EXPECT_TRUE(item.hasTarget);
        EXPECT_FALSE(item.hasMenu);
    }
}

TEST_F(StatusItemsTest, HoldAPictureTiedToAllFourEdgesThatTakesNoClicks) {
    launch();
    for (std::size_t index = 0; index < statusItems().size(); ++index) {
        const StatusItemState item = statusItems()[index];
        EXPECT_EQ(item.subviewCount, 1U);
        EXPECT_EQ(item.pinnedEdges, everyEdge);
        EXPECT_FALSE(item.translatesAutoresizing);
        EXPECT_TRUE(clicksReachTheButton(index)) << item.identifier;
    }
}

TEST_F(StatusItemsTest, AreDrawnAtTheResolutionOfTheirScreen) {
    addHalfRedItem();
    const std::optional<Drawing> drawing = draw(0);
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->width, 120U);
    EXPECT_EQ(drawing->height, 44U);
    EXPECT_EQ(drawing->widthInPoints, 60);
    EXPECT_EQ(drawing->heightInPoints, 22);
    EXPECT_EQ(drawing->pixels.front(), 0xffff0000U) << "the upper half is opaque red";
    EXPECT_EQ(drawing->pixels.at(120 * 21), 0xffff0000U);
    EXPECT_EQ(drawing->pixels.at(120 * 22), 0U);
    EXPECT_EQ(drawing->pixels.back(), 0U);
}

TEST_F(StatusItemsTest, AreDrawnAgainOnAnotherScreen) {
    addHalfRedItem();
    ASSERT_TRUE(draw(0));
    EXPECT_FALSE(draw(0)) << "nothing has changed";
    changeScreen(0, 1);
    const std::optional<Drawing> drawing = draw(0);
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->width, 60U);
}

/// Opaque where it is painted, in white or in black.
QRgb labelColor(const Drawing& drawing) {
    for (const std::uint32_t pixel : drawing.pixels) {
        if (pixel == 0xffffffffU || pixel == 0xff000000U)
            return pixel;
    }
    return 0;
}

TEST_F(StatusItemsTest, AreWrittenInWhiteOnADarkMenuBarAndInBlackOnALightOne) {
    program().settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    for (const bool isDark : {true, false}) {
        desktop().script.isMenuBarDark = isDark;
        launch();
        const std::optional<Drawing> drawing = draw(memoryItem);
        ASSERT_TRUE(drawing);
        EXPECT_EQ(labelColor(*drawing), isDark ? 0xffffffffU : 0xff000000U);
        end();
        program().settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    }
}

TEST_F(StatusItemsTest, AreDrawnAgainWhenTheMenuBarBecomesLight) {
    program().settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    launch();
    ASSERT_TRUE(draw(memoryItem));
    changeMenuBar(false);
    const std::optional<Drawing> drawing = draw(memoryItem);
    ASSERT_TRUE(drawing);
    EXPECT_EQ(labelColor(*drawing), 0xff000000U);
}

TEST_F(StatusItemsTest, AreDrawnAgainWhenTheirValuesChange) {
    constexpr std::size_t batteryItem = 4;
    Program& running = launch();
    for (std::size_t index = 0; index < everyKey.size(); ++index)
        EXPECT_TRUE(draw(index)) << everyKey[index];
    running.machine.battery->powerSources = std::vector<std::optional<PowerSourceDescription>>{
        PowerSourceDescription{.currentCapacity = 50, .isCharging = false}};
    running.monitor.updateCycle();
    for (std::size_t index = 0; index < everyKey.size(); ++index)
        EXPECT_EQ(draw(index).has_value(), index == batteryItem) << everyKey[index];
}

TEST_F(StatusItemsTest, SayTheirValuesToAssistiveTechnology) {
    program().addItem("cpu").setWords(QStringLiteral("CPU"), QStringLiteral("CPU 12%"));
    EXPECT_EQ(statusItems().at(0).accessibilityLabel, "CPU 12%");
}

TEST_F(StatusItemsTest, ReportTheirFirstPaintingOnce) {
    const QSignalSpy painted(program().statusBar.get(), &StatusBar::firstPainted);
    launch();
    EXPECT_EQ(painted.size(), 0);
    static_cast<void>(draw(0));
    static_cast<void>(draw(1));
    EXPECT_EQ(painted.size(), 1);
}

TEST_F(StatusItemsTest, AreNoneWhenEveryModuleIsHidden) {
    program().showAll(false);
    launch();
    EXPECT_TRUE(statusItems().empty());
    EXPECT_TRUE(popovers().empty());
}

TEST_F(StatusItemsTest, AreAllRemovedAndTheShownOnesRecreatedWhenAModuleIsSwitchedOff) {
    Program& running = launch();
    desktop().deeds.clear();
    running.settings.setShowNetwork(false);
    EXPECT_EQ(statusItems().size(), 6U) << "not before the settings are checked again";
    running.delegate.checkVisibility();
    EXPECT_EQ(itemIdentifiers(), (std::vector<std::string>{"cpu", "memory", "disk", "battery", "sensor"}));
    std::ranges::sort(desktop().deeds); // in which order they go does not matter
    EXPECT_EQ(desktop().deeds,
              (std::vector<std::string>{"remove battery", "remove cpu", "remove disk", "remove memory",
                                        "remove network", "remove sensor"}));
    EXPECT_EQ(popovers().size(), 5U) << "and a popover each";
}

TEST_F(StatusItemsTest, CloseAnOpenPopoverWhenTheyAreRebuilt) {
    Program& running = launch();
    click(cpuItem, MouseButton::left);
    running.settings.setShowNetwork(false);
    running.delegate.checkVisibility();
    EXPECT_EQ(shownPopoverCount(), 0);
    EXPECT_TRUE(running.contentWindows.empty());
    click(cpuItem, MouseButton::left);
    EXPECT_EQ(shownPopover().anchorIdentifier, "cpu");
}

TEST_F(StatusItemsTest, IgnoreAnActionWithoutAnEvent) {
    launch();
    sendActionWithoutEvent(cpuItem);
    EXPECT_EQ(shownPopoverCount(), 0);
    EXPECT_TRUE(desktop().deeds.empty());
}

TEST_F(StatusItemsTest, IgnoreAClickOnAButtonThatHasLostItsIdentifier) {
    launch();
    loseIdentifier(cpuItem);
    click(cpuItem, MouseButton::left);
    click(cpuItem, MouseButton::right);
    EXPECT_TRUE(desktop().deeds.empty());
    click(memoryItem, MouseButton::left);
    EXPECT_EQ(shownPopover().anchorIdentifier, "memory");
}

TEST_F(StatusItemsTest, IgnoreClicksWithoutAHandler) {
    static_cast<void>(program().addItem("clock"));
    click(0, MouseButton::left);
    EXPECT_TRUE(desktop().deeds.empty());
}

TEST_F(StatusItemsTest, AreKeptWithoutAButton) {
    desktop().failCallsTo("status item's button");
    Program& running = launch();
    EXPECT_EQ(statusItems().size(), 6U);
    EXPECT_EQ(running.delegate.statusItems().size(), 6);
    running.monitor.updateCycle();
    running.delegate.togglePopover(*running.delegate.statusItems().first());
    running.delegate.showContextMenu(*running.delegate.statusItems().first());
    EXPECT_EQ(shownPopoverCount(), 0);
    EXPECT_TRUE(desktop().deeds.empty());
}

TEST_F(StatusItemsTest, StayKnownToTheProgramWhenTheSystemRefusesThem) {
    desktop().failCallsTo("statusItemWithLength");
    Program& running = launch();
    EXPECT_TRUE(statusItems().empty());
    EXPECT_EQ(running.delegate.statusItems().size(), 6);
    running.settings.setShowNetwork(false);
    running.delegate.checkVisibility();
    EXPECT_EQ(running.delegate.statusItems().size(), 5);
}

TEST_F(StatusItemsTest, MayBeRemovedByTheirOwnHandler) {
    StatusItem& item = program().addItem("clock");
    item.setClickHandler([this, &item](ClickButton) { program().statusBar->removeItem(item); });
    press(0, MouseButton::left);
    release(0, MouseButton::left);
    EXPECT_TRUE(statusItems().empty());
}

} // namespace
} // namespace orvelle
