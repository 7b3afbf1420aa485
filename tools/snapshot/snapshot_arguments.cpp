#include "snapshot/snapshot_arguments.h"

#include "theme/app_theme.h"

#include <QCommandLineParser>

namespace orvelle {
namespace {

constexpr double smallestScale = 1;
constexpr double largestScale = 4;

UsageError usageError(const QString& reason) {
    return {reason};
}

QStringList themeIds() {
    QStringList ids;
    for (const AppTheme& theme : builtInThemes())
        ids.append(theme.id);
    return ids;
}

} // namespace

std::variant<SnapshotArguments, PrintedText, UsageError>
parseSnapshotArguments(const QStringList& commandLine) {
    const QCommandLineOption root(
        QStringLiteral("root"),
        QStringLiteral(
            "Show the machine recorded below DIR instead of this one. Given several times, each DIR is the "
            "machine at the next sample."),
        QStringLiteral("DIR"));
    const QCommandLineOption example(QStringLiteral("example"),
                                     QStringLiteral("Show an invented laptop instead."));
    const QCommandLineOption scale(QStringLiteral("scale"),
                                   QStringLiteral("Pixels for each point, from 1 to 4, 1 unless given."),
                                   QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption theme(QStringLiteral("theme"),
                                   QStringLiteral("Theme of all pictures: %1.").arg(themeIds().join(u", ")),
                                   QStringLiteral("ID"), themeIds().constFirst());
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Paints every view of Orvelle in every style into picture files, without a display."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("Where the pictures are written."));
    parser.addOptions({root, example, scale, theme});
    addUsualOptions(parser);
    if (!parser.parse(commandLine))
        return usageError(parser.errorText());
    if (auto answer = usualAnswer(parser, QStringLiteral("orvelle-snapshot")))
        return *std::move(answer);
    const QStringList directories = parser.positionalArguments();
    if (directories.size() != 1 || directories.first().isEmpty())
        return usageError(QStringLiteral("One folder is needed to write the pictures into"));

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
    if (!themeIds().contains(arguments.theme))
        return usageError(QStringLiteral("No theme is called \"%1\"").arg(arguments.theme));
    return arguments;
}

} // namespace orvelle
