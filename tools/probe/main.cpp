// orvelle-probe: prints what the monitors publish, once or for as long as somebody reads, for tests, scripts,
// status bars and bug reports.

#include "common/output_stream.h"
#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "probe/bar_line.h"
#include "probe/probe_arguments.h"
#include "probe/probe_session.h"
#include "probe/published_values.h"
#include "probe/report/report.h"
#include "settings/settings_store.h"
#include "settings/user_settings.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace orvelle {
namespace {

const OutputStream standardOutput(STDOUT_FILENO);

int failWith(const QString& message, int status = exitFailed) {
    return fail(QStringLiteral("orvelle-probe"), message, status);
}

/// A reader who leaves has read enough.
int statusAfter(OutputStream::Result result) {
    return result == OutputStream::Result::failed ? failWith(QStringLiteral("Cannot write the result"))
                                                  : EXIT_SUCCESS;
}

int print(const QByteArray& text) {
    return statusAfter(standardOutput.write(text));
}

int statusAfter(const FollowEnd& end) {
    if (const auto* error = std::get_if<UnreadableRoot>(&end))
        return failWith(error->message);
    return statusAfter(std::get<OutputStream::Result>(end));
}

std::unique_ptr<SettingsStorage> userSettings() {
    return std::make_unique<ReadOnlySettings>(readUserSettings);
}

QList<ModuleId> shownModules() {
    const SettingsStore settings(userSettings());
    QList<ModuleId> modules;
    for (const ModuleInfo& module : moduleTable) {
        if (settings.isShown(module.id))
            modules.append(module.id);
    }
    return modules;
}

int answer(const UsageError& error) {
    return failWith(error.message, exitUsage);
}

int answer(const PrintedText& printed) {
    return print(printed.text.toUtf8());
}

int answer(ModuleListing /*listing*/) {
    return print(moduleLines());
}

int answer(const SamplingPlan& plan) {
    const auto result = probe(plan);
    if (const auto* error = std::get_if<UnreadableRoot>(&result))
        return failWith(error->message);
    return print(QJsonDocument(std::get<QJsonObject>(result)).toJson());
}

int answer(const ValueLines& lines) {
    const SettingsStore settings(std::make_unique<ReadOnlySettings>());
    const QJsonObject known = publishedValues(*unsampledMonitor(settings));
    if (const QString unknown = firstUnknownPath(known, lines.fields); !unknown.isEmpty())
        return failWith(QStringLiteral("No value is called \"%1\"").arg(unknown), exitUsage);
    return statusAfter(follow(lines.plan, settings, standardOutput, [&lines](SystemMonitor& monitor) {
        const QJsonObject values = publishedValues(monitor);
        return QJsonDocument(lines.fields.isEmpty() ? values : valuesAt(values, lines.fields))
            .toJson(QJsonDocument::Compact);
    }));
}

int answer(const BarLines& lines) {
    const SettingsStore settings(std::make_unique<ReadOnlySettings>());
    return statusAfter(follow(lines.plan, settings, standardOutput, [&lines](SystemMonitor& monitor) {
        QList<ModuleReport> reports;
        for (const ModuleId module : lines.modules ? *lines.modules : shownModules())
            reports.append(moduleReport(module, monitor));
        const BarLine line = barLine(reports);
        return lines.isPlain ? line.text.toUtf8()
                             : QJsonDocument(jsonFrom(line)).toJson(QJsonDocument::Compact);
    }));
}

int answer(const ReportPlan& plan) {
    const SettingsStore settings(userSettings());
    const auto report = makeReport(plan.roots, settings);
    if (const auto* error = std::get_if<UnreadableRoot>(&report))
        return failWith(error->message);
    QSaveFile file(plan.file);
    const QByteArray text = QJsonDocument(std::get<QJsonObject>(report)).toJson();
    const bool isNew = !QFileInfo::exists(plan.file);
    // Its author shows it to others, not a folder that all users share.
    if (!file.open(QIODevice::WriteOnly) ||
        (isNew && !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) ||
        file.write(text) != text.size() || !file.commit())
        return failWith(QStringLiteral("Cannot write \"%1\": %2").arg(plan.file, file.errorString()));
    return print(
        QStringLiteral("Wrote %1. It is plain text: please look at it, then attach it to your report.\n")
            .arg(plan.file)
            .toUtf8());
}

} // namespace
} // namespace orvelle

// Only a request that failed to be assigned would make std::visit throw, and none is assigned.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argumentCount, char** argumentValues) {
    // A file that is opened later would take the place of a closed standard output.
    if (::fcntl(STDOUT_FILENO, F_GETFD) < 0)
        return orvelle::failWith(QStringLiteral("The standard output is closed"));
    if (std::signal(SIGPIPE, SIG_IGN) == SIG_ERR)
        return orvelle::failWith(QStringLiteral("Cannot ignore SIGPIPE"));
    const QCoreApplication application(argumentCount, argumentValues);
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVELLE_VERSION));
    return std::visit([](const auto& request) { return orvelle::answer(request); },
                      orvelle::parseProbeArguments(QCoreApplication::arguments()));
}
