#include "snapshot/snapshot_arguments.h"

#include "theme/app_theme.h"

#include <QCommandLineParser>

#include <algorithm>

namespace orvelle {
namespace {

constexpr double smallestScale = 1;
constexpr double largestScale = 4;

UsageError usageError(const QString& reason) {
    return {
        reason +
        QStringLiteral("\nusage: orvelle-snapshot DIR [--root DIR... | --example] [--scale N] [--theme ID]")};
}

bool isTheme(const QString& id) {
    return std::ranges::any_of(builtInThemes(), [&](const AppTheme& theme) { return theme.id == id; });
}

} // namespace

std::variant<SnapshotArguments, UsageError> parseSnapshotArguments(const QStringList& commandLine) {
    const QCommandLineOption root(QStringLiteral("root"), {}, QStringLiteral("DIR"));
    const QCommandLineOption example(QStringLiteral("example"));
    const QCommandLineOption scale(QStringLiteral("scale"), {}, QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption theme(QStringLiteral("theme"), {}, QStringLiteral("ID"),
                                   builtInThemes().first().id);
    QCommandLineParser parser;
    parser.addOptions({root, example, scale, theme});
    if (!parser.parse(commandLine))
        return usageError(parser.errorText());
    const QStringList directories = parser.positionalArguments();
    if (directories.size() != 1 || directories.first().isEmpty())
        return usageError(QStringLiteral("One directory is needed to write the pictures into"));

    SnapshotArguments arguments{.directory = directories.first(),
                                .roots = parser.values(root),
                                .ofExample = parser.isSet(example),
                                .theme = parser.value(theme)};
    if (arguments.ofExample && !arguments.roots.isEmpty())
        return usageError(QStringLiteral("--root and --example exclude each other"));
    bool isNumber = false;
    arguments.scale = parser.value(scale).toDouble(&isNumber);
    if (!isNumber || !(arguments.scale >= smallestScale && arguments.scale <= largestScale))
        return usageError(
            QStringLiteral("--scale takes a number from %1 to %2").arg(smallestScale).arg(largestScale));
    if (!isTheme(arguments.theme))
        return usageError(QStringLiteral("No theme is called \"%1\"").arg(arguments.theme));
    return arguments;
}

} // namespace orvelle
