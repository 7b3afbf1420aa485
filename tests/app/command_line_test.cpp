#include "app/command_line.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

CommandLine parsed(const QStringList& arguments) {
    return parseCommandLine(QStringList{QStringLiteral("orvelle")} + arguments,
                            {QStringLiteral("auto"), QStringLiteral("tray")});
}

TEST(CommandLine, TakesTheFirstDesktopWhenNoneIsNamed) {
    EXPECT_EQ(parsed({}).desktop, QStringLiteral("auto"));
    EXPECT_TRUE(parsed({}).error.isEmpty());
}

TEST(CommandLine, TakesTheDesktopThatIsNamed) {
    EXPECT_EQ(parsed({QStringLiteral("--desktop=tray")}).desktop, QStringLiteral("tray"));
    EXPECT_EQ(parsed({QStringLiteral("--desktop"), QStringLiteral("tray")}).desktop, QStringLiteral("tray"));
}

TEST(CommandLine, RefusesAnUnknownDesktopAndNamesTheKnownOnes) {
    const QString error = parsed({QStringLiteral("--desktop=moon")}).error;
    EXPECT_EQ(error, QStringLiteral("Unknown desktop 'moon'; it is one of: auto, tray."));
}

TEST(CommandLine, AcceptsWhatASessionManagerAdds) {
    EXPECT_EQ(parsed({QStringLiteral("-session"), QStringLiteral("10d2_1_2")}).error, QString());
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
    EXPECT_TRUE(parsed({QStringLiteral("--loud")}).error.contains(QStringLiteral("loud")));
    EXPECT_TRUE(parsed({QStringLiteral("now")}).error.contains(QStringLiteral("now")));
    EXPECT_FALSE(parsed({QStringLiteral("--desktop")}).error.isEmpty());
    EXPECT_FALSE(parsed({QStringLiteral("--desktop=")}).error.isEmpty());
}

} // namespace
} // namespace orvelle
