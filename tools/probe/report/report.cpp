#include "probe/report/report.h"

#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "platform/host.h"
#include "probe/published_values.h"
#include "probe/report/private_values.h"
#include "probe/report/pseudonyms.h"
#include "probe/report/recorded_tree.h"
#include "probe/report/surroundings.h"
#include "settings/settings_store.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <chrono>
#include <thread>

namespace orvelle {
namespace {

/// The values and the recording of one machine.
struct Observation {
    QJsonObject values;
    std::optional<RecordedTree> first;
    std::optional<RecordedTree> second; ///< what has changed later
};

/// The processes are sampled in the first and in the last of these cycles.
constexpr int cycles = 4;
constexpr std::chrono::seconds betweenCycles{1};

/// What the machine below `root` has changed since an earlier recording.
std::optional<RecordedTree> changesIn(const QString& root, const std::optional<RecordedTree>& earlier,
                                      Pseudonyms& pseudonyms) {
    const std::optional<RecordedTree> later = recordMachine(root.toStdString(), pseudonyms);
    return earlier && later ? std::optional(changedSince(*earlier, *later)) : std::nullopt;
}

Observation observeThisMachine(const SettingsStore& settings, Pseudonyms& pseudonyms) {
    Observation observation;
    SystemMonitor monitor(makeHostSources(), settings);
    monitor.updateCycle();
    observation.first = recordMachine("/", pseudonyms);
    for (int cycle = 1; cycle < cycles; ++cycle) {
        std::this_thread::sleep_for(betweenCycles);
        monitor.updateCycle();
    }
    observation.second = changesIn(QStringLiteral("/"), observation.first, pseudonyms);
    observation.values = publishedValues(monitor);
    return observation;
}

Observation observeRecording(const QStringList& roots, const SettingsStore& settings,
                             Pseudonyms& pseudonyms) {
    Observation observation;
    RecordedMachine machine(roots, SamplingPlan().stepSeconds, settings);
    while (machine.sampleNext()) {
    }
    observation.values = publishedValues(machine.monitor());
    observation.first = recordMachine(roots.first().toStdString(), pseudonyms);
    if (roots.size() > 1)
        observation.second = changesIn(roots.last(), observation.first, pseudonyms);
    return observation;
}

QJsonArray linesOf(const std::string& text) {
    QJsonArray lines;
    QStringList all = QString::fromStdString(text).split(QLatin1Char('\n'));
    if (all.last().isEmpty())
        all.removeLast();
    for (const QString& line : all)
        lines.append(line);
    return lines;
}

} // namespace

QJsonObject jsonFrom(const RecordedTree& tree) {
    QJsonObject files;
    for (const auto& [path, text] : tree.files)
        files.insert(QString::fromStdString(path), linesOf(text));
    QJsonObject links;
    for (const auto& [path, target] : tree.links)
        links.insert(QString::fromStdString(path), QString::fromStdString(target));
    return {{QStringLiteral("files"), files}, {QStringLiteral("links"), links}};
}

std::variant<QJsonObject, UnreadableRoot> makeReport(const QStringList& roots,
                                                     const SettingsStore& settings) {
    if (const auto unreadable = firstUnreadable(roots))
        return *unreadable;
    Pseudonyms pseudonyms;
    const SettingsStore defaults(std::make_unique<ReadOnlySettings>());
    const Observation observation = roots.isEmpty() ? observeThisMachine(defaults, pseudonyms)
                                                    : observeRecording(roots, defaults, pseudonyms);
    QJsonObject machine;
    if (observation.first)
        machine.insert(QStringLiteral("1"), jsonFrom(*observation.first));
    if (observation.second)
        machine.insert(QStringLiteral("2"), jsonFrom(*observation.second));
    return QJsonObject{
        {QStringLiteral("about"),
         QStringLiteral(
             "What Orvelle reads and shows on this machine. Names of processes, volumes and users' folders, "
             "addresses and serial numbers are replaced; models of disks and names of sensors are not.")},
        {QStringLiteral("program"),
         QJsonObject{{QStringLiteral("version"), QCoreApplication::applicationVersion()},
                     {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
                     {QStringLiteral("qtAtBuild"), QStringLiteral(QT_VERSION_STR)}}},
        {QStringLiteral("system"), systemSection()},
        {QStringLiteral("desktop"), desktopSection()},
        {QStringLiteral("screens"),
         QStringLiteral(
             "This program knows no screens. Please tell their sizes and scales in your own words.")},
        {QStringLiteral("settings"), settingsSection(settings)},
        {QStringLiteral("values"), withoutPrivateNames(observation.values, pseudonyms)},
        {QStringLiteral("machine"), machine}};
}

} // namespace orvelle
