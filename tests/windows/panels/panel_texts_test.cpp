#include "windows/panels/panel_texts.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace orvelle {
namespace {

TEST(Uptime, ShowsMinutesBelowAnHour) {
    EXPECT_EQ(formatUptime(0), QStringLiteral("0m"));
    EXPECT_EQ(formatUptime(59), QStringLiteral("0m"));
    EXPECT_EQ(formatUptime(3599.9), QStringLiteral("59m"));
}

TEST(Uptime, ShowsHoursAndDaysFromTheFirstOn) {
    EXPECT_EQ(formatUptime(3600), QStringLiteral("1h 0m"));
    EXPECT_EQ(formatUptime(86399), QStringLiteral("23h 59m"));
    EXPECT_EQ(formatUptime(86400), QStringLiteral("1d 0h 0m"));
    EXPECT_EQ(formatUptime(90061), QStringLiteral("1d 1h 1m"));
    EXPECT_EQ(formatUptime(93780), QStringLiteral("1d 2h 3m"));
}

TEST(UptimeDeathTest, StopsAtANumberThatIsNoTime) {
    EXPECT_DEATH(static_cast<void>(formatUptime(std::numeric_limits<double>::infinity())), "truncation");
    EXPECT_DEATH(static_cast<void>(formatUptime(1e19)), "truncation");
}

TEST(TimeRemaining, IsCalculatedWhileItIsNotKnown) {
    EXPECT_EQ(formatTimeRemaining(-1), QStringLiteral("Calculating..."));
}

TEST(TimeRemaining, ShowsHoursFromSixtyMinutesOn) {
    EXPECT_EQ(formatTimeRemaining(0), QStringLiteral("0 min remaining"));
    EXPECT_EQ(formatTimeRemaining(59), QStringLiteral("59 min remaining"));
    EXPECT_EQ(formatTimeRemaining(60), QStringLiteral("1:00 remaining"));
    EXPECT_EQ(formatTimeRemaining(125), QStringLiteral("2:05 remaining"));
}

TEST(ByteSize, IsAWholeNumberBelow1024) {
    EXPECT_EQ(byteSizeText(0), QStringLiteral("0 B"));
    EXPECT_EQ(byteSizeText(1023), QStringLiteral("1023 B"));
}

TEST(ByteSize, IsDividedBy1024AtMostFourTimes) {
    EXPECT_EQ(byteSizeText(1024), QStringLiteral("1.0 KB"));
    EXPECT_EQ(byteSizeText(1536 * 1024), QStringLiteral("1.5 MB"));
    EXPECT_EQ(byteSizeText(quint64{16} << 30), QStringLiteral("16.0 GB"));
    EXPECT_EQ(byteSizeText(quint64{3} << 40), QStringLiteral("3.0 TB"));
    EXPECT_EQ(byteSizeText(quint64{2048} << 40), QStringLiteral("2048.0 TB"));
    EXPECT_EQ(byteSizeText(std::numeric_limits<quint64>::max()), QStringLiteral("16777216.0 TB"));
}

TEST(Percentages, HaveOneDecimal) {
    EXPECT_EQ(percentText(12.34), QStringLiteral("12.3%"));
    EXPECT_EQ(percentText(800), QStringLiteral("800.0%"));
}

TEST(LoadAverages, StandTwoSpacesApart) {
    EXPECT_EQ(loadAveragesText(1.5, 1.25, 1), QStringLiteral("1.50  1.25  1.00"));
}

TEST(Measures, HaveTheirUnit) {
    EXPECT_EQ(measureText(12.5, 2, QStringLiteral("V")), QStringLiteral("12.50 V"));
    EXPECT_EQ(measureText(-1480.4, 0, QStringLiteral("mA")), QStringLiteral("-1480 mA"));
}

TEST(PowerState, IsChargingBeforeItIsFull) {
    EXPECT_EQ(powerStateText(true, true), QStringLiteral("Charging"));
    EXPECT_EQ(powerStateText(false, true), QStringLiteral("Full"));
    EXPECT_EQ(powerStateText(false, false), QStringLiteral("On Battery"));
}

TEST(MainsPower, IsToldOfAMachineByItsWord) {
    EXPECT_EQ(mainsPowerNotice(QStringLiteral("Mac")), QStringLiteral("This Mac is running on AC power"));
    EXPECT_EQ(mainsPowerNotice(QStringLiteral("computer")),
              QStringLiteral("This computer is running on AC power"));
}

TEST(PanelTexts, DoNotFollowTheLocale) {
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed";
    EXPECT_EQ(byteSizeText(1536), QStringLiteral("1.5 KB"));
    EXPECT_EQ(percentText(12.34), QStringLiteral("12.3%"));
    EXPECT_EQ(loadAveragesText(1.5, 1.25, 1), QStringLiteral("1.50  1.25  1.00"));
    EXPECT_EQ(measureText(12.5, 1, QStringLiteral("W")), QStringLiteral("12.5 W"));
    std::setlocale(LC_ALL, "C.UTF-8");
}

} // namespace
} // namespace orvelle
