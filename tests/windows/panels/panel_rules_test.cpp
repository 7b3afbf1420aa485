#include "core/network_monitor.h"
#include "core/process_monitor.h"
#include "theme/colors.h"
#include "windows/panels/panel_rules.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QColor moduleColor(40, 80, 120);

ProcessInfo processOf(double cpuUsage, quint64 memoryBytes = 0, double memoryPercent = 0) {
    ProcessInfo process;
    process.cpuUsage = cpuUsage;
    process.memoryBytes = memoryBytes;
    process.memoryPercent = memoryPercent;
    return process;
}

TEST(MemoryPressure, WarnsFromSixTenthsAndIsCriticalFromEight) {
    EXPECT_EQ(pressureLevel(0), PressureLevel::normal);
    EXPECT_EQ(pressureLevel(0.599), PressureLevel::normal);
    EXPECT_EQ(pressureLevel(0.6), PressureLevel::warning);
    EXPECT_EQ(pressureLevel(0.799), PressureLevel::warning);
    EXPECT_EQ(pressureLevel(0.8), PressureLevel::critical);
}

TEST(MemoryPressure, HasABadge) {
    EXPECT_EQ(pressureBadgeText(PressureLevel::normal), QStringLiteral("Normal"));
    EXPECT_EQ(pressureBadgeText(PressureLevel::warning), QStringLiteral("Warning"));
    EXPECT_EQ(pressureBadgeText(PressureLevel::critical), QStringLiteral("Critical"));
    EXPECT_EQ(pressureBadgeColor(PressureLevel::normal), SystemColors::green);
    EXPECT_EQ(pressureBadgeColor(PressureLevel::warning), SystemColors::yellow);
    EXPECT_EQ(pressureBadgeColor(PressureLevel::critical), SystemColors::red);
}

TEST(MemoryPressure, IsDrawnInTheModulesColourWhileItIsNormal) {
    EXPECT_EQ(pressureGraphColor(PressureLevel::normal, moduleColor), moduleColor);
    EXPECT_EQ(pressureGraphColor(PressureLevel::warning, moduleColor), SystemColors::yellow);
    EXPECT_EQ(pressureGraphColor(PressureLevel::critical, moduleColor), SystemColors::red);
}

TEST(Volume, TurnsYellowAtSeventyPercentAndRedAtNinety) {
    EXPECT_EQ(volumeUsageColor(0, moduleColor), moduleColor);
    EXPECT_EQ(volumeUsageColor(0.699, moduleColor), moduleColor);
    EXPECT_EQ(volumeUsageColor(0.7, moduleColor), SystemColors::yellow);
    EXPECT_EQ(volumeUsageColor(0.899, moduleColor), SystemColors::yellow);
    EXPECT_EQ(volumeUsageColor(0.9, moduleColor), SystemColors::red);
}

TEST(BatteryHealth, IsGreenAboveEightTenthsAndYellowAboveSix) {
    EXPECT_EQ(batteryHealthColor(1.02), SystemColors::green);
    EXPECT_EQ(batteryHealthColor(0.801), SystemColors::green);
    EXPECT_EQ(batteryHealthColor(0.8), SystemColors::yellow);
    EXPECT_EQ(batteryHealthColor(0.601), SystemColors::yellow);
    EXPECT_EQ(batteryHealthColor(0.6), SystemColors::red);
}

TEST(SharedGraphScale, IsAtLeast1024) {
    EXPECT_EQ(sharedGraphScale({}, {}), 1024);
    EXPECT_EQ(sharedGraphScale({0, 1000}, {3}), 1024);
}

TEST(SharedGraphScale, IsTheLargestSampleOfEitherHistory) {
    EXPECT_EQ(sharedGraphScale({0, 1048576, 5}, {2000}), 1048576);
    EXPECT_EQ(sharedGraphScale({2000}, {1048576}), 1048576);
}

TEST(ProcessBars, AreScaledToTheLargestOfTheList) {
    EXPECT_EQ(processBarScale({}, ProcessDisplayMode::cpu), 100);
    EXPECT_EQ(processBarScale({processOf(0), processOf(0)}, ProcessDisplayMode::cpu), 1);
    EXPECT_EQ(processBarScale({processOf(12), processOf(250)}, ProcessDisplayMode::cpu), 250);
    EXPECT_EQ(processBarScale({processOf(250, 0, 7), processOf(0, 0, 3)}, ProcessDisplayMode::memory), 7);
}

TEST(ProcessBars, FillByTheirShareOfTheScale) {
    EXPECT_EQ(processBarFraction(0, 1), 0);
    EXPECT_DOUBLE_EQ(processBarFraction(0.25, 1), 0.25);
    EXPECT_EQ(processBarFraction(800, 800), 1);
    EXPECT_EQ(processBarFraction(5, 2), 1);
    EXPECT_EQ(processBarFraction(5, 0), 0);
}

TEST(ProcessValue, IsAPercentageOrASize) {
    EXPECT_EQ(processValueText(processOf(800), ProcessDisplayMode::cpu), QStringLiteral("800.0%"));
    EXPECT_EQ(processValueText(processOf(3, 3 << 20), ProcessDisplayMode::memory), QStringLiteral("3.0 MB"));
}

TEST(FanIcon, StandsStillWithItsFan) {
    EXPECT_FALSE(isFanTurning(0));
    EXPECT_EQ(fanTurnSeconds(0), 0);
    EXPECT_EQ(displayedFanAngle(40, 0), 0);
}

TEST(FanIcon, TurnsFasterWithItsFanUpToTwiceASecond) {
    EXPECT_DOUBLE_EQ(fanTurnSeconds(1500), 2);
    EXPECT_DOUBLE_EQ(fanTurnSeconds(6000), 0.5);
    EXPECT_DOUBLE_EQ(fanTurnSeconds(9000), 0.5);
}

TEST(FanIcon, IsAheadOfItsAngleByItsSpeed) {
    EXPECT_DOUBLE_EQ(displayedFanAngle(40, 3000), 58);
    EXPECT_DOUBLE_EQ(displayedFanAngle(0, 1500), 9);
}

QString symbolOf(const char* name, InterfaceKind kind = InterfaceKind::unknown) {
    NetworkInterfaceInfo info;
    info.name = QString::fromLatin1(name);
    info.kind = kind;
    return interfaceSymbol(info);
}

TEST(PanelSymbols, TellTheFirstInterfaceFromTheOthersWhereNoKindIsKnown) {
    EXPECT_EQ(symbolOf("en0"), QStringLiteral("wifi"));
    EXPECT_EQ(symbolOf("en1"), QStringLiteral("cable.connector"));
    EXPECT_EQ(symbolOf("bridge0"), QStringLiteral("cable.connector"));
}

TEST(PanelSymbols, TellWiFiFromTheOtherKinds) {
    EXPECT_EQ(symbolOf("wlp3s0", InterfaceKind::wifi), QStringLiteral("wifi"));
    EXPECT_EQ(symbolOf("en0", InterfaceKind::ethernet), QStringLiteral("cable.connector"));
    for (const InterfaceKind kind :
         {InterfaceKind::bridge, InterfaceKind::vpnTunnel, InterfaceKind::cellular})
        EXPECT_EQ(symbolOf("x0", kind), QStringLiteral("cable.connector"));
}

TEST(PanelSymbols, TellTheStartUpVolumeFromTheOthers) {
    EXPECT_EQ(volumeSymbol(QStringLiteral("/")), QStringLiteral("internaldrive"));
    EXPECT_EQ(volumeSymbol(QStringLiteral("/home")), QStringLiteral("externaldrive"));
}

} // namespace
} // namespace orvelle
