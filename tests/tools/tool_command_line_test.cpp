#include "common/tool_command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

std::optional<PrintedText> answerTo(const QString& argument) {
    QCoreApplication::setApplicationVersion(QStringLiteral("7.8.9"));
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("wanted"), QStringLiteral("What it is for.")});
    addUsualOptions(parser);
    EXPECT_TRUE(parser.parse({QStringLiteral("program"), argument}));
    return usualAnswer(parser, QStringLiteral("program"));
}

TEST(ToolCommandLine, TellsTheVersionOfTheProgram) {
    EXPECT_EQ(answerTo(QStringLiteral("--version"))->text, QStringLiteral("program 7.8.9\n"));
    EXPECT_EQ(answerTo(QStringLiteral("-v"))->text, QStringLiteral("program 7.8.9\n"));
}

TEST(ToolCommandLine, MakesTheHelpOfTheOptions) {
    for (const char* option : {"--help", "-h"}) {
        const QString help = answerTo(QString::fromLatin1(option))->text;
        EXPECT_TRUE(help.contains(QLatin1String("--wanted"))) << option;
        EXPECT_TRUE(help.contains(QLatin1String("What it is for."))) << option;
        EXPECT_TRUE(help.contains(QLatin1String("-v, --version"))) << option;
    }
}

TEST(ToolCommandLine, HasNoAnswerToOtherOptions) {
    EXPECT_FALSE(answerTo(QStringLiteral("--wanted")));
}

TEST(ToolCommandLine, AFailureIsOneLineWhateverItQuotes) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(fail(QStringLiteral("program"), QStringLiteral("No \"a\nb\""), 2), 2);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "program: No \"a b\"\n");
}

} // namespace
} // namespace orvelle
