#include "snapshot/snapshot_arguments.h"

#include <QCommandLineParser>

namespace orvelle {
namespace {

constexpr double smallestScale = 1;
constexpr double largestScale = 4;

UsageError usageError(const QString& reason) {
    return {reason + QStringLiteral("\nusage: orvelle-snapshot DIR [--root DIR]... [--scale N]")};
}

} // namespace

std::variant<SnapshotArguments, UsageError> parseSnapshotArguments(const QStringList& commandLine) {
    const QCommandLineOption root(QStringLiteral("root"), {}, QStringLiteral("DIR"));
    const QCommandLineOption scale(QStringLiteral("scale"), {}, QStringLiteral("N"), QStringLiteral("1"));
    QCommandLineParser parser;
    parser.addOptions({root, scale});
    if (!parser.parse(commandLine))
        return usageError(parser.errorText());
    const QStringList directories = parser.positionalArguments();
    if (directories.size() != 1 || directories.first().isEmpty())
        return usageError(QStringLiteral("One directory is needed to write the pictures into"));

    SnapshotArguments arguments{.directory = directories.first(), .roots = parser.values(root)};
    bool isNumber = false;
    arguments.scale = parser.value(scale).toDouble(&isNumber);
    if (!isNumber || !(arguments.scale >= smallestScale && arguments.scale <= largestScale))
        return usageError(
            QStringLiteral("--scale takes a number from %1 to %2").arg(smallestScale).arg(largestScale));
    return arguments;
}

} // namespace orvelle
