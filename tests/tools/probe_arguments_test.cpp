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

TEST(ProbeArguments, WhatCannotBeTakenIsAUsageError) {
    for (const char* arguments : {"--root", "--step", "--step -1", "--step inf", "--step 1e9", "--cycles 1.5",
                                  "--cycles 99999999999", "--cycles 2 --root a", "file", "--help"})
        EXPECT_TRUE(std::holds_alternative<UsageError>(parsed(arguments))) << arguments;
}

TEST(ProbeArguments, AskForTheModulesAlone) {
    EXPECT_TRUE(std::holds_alternative<ModuleListing>(parsed("--modules")));
    EXPECT_TRUE(std::holds_alternative<UsageError>(parsed("--modules --root a")));
}

} // namespace
} // namespace orvelle
