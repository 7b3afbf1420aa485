#include "app/command_line.h"
#include "settings/module_table.h"

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

TEST(CommandLine, RefusesWhatItDoesNotKnowInOneLine) {
    for (const char* argument : {"--loud", "-x", "now", "--desktop", "--open", "--settings=now", "--a\nb",
                                 "--open=a\nb", "--desktop=a\r\nb", "a\nb"}) {
        const QString error = parsed({QString::fromLatin1(argument)}).error;
        EXPECT_FALSE(error.isEmpty()) << argument;
        EXPECT_FALSE(error.contains(u'\n')) << argument;
    }
}

TEST(CommandLine, AsksForNothingByDefault) {
    EXPECT_EQ(parsed({}).request, StartRequest());
    EXPECT_TRUE(parsed({}).answer.isEmpty());
}

TEST(CommandLine, AsksForWhatTheOptionsSay) {
    EXPECT_EQ(parsed({QStringLiteral("--settings")}).request,
              (StartRequest{StartRequest::Kind::openSettings, {}}));
    EXPECT_EQ(parsed({QStringLiteral("--quit")}).request, (StartRequest{StartRequest::Kind::quit, {}}));
    const StartRequest memory{StartRequest::Kind::openPanel, QStringLiteral("memory")};
    EXPECT_EQ(parsed({QStringLiteral("--open"), QStringLiteral("memory")}).request, memory);
    EXPECT_EQ(parsed({QStringLiteral("--open=memory"), QStringLiteral("--desktop=tray")}).request, memory);
}

TEST(CommandLine, OpensEveryModuleAndNoOther) {
    QStringList keys;
    for (const ModuleInfo& module : moduleTable) {
        keys.append(module.key);
        EXPECT_EQ(parsed({QStringLiteral("--open"), module.key}).request.module, module.key);
    }
    EXPECT_EQ(parsed({QStringLiteral("--open"), QStringLiteral("moon")}).error,
              QStringLiteral("Unknown module 'moon'; it is one of: %1.").arg(keys.join(u", ")));
    EXPECT_FALSE(parsed({QStringLiteral("--open"), QStringLiteral("CPU")}).error.isEmpty());
    EXPECT_FALSE(parsed({QStringLiteral("--open=")}).error.isEmpty());
}

TEST(CommandLine, RefusesTwoWishesAtOnce) {
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--settings"), QStringLiteral("--quit")},
          QStringList{QStringLiteral("--settings"), QStringLiteral("--open=cpu")},
          QStringList{QStringLiteral("--quit"), QStringLiteral("--open=cpu")}})
        EXPECT_EQ(parsed(arguments).error,
                  QStringLiteral("Only one of --settings, --open and --quit can be asked for."));
}

TEST(CommandLine, ExplainsEveryOptionInNarrowLines) {
    for (const char* option : {"-h", "--help"}) {
        const QString help = parsed({QString::fromLatin1(option)}).answer;
        for (const char* part : {"--desktop=NAME", "auto, tray", "--settings", "--open MODULE", "cpu, memory",
                                 "--quit", "-h, --help", "-v, --version"})
            EXPECT_TRUE(help.contains(QLatin1StringView(part))) << part;
        EXPECT_FALSE(help.contains(QStringLiteral("session")));
        EXPECT_TRUE(help.endsWith(u'\n'));
        for (const QString& line : help.split(u'\n'))
            EXPECT_LE(line.size(), 80) << line.toStdString();
    }
}

TEST(CommandLine, TellsTheVersionOfTheProject) {
    for (const char* option : {"-v", "--version"})
        EXPECT_EQ(parsed({QString::fromLatin1(option)}).answer,
                  QStringLiteral("orvelle " ORVELLE_EXPECTED_VERSION "\n"));
}

} // namespace
} // namespace orvelle
