// orvelle-snapshot: paints every view into picture files, without a window.

#include "common/example_machines.h"
#include "common/output_stream.h"
#include "common/sampling.h"
#include "core/system_monitor.h"
#include "snapshot/sheets.h"
#include "snapshot/snapshot_arguments.h"
#include "snapshot/window_pictures.h"

#include <QGuiApplication>

#include <cstdlib>
#include <unistd.h>

namespace orvelle {
namespace {

int failWith(const QString& message, int status = exitFailed) {
    return fail(QStringLiteral("orvelle-snapshot"), message, status);
}

int print(const PrintedText& printed) {
    const OutputStream standardOutput(STDOUT_FILENO);
    return standardOutput.write(printed.text.toUtf8()) == OutputStream::Result::failed
               ? failWith(QStringLiteral("Cannot write the text"))
               : EXIT_SUCCESS;
}

/// The command line is needed before there is a QGuiApplication, which takes its scale from it.
auto parsedArguments(int argumentCount, char** argumentValues) {
    const QCoreApplication application(argumentCount, argumentValues);
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVELLE_VERSION));
    return parseSnapshotArguments(QCoreApplication::arguments());
}

/// Windows are painted without a display. They take their scale from the platform.
void choosePlatform(double scale) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
}

/// This machine is sampled a few times in quick succession, so that its histories are not empty.
SamplingPlan planFor(const QStringList& roots) {
    if (roots.isEmpty())
        return {.roots = {}, .stepSeconds = 0.25, .cycles = 9};
    return {.roots = roots};
}

std::variant<std::unique_ptr<SystemMonitor>, UnreadableRoot> monitorFor(const SnapshotArguments& arguments,
                                                                        const SettingsStore& settings) {
    if (arguments.ofExample)
        return exampleMonitor(ExampleMachine::laptop, settings);
    return sampledMonitor(planFor(arguments.roots), settings);
}

int paintSheets(const SnapshotArguments& arguments) {
    FreshSettings settings;
    const auto sampled = monitorFor(arguments, settings.store);
    if (const auto* error = std::get_if<UnreadableRoot>(&sampled))
        return failWith(error->message);
    SystemMonitor& monitor = *std::get<std::unique_ptr<SystemMonitor>>(sampled);
    settings.store.setSelectedThemeId(arguments.theme);
    QList<WindowPicture> windows = panelPictures(monitor, settings);
    for (const SettingsPose& pose : settingsPoses())
        windows.append(settingsPicture(settings, pose));
    for (const WindowPicture& window : windows) {
        if (const auto error =
                writePicture(window.image, sheetFileName(window.name, arguments.scale), arguments.directory))
            return failWith(*error);
    }
    FreshSettings inAnyTheme;
    const QList<Sheet> sheets = chartSheets()
                                << menuBarItemSheet(monitor, settings, BarAppearance::dark)
                                << menuBarItemSheet(monitor, settings, BarAppearance::light)
                                << trayIconSheet(monitor, inAnyTheme) << themeSheet(monitor, inAnyTheme);
    if (const auto error = writeSheets(sheets, arguments.directory, arguments.scale))
        return failWith(*error);
    return 0;
}

} // namespace
} // namespace orvelle

int main(int argumentCount, char** argumentValues) {
    const auto arguments = orvelle::parsedArguments(argumentCount, argumentValues);
    if (const auto* error = std::get_if<orvelle::UsageError>(&arguments))
        return orvelle::failWith(error->message, orvelle::exitUsage);
    if (const auto* printed = std::get_if<orvelle::PrintedText>(&arguments))
        return orvelle::print(*printed);
    orvelle::choosePlatform(std::get<orvelle::SnapshotArguments>(arguments).scale);
    int programNameOnly = 1;
    const QGuiApplication application(programNameOnly, argumentValues);
    return orvelle::paintSheets(std::get<orvelle::SnapshotArguments>(arguments));
}
