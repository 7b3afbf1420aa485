#pragma once

#include <QString>

#include <optional>

class QCommandLineParser;

/// What the command lines of all tools have in common.
namespace orvelle {

/// Exit statuses beside 0.
inline constexpr int exitFailed = 1; ///< something cannot be read or written
inline constexpr int exitUsage = 2;  ///< the arguments are not understood

/// What the user asks to read: the help or the version.
struct PrintedText {
    QString text;
};

/// Adds `--help` and `--version`.
void addUsualOptions(QCommandLineParser& parser);

/// The answer to `--help` or `--version`; nothing when neither is set. The version is that of the
/// application object, which must exist.
[[nodiscard]] std::optional<PrintedText> usualAnswer(const QCommandLineParser& parser,
                                                     const QString& program);

/// Says on the standard error, in one line, why the program ends. Returns `status`.
int fail(const QString& program, const QString& message, int status);

} // namespace orvelle
