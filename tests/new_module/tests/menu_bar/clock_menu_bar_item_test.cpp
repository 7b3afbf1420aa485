#include "core/system_monitor.h"
#include "item_fixture.h"
#include "menu_bar/modules.h"
#include "platform/replay/fake_sources.h"

namespace orvelle {
namespace {

class ClockMenuBarItemTest : public ItemFixture {
protected:
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};

    [[nodiscard]] ItemScene scene() { return makeScene(ModuleId::clock, {monitor, settings, themes}); }
};

TEST_F(ClockMenuBarItemTest, ShowsTheTicksInItsOwnColour) {
    monitor.updateCycle();
    EXPECT_EQ(scene().accessibleName, QStringLiteral("Clock"));
    EXPECT_EQ(scene().accessibleText, QStringLiteral("Clock 1"));
    settings.setCustomClockColorHex(QStringLiteral("#FF0000"));
    settings.setUseCustomClockColor(true);
    EXPECT_EQ(themes.clockColor(settings), QColor(255, 0, 0));
    EXPECT_EQ(
        scene().body,
        row({iconNode(QStringLiteral("network"), QColor(255, 0, 0)), valueNode(QStringLiteral("1"))}, 2));
}

} // namespace
} // namespace orvelle
