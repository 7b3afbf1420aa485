#include "formatting/formatters.h"
#include "support/odd_numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <limits>
#include <random>

namespace orvelle {

void PrintTo(const QString& text, std::ostream* stream) {
    *stream << text.toStdString();
}

namespace {

using namespace Qt::StringLiterals;

QString printed(const char* format, double value) {
    std::array<char, 512> buffer{};
    std::snprintf(buffer.data(), buffer.size(), format, value); // NOLINT: the reference is printf itself
    return QString::fromUtf8(buffer.data());
}

TEST(FormatPercent, WritesOneHundredForOneAndAbove) {
    EXPECT_EQ(formatPercent(1.0), u"100%"_s);
    EXPECT_EQ(formatPercent(1.7), u"100%"_s);
    EXPECT_EQ(formatPercent(infinity), u"100%"_s);
}

TEST(FormatPercent, WritesADecimalBelowTenPercentOnly) {
    EXPECT_EQ(formatPercent(0), u"0.0%"_s);
    EXPECT_EQ(formatPercent(0.051), u"5.1%"_s);
    EXPECT_EQ(formatPercent(0.0999), u"10.0%"_s);
    EXPECT_EQ(formatPercent(0.1), u"10%"_s);
    EXPECT_EQ(formatPercent(0.424), u"42%"_s);
    EXPECT_EQ(formatPercent(0.996), u"100%"_s);
}

TEST(FormatPercent, WritesNegativeAndNonFiniteFractionsAsTheyAre) {
    EXPECT_EQ(formatPercent(-0.5), u"-50.0%"_s);
    EXPECT_EQ(formatPercent(notANumber), u"nan%"_s);
    EXPECT_EQ(formatPercent(-infinity), u"-inf%"_s);
}

TEST(FormatRateCompact, ChangesUnitAt1024) {
    EXPECT_EQ(formatRateCompact(0), u"0.0B"_s);
    EXPECT_EQ(formatRateCompact(99.94), u"99.9B"_s);
    EXPECT_EQ(formatRateCompact(100), u"100B"_s);
    EXPECT_EQ(formatRateCompact(1023), u"1023B"_s);
    EXPECT_EQ(formatRateCompact(1024), u"1.0K"_s);
    EXPECT_EQ(formatRateCompact(102400), u"100K"_s);
    EXPECT_EQ(formatRateCompact(1024.0 * 1024), u"1.0M"_s);
    EXPECT_EQ(formatRateCompact(2.5 * 1024 * 1024 * 1024), u"2.5G"_s);
}

TEST(FormatRateCompact, HasNoUnitAboveG) {
    EXPECT_EQ(formatRateCompact(2048.0 * 1024 * 1024 * 1024), u"2048G"_s);
    EXPECT_EQ(formatRateCompact(infinity), u"infG"_s);
}

TEST(FormatRateCompact, WritesNegativeAndNonFiniteRatesInBytes) {
    EXPECT_EQ(formatRateCompact(-5), u"-5.0B"_s);
    EXPECT_EQ(formatRateCompact(notANumber), u"nanB"_s);
}

TEST(FormatRate, WritesWholeBytesAndOneDecimalAbove) {
    EXPECT_EQ(formatRate(0), u"0 B/s"_s);
    EXPECT_EQ(formatRate(1023), u"1023 B/s"_s);
    EXPECT_EQ(formatRate(1024), u"1.0 KB/s"_s);
    EXPECT_EQ(formatRate(102400), u"100.0 KB/s"_s);
    EXPECT_EQ(formatRate(1.5 * 1024 * 1024), u"1.5 MB/s"_s);
    EXPECT_EQ(formatRate(3000.0 * 1024 * 1024 * 1024), u"3000.0 GB/s"_s);
}

TEST(FormatRate, WritesNegativeAndNonFiniteRatesAsTheyAre) {
    EXPECT_EQ(formatRate(-5), u"-5 B/s"_s);
    EXPECT_EQ(formatRate(notANumber), u"nan B/s"_s);
    EXPECT_EQ(formatRate(infinity), u"inf GB/s"_s);
}

TEST(FormatByteSize, WritesWholeBytesBelow1024) {
    EXPECT_EQ(formatByteSize(0), u"0 B"_s);
    EXPECT_EQ(formatByteSize(1023), u"1023 B"_s);
}

TEST(FormatByteSize, DividesBy1024AtMostFourTimes) {
    EXPECT_EQ(formatByteSize(1024), u"1.0 KB"_s);
    EXPECT_EQ(formatByteSize(1536 * 1024), u"1.5 MB"_s);
    EXPECT_EQ(formatByteSize(quint64{16} << 30), u"16.0 GB"_s);
    EXPECT_EQ(formatByteSize(quint64{3} << 40), u"3.0 TB"_s);
    EXPECT_EQ(formatByteSize(quint64{2048} << 40), u"2048.0 TB"_s);
    EXPECT_EQ(formatByteSize(std::numeric_limits<quint64>::max()), u"16777216.0 TB"_s);
}

TEST(FormatTemperature, ConvertsToFahrenheitWhenAsked) {
    EXPECT_EQ(formatTemperature(45.4, false), u"45°C"_s);
    EXPECT_EQ(formatTemperature(45, true), u"113°F"_s);
    EXPECT_EQ(formatTemperature(-40, true), u"-40°F"_s);
    EXPECT_EQ(formatTemperature(notANumber, false), u"nan°C"_s);
}

TEST(Formatters, RoundHalvesAsPrintfDoes) {
    EXPECT_EQ(formatTemperature(44.5, false), u"44°C"_s);
    EXPECT_EQ(formatTemperature(45.5, false), u"46°C"_s);
    EXPECT_EQ(formatRateCompact(0.25), u"0.2B"_s);
    EXPECT_EQ(formatRateCompact(0.75), u"0.8B"_s);
}

TEST(Formatters, AgreeWithPrintfOnManyNumbers) {
    std::mt19937_64 random(20260101);
    std::uniform_real_distribution<double> below100(-100, 100);
    for (int round = 0; round < 2000; ++round) {
        const double value = below100(random);
        EXPECT_EQ(formatRateCompact(value), printed("%.1fB", value));
        EXPECT_EQ(formatTemperature(value, false), printed("%.0f°C", value));
    }
}

TEST(Formatters, WriteAFullStopWhereTheLocaleWritesAComma) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "the machine has no German locale";
    const QString germanPrintf = printed("%.1f", 1.5);
    EXPECT_EQ(formatPercent(0.051), u"5.1%"_s);
    EXPECT_EQ(formatRateCompact(1536), u"1.5K"_s);
    EXPECT_EQ(formatRate(1536), u"1.5 KB/s"_s);
    EXPECT_EQ(formatByteSize(1536), u"1.5 KB"_s);
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(germanPrintf, u"1,5"_s) << "the locale must have been in force";
}

} // namespace
} // namespace orvelle
