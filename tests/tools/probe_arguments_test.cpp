#include "probe/probe_arguments.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

auto parsed(const char* arguments) {
    QStringList list{QStringLiteral("orvelle-probe")};
    list += QString::fromLatin1(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return parseProbeArguments(list);
}

TEST(ProbeArguments, WithoutAnySamplesThisMachineTwiceThreeSecondsApart) {
    const auto arguments = std::get<SamplingPlan>(parsed(""));
    EXPECT_TRUE(arguments.roots.isEmpty());
    EXPECT_EQ(arguments.stepSeconds, 3);
    EXPECT_EQ(arguments.cycles, 2);
}

TEST(ProbeArguments, RootsKeepTheirOrder) {
    const auto arguments = std::get<SamplingPlan>(parsed("--root b --root a --step 0.5"));
    EXPECT_EQ(arguments.roots, (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    EXPECT_EQ(arguments.stepSeconds, 0.5);
}

TEST(ProbeArguments, FollowTheMachineAndChooseValues) {
    const auto all = std::get<ValueLines>(parsed("--follow"));
    EXPECT_EQ(all.plan.intervalSeconds, 3);
    EXPECT_TRUE(all.plan.roots.isEmpty());
    EXPECT_TRUE(all.fields.isEmpty());
    const auto some =
        std::get<ValueLines>(parsed("--follow --interval 0.5 --fields cpu.totalUsage,disk --root a"));
    EXPECT_EQ(some.plan.intervalSeconds, 0.5);
    EXPECT_EQ(some.plan.roots, QStringList{QStringLiteral("a")});
    EXPECT_EQ(some.fields, (QStringList{QStringLiteral("cpu.totalUsage"), QStringLiteral("disk")}));
}

TEST(ProbeArguments, ChooseModulesForAStatusBar) {
    const auto usual = std::get<BarLines>(parsed("--waybar"));
    EXPECT_FALSE(usual.modules);
    EXPECT_FALSE(usual.isPlain);
    const auto chosen = std::get<BarLines>(parsed("--plain --fields disk,cpu --interval 10"));
    EXPECT_EQ(chosen.modules, (QList<ModuleId>{ModuleId::disk, ModuleId::cpu}));
    EXPECT_TRUE(chosen.isPlain);
    EXPECT_EQ(chosen.plan.intervalSeconds, 10);
}

TEST(ProbeArguments, WriteAReportIntoAFile) {
    EXPECT_EQ(std::get<ReportPlan>(parsed("--report")).file, QStringLiteral("orvelle-report.json"));
    const auto plan = std::get<ReportPlan>(parsed("--report here.json --root a --root b"));
    EXPECT_EQ(plan.file, QStringLiteral("here.json"));
    EXPECT_EQ(plan.roots, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST(ProbeArguments, HelpAndVersionAreAnsweredBesideOtherOptions) {
    for (const char* arguments : {"--help", "-h", "--version", "-v", "--follow --help", "--modules -v"})
        EXPECT_TRUE(std::holds_alternative<PrintedText>(parsed(arguments))) << arguments;
}

TEST(ProbeArguments, WhatCannotBeTakenIsAUsageErrorOfOneLine) {
    for (const char* arguments : {"--root",
                                  "--step",
                                  "--step -1",
                                  "--step inf",
                                  "--step 1e9",
                                  "--cycles 1.5",
                                  "--cycles 99999999999",
                                  "--cycles 2 --root a",
                                  "file",
                                  "--wrong",
                                  "--help --wrong",
                                  "--follow --waybar",
                                  "--waybar --plain",
                                  "--modules --follow",
                                  "--follow --step 1",
                                  "--follow --cycles 2",
                                  "--interval 1",
                                  "--fields cpu",
                                  "--follow --interval 0.05",
                                  "--follow --interval 1e6",
                                  "--follow --interval nan",
                                  "--follow --fields ,",
                                  "--waybar --fields gpu",
                                  "--plain --fields CPU",
                                  "--follow extra",
                                  "--report a b",
                                  "--report --interval 3",
                                  "--report --follow"}) {
        const auto request = parsed(arguments);
        ASSERT_TRUE(std::holds_alternative<UsageError>(request)) << arguments;
        const QString message = std::get<UsageError>(request).message;
        EXPECT_FALSE(message.isEmpty() || message.contains(QLatin1Char('\n'))) << arguments;
    }
}

TEST(ProbeArguments, AskForTheModulesAlone) {
    EXPECT_TRUE(std::holds_alternative<ModuleListing>(parsed("--modules")));
    EXPECT_TRUE(std::holds_alternative<UsageError>(parsed("--modules --root a")));
}

} // namespace
} // namespace orvelle
