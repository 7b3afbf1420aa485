#include "windows/panels/panel_graphics.h"
#include "windows/panels/panel_texts.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace orvelle {
namespace {

TEST(Uptime, ShowsMinutesBelowAnHour) {
    EXPECT_EQ(PanelTexts::formatUptime(0), QStringLiteral("0m"));
    EXPECT_EQ(PanelTexts::formatUptime(59), QStringLiteral("0m"));
    EXPECT_EQ(PanelTexts::formatUptime(3599.9), QStringLiteral("59m"));
}

TEST(Uptime, ShowsHoursAndDaysFromTheFirstOn) {
    EXPECT_EQ(PanelTexts::formatUptime(3600), QStringLiteral("1h 0m"));
    EXPECT_EQ(PanelTexts::formatUptime(86399), QStringLiteral("23h 59m"));
    EXPECT_EQ(PanelTexts::formatUptime(86400), QStringLiteral("1d 0h 0m"));
    EXPECT_EQ(PanelTexts::formatUptime(90061), QStringLiteral("1d 1h 1m"));
    EXPECT_EQ(PanelTexts::formatUptime(93780), QStringLiteral("1d 2h 3m"));
}

TEST(UptimeDeathTest, StopsTheProcessAtANumberThatIsNotATime) {
    EXPECT_DEATH(static_cast<void>(PanelTexts::formatUptime(std::numeric_limits<double>::infinity())),
                 "truncation");
    EXPECT_DEATH(static_cast<void>(PanelTexts::formatUptime(1e19)), "truncation");
}

TEST(TimeRemaining, IsCalculatedWhileItIsNotKnown) {
    EXPECT_EQ(PanelTexts::formatTimeRemaining(-1), QStringLiteral("Calculating..."));
}

TEST(TimeRemaining, ShowsHoursFromSixtyMinutesOn) {
    EXPECT_EQ(PanelTexts::formatTimeRemaining(0), QStringLiteral("0 min remaining"));
    EXPECT_EQ(PanelTexts::formatTimeRemaining(59), QStringLiteral("59 min remaining"));
    EXPECT_EQ(PanelTexts::formatTimeRemaining(60), QStringLiteral("1:00 remaining"));
    EXPECT_EQ(PanelTexts::formatTimeRemaining(125), QStringLiteral("2:05 remaining"));
}

TEST(Percentages, HaveOneDecimal) {
    EXPECT_EQ(PanelTexts::percentText(12.34), QStringLiteral("12.3%"));
    EXPECT_EQ(PanelTexts::percentText(800), QStringLiteral("800.0%"));
}

TEST(LoadAverages, StandTwoSpacesApart) {
    EXPECT_EQ(PanelTexts::loadAveragesText(1.5, 1.25, 1), QStringLiteral("1.50  1.25  1.00"));
}

TEST(Measures, HaveTheirUnit) {
    EXPECT_EQ(PanelTexts::measureText(12.5, 2, QStringLiteral("V")), QStringLiteral("12.50 V"));
    EXPECT_EQ(PanelTexts::measureText(-1480.4, 0, QStringLiteral("mA")), QStringLiteral("-1480 mA"));
}

TEST(PowerState, IsChargingBeforeItIsFull) {
    EXPECT_EQ(PanelTexts::powerStateText(true, true), QStringLiteral("Charging"));
    EXPECT_EQ(PanelTexts::powerStateText(false, true), QStringLiteral("Full"));
    EXPECT_EQ(PanelTexts::powerStateText(false, false), QStringLiteral("On Battery"));
}

TEST(MainsPower, NamesTheMachineAsPeopleDoUnderThisSystem) {
    EXPECT_EQ(PanelTexts::mainsPowerNotice(),
              QStringLiteral("This " ORVELLE_EXPECTED_MACHINE_WORD " is running on AC power"));
}

TEST(PressureBadge, NamesTheLevel) {
    EXPECT_EQ(PanelTexts::pressureBadgeText(0.5), QStringLiteral("Normal"));
    EXPECT_EQ(PanelTexts::pressureBadgeText(0.6), QStringLiteral("Warning"));
    EXPECT_EQ(PanelTexts::pressureBadgeText(0.8), QStringLiteral("Critical"));
}

TEST(ProcessValue, IsAPercentageOrASize) {
    ProcessInfo process;
    process.cpuUsage = 800;
    process.memoryBytes = 3 << 20;
    const auto text = [&](bool isByMemory) { return PanelTexts::processValueText(process, isByMemory); };
    EXPECT_EQ(text(false), QStringLiteral("800.0%"));
    EXPECT_EQ(text(true), QStringLiteral("3.0 MB"));
}

TEST(VolumeUsed, IsTheTotalWithoutTheFreeSpace) {
    DiskVolumeInfo volume;
    volume.totalSpace = 3072;
    volume.freeSpace = 1024;
    EXPECT_EQ(PanelTexts::volumeUsedText(volume), QStringLiteral("2.0 KB used"));
}

TEST(PanelTexts, DoNotFollowTheLocale) {
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    EXPECT_EQ(PanelTexts::percentText(12.34), QStringLiteral("12.3%"));
    EXPECT_EQ(PanelTexts::loadAveragesText(1.5, 1.25, 1), QStringLiteral("1.50  1.25  1.00"));
    EXPECT_EQ(PanelTexts::measureText(12.5, 1, QStringLiteral("W")), QStringLiteral("12.5 W"));
    std::setlocale(LC_ALL, "C.UTF-8");
}

} // namespace
} // namespace orvelle
