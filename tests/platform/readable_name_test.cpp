#include "platform/readable_name.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(AssignReadableName, ReplacesTheTextAndReusesItsMemory) {
    std::string name = "a name that is too long to be stored in the string itself";
    const char* const memory = name.data();
    assignReadableName(name, "another\nname that is stored beside the string");
    EXPECT_EQ(name, "another name that is stored beside the string");
    EXPECT_EQ(name.data(), memory);
    assignReadableName(name, "");
    EXPECT_EQ(name, "");
}

TEST(ReadableName, LeavesAnOrdinaryNameAsItIs) {
    EXPECT_EQ(readableName(""), "");
    EXPECT_EQ(readableName("eth0"), "eth0");
    EXPECT_EQ(readableName("/media/B\xC3\xBC"
                           "cher \xE6\x9C\xAC \xF0\x9F\x92\xBE"),
              "/media/B\xC3\xBC"
              "cher \xE6\x9C\xAC \xF0\x9F\x92\xBE");
}

TEST(ReadableName, PutsEverythingOnOneLineWithoutControlCharacters) {
    EXPECT_EQ(readableName("a\nb\tc\x1B[1m\x7F"
                           "d"),
              "a b c [1m d");
    EXPECT_EQ(readableName("a\xC2\x85"
                           "b\xC2\x9B"
                           "c"),
              "a b c"); // U+0085, U+009B
    EXPECT_EQ(readableName("a\xE2\x80\xA8"
                           "b\xE2\x80\xA9"
                           "c"),
              "a b c"); // U+2028, U+2029
    EXPECT_EQ(readableName(std::string_view("a\0b", 3)), "a b");
}

TEST(ReadableName, LeavesOutCharactersThatChangeTheDirection) {
    EXPECT_EQ(readableName("gpj\xE2\x80\xAE"
                           "exe"),
              "gpjexe"); // U+202E
    EXPECT_EQ(readableName("\xE2\x80\x8E"
                           "a\xE2\x80\x8F\xD8\x9C"
                           "b"),
              "ab"); // U+200E, U+200F, U+061C
    EXPECT_EQ(readableName("\xE2\x81\xA6"
                           "a\xE2\x81\xA9"),
              "a");                                          // U+2066, U+2069
    EXPECT_EQ(readableName("\xE2\x80\x90"), "\xE2\x80\x90"); // U+2010, a hyphen
}

TEST(ReadableName, ReplacesEachByteThatIsNotUtf8) {
    const std::string replaced = "\xEF\xBF\xBD";
    EXPECT_EQ(readableName("a\xFF"
                           "b"),
              "a" + replaced + "b");
    EXPECT_EQ(readableName("a\x80"), "a" + replaced);
    EXPECT_EQ(readableName("a\xE6\x9C"), "a" + replaced + replaced);         // cut off at the end
    EXPECT_EQ(readableName("\xC3z"), replaced + "z");                        // not continued
    EXPECT_EQ(readableName("\xC0\xAF"), replaced + replaced);                // a longer spelling of '/'
    EXPECT_EQ(readableName("\xE0\x80\x8A"), replaced + replaced + replaced); // and of a line feed
    EXPECT_EQ(readableName("\xED\xA0\x80"), replaced + replaced + replaced); // half of a surrogate pair
    EXPECT_EQ(readableName("\xF4\x90\x80\x80"),
              replaced + replaced + replaced + replaced); // beyond U+10FFFF
}

TEST(ReadableName, SurvivesAMegabyteOfArbitraryBytes) {
    std::string name;
    for (std::size_t index = 0; index < (std::size_t{1} << 20); ++index)
        name += static_cast<char>((index * 2654435761U) >> 13);
    const std::string readable = readableName(name);
    EXPECT_EQ(readableName(readable), readable);
    EXPECT_EQ(readable.find('\n'), std::string::npos);
}

} // namespace
} // namespace orvelle
