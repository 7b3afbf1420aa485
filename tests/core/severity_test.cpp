#include "core/severity.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(Severity, ABusyProcessorWarnsFromAHalfAndIsCriticalFromThreeQuarters) {
    EXPECT_EQ(processorSeverity(0), Severity::normal);
    EXPECT_EQ(processorSeverity(0.499), Severity::normal);
    EXPECT_EQ(processorSeverity(0.5), Severity::warning);
    EXPECT_EQ(processorSeverity(0.749), Severity::warning);
    EXPECT_EQ(processorSeverity(0.75), Severity::critical);
}

TEST(Severity, PressureOnMemoryWarnsFromSixTenthsAndIsCriticalFromEight) {
    EXPECT_EQ(memorySeverity(0), Severity::normal);
    EXPECT_EQ(memorySeverity(0.599), Severity::normal);
    EXPECT_EQ(memorySeverity(0.6), Severity::warning);
    EXPECT_EQ(memorySeverity(0.799), Severity::warning);
    EXPECT_EQ(memorySeverity(0.8), Severity::critical);
}

TEST(Severity, AVolumeWarnsFromSevenTenthsAndIsCriticalFromNine) {
    EXPECT_EQ(volumeSeverity(0.699), Severity::normal);
    EXPECT_EQ(volumeSeverity(0.7), Severity::warning);
    EXPECT_EQ(volumeSeverity(0.899), Severity::warning);
    EXPECT_EQ(volumeSeverity(0.9), Severity::critical);
}

TEST(Severity, ABatteryWarnsUpToFortyPercentAndIsCriticalUpToTwenty) {
    EXPECT_EQ(batterySeverity(41, false), Severity::normal);
    EXPECT_EQ(batterySeverity(40, false), Severity::warning);
    EXPECT_EQ(batterySeverity(21, false), Severity::warning);
    EXPECT_EQ(batterySeverity(20, false), Severity::critical);
}

TEST(Severity, ABatteryThatChargesIsNoWorry) {
    EXPECT_EQ(batterySeverity(1, true), Severity::normal);
}

TEST(Severity, AHotProcessorWarnsFromSixtyDegreesAndIsCriticalFromEighty) {
    EXPECT_EQ(temperatureSeverity(59.9), Severity::normal);
    EXPECT_EQ(temperatureSeverity(60), Severity::warning);
    EXPECT_EQ(temperatureSeverity(79.9), Severity::warning);
    EXPECT_EQ(temperatureSeverity(80), Severity::critical);
}

} // namespace
} // namespace orvelle
