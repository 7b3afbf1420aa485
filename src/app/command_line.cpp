#include "app/command_line.h"

#include <QCommandLineParser>

namespace orvelle {
namespace {

/// What a session manager adds when it restores a session: `-session ID`. A restored session asks for no more
/// than any other start.
QCommandLineOption sessionOption() {
    QCommandLineOption session(QStringLiteral("session"), {}, QStringLiteral("id"));
    session.setFlags(QCommandLineOption::HiddenFromHelp);
    return session;
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments, const QStringList& desktopNames) {
    const QCommandLineOption desktop(
        QStringLiteral("desktop"), QStringLiteral("Where Orvelle appears: %1.").arg(desktopNames.join(u", ")),
        QStringLiteral("name"), desktopNames.first());
    QCommandLineParser parser;
    parser.addOption(desktop);
    parser.addOption(sessionOption());
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    if (!parser.parse(arguments))
        return {{}, parser.errorText()};
    if (const QStringList others = parser.positionalArguments(); !others.isEmpty())
        return {{}, QStringLiteral("Unexpected argument '%1'.").arg(others.first())};
    const QString name = parser.value(desktop);
    if (!desktopNames.contains(name))
        return {
            {},
            QStringLiteral("Unknown desktop '%1'; it is one of: %2.").arg(name, desktopNames.join(u", "))};
    return {name, {}};
}

} // namespace orvelle
