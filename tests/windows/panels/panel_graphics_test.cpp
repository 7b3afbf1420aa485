#include "theme/colors.h"
#include "windows/panels/panel_graphics.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QColor moduleColor(40, 80, 120);

constexpr bool byCPU = false;
constexpr bool byMemory = true;

ProcessInfo processOf(double cpuUsage, double memoryPercent = 0) {
    ProcessInfo process;
    process.cpuUsage = cpuUsage;
    process.memoryPercent = memoryPercent;
    return process;
}

TEST(MemoryPressure, ColoursItsBadge) {
    EXPECT_EQ(PanelGraphics::pressureBadgeColor(0.5), SystemColors::green);
    EXPECT_EQ(PanelGraphics::pressureBadgeColor(0.6), SystemColors::yellow);
    EXPECT_EQ(PanelGraphics::pressureBadgeColor(0.8), SystemColors::red);
}

TEST(MemoryPressure, IsDrawnInTheModulesColourWhileItIsNormal) {
    EXPECT_EQ(PanelGraphics::pressureGraphColor(0.5, moduleColor), moduleColor);
    EXPECT_EQ(PanelGraphics::pressureGraphColor(0.6, moduleColor), SystemColors::yellow);
    EXPECT_EQ(PanelGraphics::pressureGraphColor(0.8, moduleColor), SystemColors::red);
}

TEST(Volume, TurnsYellowAtSeventyPercentAndRedAtNinety) {
    EXPECT_EQ(PanelGraphics::volumeUsageColor(0, moduleColor), moduleColor);
    EXPECT_EQ(PanelGraphics::volumeUsageColor(0.699, moduleColor), moduleColor);
    EXPECT_EQ(PanelGraphics::volumeUsageColor(0.7, moduleColor), SystemColors::yellow);
    EXPECT_EQ(PanelGraphics::volumeUsageColor(0.899, moduleColor), SystemColors::yellow);
    EXPECT_EQ(PanelGraphics::volumeUsageColor(0.9, moduleColor), SystemColors::red);
}

TEST(BatteryHealth, IsGreenAboveEightTenthsAndYellowAboveSix) {
    EXPECT_EQ(PanelGraphics::batteryHealthColor(1.02), SystemColors::green);
    EXPECT_EQ(PanelGraphics::batteryHealthColor(0.801), SystemColors::green);
    EXPECT_EQ(PanelGraphics::batteryHealthColor(0.8), SystemColors::yellow);
    EXPECT_EQ(PanelGraphics::batteryHealthColor(0.601), SystemColors::yellow);
    EXPECT_EQ(PanelGraphics::batteryHealthColor(0.6), SystemColors::red);
}

TEST(SharedGraphScale, IsAtLeast1024) {
    EXPECT_EQ(PanelGraphics::sharedGraphScale({}, {}), 1024);
    EXPECT_EQ(PanelGraphics::sharedGraphScale({0, 1000}, {3}), 1024);
}

TEST(SharedGraphScale, IsTheLargestSampleOfEitherHistory) {
    EXPECT_EQ(PanelGraphics::sharedGraphScale({0, 1048576, 5}, {2000}), 1048576);
    EXPECT_EQ(PanelGraphics::sharedGraphScale({2000}, {1048576}), 1048576);
}

double barScale(const QList<ProcessInfo>& processes, bool isByMemory) {
    return PanelGraphics::processBarScale(QVariant::fromValue(processes), isByMemory);
}

TEST(ProcessBars, AreScaledToTheLargestOfTheList) {
    EXPECT_EQ(barScale({}, byCPU), 100);
    EXPECT_EQ(barScale({processOf(0), processOf(0)}, byCPU), 1);
    EXPECT_EQ(barScale({processOf(12), processOf(250)}, byCPU), 250);
    EXPECT_EQ(barScale({processOf(250, 7), processOf(0, 3)}, byMemory), 7);
}

// Before Qt 6.5 a QML property of type `var` passes such a list.
TEST(ProcessBars, AreScaledToTheLargestOfAListOfVariants) {
    const QVariantList processes{QVariant::fromValue(processOf(12)), QVariant::fromValue(processOf(250))};
    EXPECT_EQ(PanelGraphics::processBarScale(processes, byCPU), 250);
}

TEST(ProcessBars, FillByTheirShareOfTheScale) {
    EXPECT_EQ(PanelGraphics::processBarFraction(processOf(0), byCPU, 1), 0);
    EXPECT_DOUBLE_EQ(PanelGraphics::processBarFraction(processOf(0.25), byCPU, 1), 0.25);
    EXPECT_EQ(PanelGraphics::processBarFraction(processOf(800), byCPU, 800), 1);
    EXPECT_EQ(PanelGraphics::processBarFraction(processOf(5), byCPU, 2), 1);
    EXPECT_EQ(PanelGraphics::processBarFraction(processOf(5), byCPU, 0), 0);
    EXPECT_EQ(PanelGraphics::processBarFraction(processOf(5, 1), byMemory, 2), 0.5);
}

TEST(FanIcon, StandsStillWithItsFan) {
    EXPECT_FALSE(PanelGraphics::isFanTurning(0));
    EXPECT_EQ(PanelGraphics::fanTurnSeconds(0), 0);
    EXPECT_EQ(PanelGraphics::displayedFanAngle(40, 0), 0);
}

TEST(FanIcon, TurnsFasterWithItsFanUpToTwiceASecond) {
    EXPECT_DOUBLE_EQ(PanelGraphics::fanTurnSeconds(1500), 2);
    EXPECT_DOUBLE_EQ(PanelGraphics::fanTurnSeconds(6000), 0.5);
    EXPECT_DOUBLE_EQ(PanelGraphics::fanTurnSeconds(9000), 0.5);
}

TEST(FanIcon, AddsToItsAngleByItsSpeed) {
    EXPECT_DOUBLE_EQ(PanelGraphics::displayedFanAngle(40, 3000), 58);
    EXPECT_DOUBLE_EQ(PanelGraphics::displayedFanAngle(0, 1500), 9);
}

QString symbolOf(const char* name, InterfaceKind kind = InterfaceKind::unknown) {
    NetworkInterfaceInfo info;
    info.name = QString::fromLatin1(name);
    info.kind = kind;
    return PanelGraphics::interfaceSymbol(info);
}

TEST(InterfaceSymbol, IsWiFiForTheFirstInterfaceWhenNoKindIsKnown) {
    EXPECT_EQ(symbolOf("en0"), QStringLiteral("wifi"));
    EXPECT_EQ(symbolOf("en1"), QStringLiteral("cable.connector"));
    EXPECT_EQ(symbolOf("bridge0"), QStringLiteral("cable.connector"));
}

TEST(InterfaceSymbol, FollowsTheKindWhenItIsKnown) {
    EXPECT_EQ(symbolOf("wlp3s0", InterfaceKind::wifi), QStringLiteral("wifi"));
    EXPECT_EQ(symbolOf("en0", InterfaceKind::ethernet), QStringLiteral("cable.connector"));
    for (const InterfaceKind kind :
         {InterfaceKind::bridge, InterfaceKind::vpnTunnel, InterfaceKind::cellular})
        EXPECT_EQ(symbolOf("x0", kind), QStringLiteral("cable.connector"));
}

TEST(VolumeSymbol, IsAnInternalDriveForTheRootOnly) {
    EXPECT_EQ(PanelGraphics::volumeSymbol(QStringLiteral("/")), QStringLiteral("internaldrive"));
    EXPECT_EQ(PanelGraphics::volumeSymbol(QStringLiteral("/home")), QStringLiteral("externaldrive"));
}

} // namespace
} // namespace orvelle
