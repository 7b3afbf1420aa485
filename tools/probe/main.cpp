// orvelle-probe: prints what the monitors publish as one JSON object, or which modules there are, for tests,
// scripts and bug reports.

#include "probe/probe_arguments.h"
#include "probe/probe_session.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int exitUnreadable = 1; // or unwritable
constexpr int exitUsage = 2;

int fail(const QString& message, int status) {
    std::fprintf(stderr, "orvelle-probe: %s\n", qUtf8Printable(message));
    return status;
}

int print(const QByteArray& text) {
    const auto size = static_cast<std::size_t>(text.size());
    const bool isWritten = std::fwrite(text.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    return isWritten ? EXIT_SUCCESS : fail(QStringLiteral("Cannot write the result"), exitUnreadable);
}

} // namespace

int main(int argumentCount, char** argumentValues) {
    const QCoreApplication application(argumentCount, argumentValues);
    const auto arguments = orvelle::parseProbeArguments(QCoreApplication::arguments());
    if (const auto* error = std::get_if<orvelle::UsageError>(&arguments))
        return fail(error->message, exitUsage);
    if (std::holds_alternative<orvelle::ModuleListing>(arguments))
        return print(orvelle::moduleLines());
    const auto result = orvelle::probe(std::get<orvelle::SamplingPlan>(arguments));
    if (const auto* error = std::get_if<orvelle::UnreadableRoot>(&result))
        return fail(error->message, exitUnreadable);
    return print(QJsonDocument(std::get<QJsonObject>(result)).toJson());
}
