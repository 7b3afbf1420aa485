#include "common/tool_command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

namespace orvelle {
namespace {

const QString helpName = QStringLiteral("help");
const QString versionName = QStringLiteral("version");

} // namespace

void addUsualOptions(QCommandLineParser& parser) {
    parser.addOption({{QStringLiteral("h"), helpName}, QStringLiteral("Print this help.")});
    parser.addOption({{QStringLiteral("v"), versionName}, QStringLiteral("Print the version.")});
}

std::optional<PrintedText> usualAnswer(const QCommandLineParser& parser, const QString& program) {
    if (parser.isSet(helpName))
        return PrintedText{parser.helpText()};
    if (parser.isSet(versionName))
        return PrintedText{program + QLatin1Char(' ') + QCoreApplication::applicationVersion() +
                           QLatin1Char('\n')};
    return std::nullopt;
}

int fail(const QString& program, const QString& message, int status) {
    // The message may quote what the user wrote.
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(program), qUtf8Printable(message.simplified()));
    return status;
}

} // namespace orvelle
