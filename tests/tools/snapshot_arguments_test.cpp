#include "snapshot/snapshot_arguments.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

auto parsed(const char* arguments) {
    QStringList list{QStringLiteral("orvelle-snapshot")};
    list += QString::fromLatin1(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return parseSnapshotArguments(list);
}

TEST(SnapshotArguments, WithADirectoryAlonePaintsThisMachineAtOnePixelPerPoint) {
    const auto arguments = std::get<SnapshotArguments>(parsed("pictures"));
    EXPECT_EQ(arguments.directory, QStringLiteral("pictures"));
    EXPECT_TRUE(arguments.roots.isEmpty());
    EXPECT_EQ(arguments.scale, 1);
    EXPECT_EQ(arguments.theme, QStringLiteral("midnight"));
}

TEST(SnapshotArguments, TakeAThemeByItsId) {
    EXPECT_EQ(std::get<SnapshotArguments>(parsed("pictures --theme nord")).theme, QStringLiteral("nord"));
}

TEST(SnapshotArguments, TakeRootsInTheirOrderAndAScale) {
    const auto arguments = std::get<SnapshotArguments>(parsed("--root b pictures --root a --scale 1.5"));
    EXPECT_EQ(arguments.directory, QStringLiteral("pictures"));
    EXPECT_EQ(arguments.roots, (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    EXPECT_EQ(arguments.scale, 1.5);
}

TEST(SnapshotArguments, TakeTheExampleInThePlaceOfRoots) {
    EXPECT_TRUE(std::get<SnapshotArguments>(parsed("pictures --example")).ofExample);
    EXPECT_FALSE(std::get<SnapshotArguments>(parsed("pictures --root a")).ofExample);
    EXPECT_TRUE(std::holds_alternative<UsageError>(parsed("pictures --example --root a")));
}

TEST(SnapshotArguments, HelpAndVersionNeedNoFolder) {
    for (const char* arguments : {"--help", "-h", "--version", "-v", "pictures --help"})
        EXPECT_TRUE(std::holds_alternative<PrintedText>(parsed(arguments))) << arguments;
}

TEST(SnapshotArguments, WhatCannotBeTakenIsAUsageError) {
    for (const char* arguments :
         {"", "--root a", "one two", "one --root", "one --scale", "one --scale 0.5", "one --scale 5",
          "one --scale nan", "one --scale big", "one --theme", "one --theme Nord", "one --wrong"})
        EXPECT_TRUE(std::holds_alternative<UsageError>(parsed(arguments))) << arguments;
}

} // namespace
} // namespace orvelle
