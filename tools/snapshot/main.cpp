// orvelle-snapshot: paints every view into picture files, without a window.

#include "common/example_machines.h"
#include "common/sampling.h"
#include "core/system_monitor.h"
#include "snapshot/sheets.h"
#include "snapshot/snapshot_arguments.h"
#include "snapshot/window_pictures.h"

#include <QGuiApplication>

#include <cstdio>

namespace orvelle {
namespace {

constexpr int exitFailed = 1;
constexpr int exitUsage = 2;

int fail(const QString& message, int status) {
    std::fprintf(stderr, "orvelle-snapshot: %s\n", qUtf8Printable(message));
    return status;
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
        return fail(error->message, exitFailed);
    SystemMonitor& monitor = *std::get<std::unique_ptr<SystemMonitor>>(sampled);
    settings.store.setSelectedThemeId(arguments.theme);
    QList<WindowPicture> windows = panelPictures(monitor, settings);
    for (const SettingsPose& pose : settingsPoses())
        windows.append(settingsPicture(settings, pose));
    for (const WindowPicture& window : windows) {
        if (const auto error =
                writePicture(window.image, sheetFileName(window.name, arguments.scale), arguments.directory))
            return fail(*error, exitFailed);
    }
    FreshSettings inAnyTheme;
    const QList<Sheet> sheets = chartSheets()
                                << menuBarItemSheet(monitor, settings, BarAppearance::dark)
                                << menuBarItemSheet(monitor, settings, BarAppearance::light)
                                << trayIconSheet(monitor, inAnyTheme) << themeSheet(monitor, inAnyTheme);
    if (const auto error = writeSheets(sheets, arguments.directory, arguments.scale))
        return fail(*error, exitFailed);
    return 0;
}

} // namespace
} // namespace orvelle

int main(int argumentCount, char** argumentValues) {
    QStringList commandLine;
    for (int index = 0; index < argumentCount; ++index)
        commandLine.append(QString::fromLocal8Bit(argumentValues[index]));
    const auto arguments = orvelle::parseSnapshotArguments(commandLine);
    if (const auto* error = std::get_if<orvelle::UsageError>(&arguments))
        return orvelle::fail(error->message, orvelle::exitUsage);
    orvelle::choosePlatform(std::get<orvelle::SnapshotArguments>(arguments).scale);
    int programNameOnly = 1;
    const QGuiApplication application(programNameOnly, argumentValues);
    return orvelle::paintSheets(std::get<orvelle::SnapshotArguments>(arguments));
}
