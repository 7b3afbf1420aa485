#include "menu_bar/battery_item_rules.h"
#include "theme/system_colors.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

const QColor batteryModuleColor(40, 80, 120);

qsizetype litBatteryDots(qint64 charge) {
    return batteryDotColors(charge, batteryModuleColor).count(batteryModuleColor);
}

TEST(BatteryColor, WarnsOfALowCharge) {
    EXPECT_EQ(batteryColor(0, false, batteryModuleColor), SystemColors::red);
    EXPECT_EQ(batteryColor(20, false, batteryModuleColor), SystemColors::red);
    EXPECT_EQ(batteryColor(21, false, batteryModuleColor), SystemColors::yellow);
    EXPECT_EQ(batteryColor(40, false, batteryModuleColor), SystemColors::yellow);
    EXPECT_EQ(batteryColor(41, false, batteryModuleColor), batteryModuleColor);
    EXPECT_EQ(batteryColor(100, false, batteryModuleColor), batteryModuleColor);
}

TEST(BatteryColor, IsGreenWheneverCharging) {
    for (const qint64 charge : {0, 20, 21, 41, 100})
        EXPECT_EQ(batteryColor(charge, true, batteryModuleColor), SystemColors::green);
}

TEST(BatteryFill, GrowsWithTheChargeUpToEighteenPoints) {
    EXPECT_EQ(batteryFillWidth(0), 0);
    EXPECT_EQ(batteryFillWidth(50), 9);
    EXPECT_EQ(batteryFillWidth(100), 18);
}

TEST(BatteryFill, StaysWithinTheGlyphWhateverTheBatterySays) {
    EXPECT_EQ(batteryFillWidth(-5), 0);
    EXPECT_EQ(batteryFillWidth(130), 18);
    EXPECT_EQ(batteryFillWidth(std::numeric_limits<qint64>::max()), 18);
}

TEST(BatteryDots, LightOneForEachFullFifth) {
    EXPECT_EQ(litBatteryDots(0), 0);
    EXPECT_EQ(litBatteryDots(19), 0);
    EXPECT_EQ(litBatteryDots(20), 1);
    EXPECT_EQ(litBatteryDots(60), 3);
    EXPECT_EQ(litBatteryDots(99), 4);
    EXPECT_EQ(litBatteryDots(100), 5);
    EXPECT_EQ(litBatteryDots(std::numeric_limits<qint64>::max()), 5);
    EXPECT_EQ(batteryDotColors(0, batteryModuleColor).size(), 5);
}

} // namespace
} // namespace orvelle
