#include "platform/linux/text.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

TEST(Text, LinesAndWordsAreTakenInTurn) {
    std::string_view text = "  one\ttwo \nthree";
    std::string_view line = takeLine(text);
    EXPECT_EQ(takeWord(line), "one");
    EXPECT_EQ(takeWord(line), "two");
    EXPECT_EQ(takeWord(line), "");
    EXPECT_EQ(takeLine(text), "three");
    EXPECT_EQ(takeLine(text), "");
    EXPECT_TRUE(text.empty());
}

TEST(Text, NumbersThatDoNotFitAreTheLargestOfTheirType) {
    EXPECT_EQ(parseNumber<std::uint64_t>("18446744073709551616"), ~std::uint64_t{0});
    EXPECT_EQ(parseNumber<int>("-99999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(parseNumber<int>("42kB"), 42);
    EXPECT_EQ(parseNumber<int>(""), std::nullopt);
    EXPECT_EQ(parseNumber<std::uint64_t>("-1"), std::nullopt);
}

TEST(Text, SaturatingArithmeticStaysAtItsLimits) {
    constexpr std::uint64_t largest = ~std::uint64_t{0};
    EXPECT_EQ(saturatingAdd(largest, 1), largest);
    EXPECT_EQ(saturatingAdd(1, 2), 3u);
    EXPECT_EQ(saturatingMultiply(largest, 2), largest);
    EXPECT_EQ(saturatingMultiply(3, 0), 0u);
    EXPECT_EQ(saturatingSubtract(1, 2), 0u);
}

TEST(Text, DigitsAreOneOrMoreAndNothingElse) {
    EXPECT_TRUE(isDigits("0"));
    EXPECT_TRUE(isDigits("0123456789"));
    for (const char* text : {"", " 1", "1 ", "-1", "1.5", "0x1", "a"})
        EXPECT_FALSE(isDigits(text)) << text;
}

TEST(Text, TrimmingTakesBlanksFromBothEnds) {
    EXPECT_EQ(trimmed(" \t a b \n"), "a b");
    EXPECT_EQ(trimmed(" \n"), "");
}

TEST(Escapes, OctalOnesStandForBytes) {
    EXPECT_EQ(withoutOctalEscapes("/mnt/My\\040Disk\\011\\012\\134"), "/mnt/My Disk\t\n\\");
    EXPECT_EQ(withoutOctalEscapes("/mnt/B\\303\\274cher"), "/mnt/B\xC3\xBC"
                                                           "cher");
    EXPECT_EQ(withoutOctalEscapes("\\134040"), "\\040"); // replaced once, not again
}

TEST(Escapes, WhatIsNoOctalEscapeStays) {
    for (const char* text : {"", "\\", "\\04", "\\08x", "\\777", "\\-10", "a\\x20"})
        EXPECT_EQ(withoutOctalEscapes(text), text);
}

TEST(Escapes, HexadecimalOnesStandForBytes) {
    EXPECT_EQ(withoutHexEscapes("My\\x20Disk\\x2f"), "My Disk/");
    for (const char* text : {"", "\\x", "\\x2", "\\xg0", "\\040", "x20"})
        EXPECT_EQ(withoutHexEscapes(text), text);
}

} // namespace
} // namespace orvelle::linux_platform
