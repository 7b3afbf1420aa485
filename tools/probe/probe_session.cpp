#include "probe/probe_session.h"

#include "core/system_monitor.h"
#include "platform/fixed/fixed_sources.h"
#include "platform/fixed/replay_machine.h"
#include "platform/host.h"
#include "probe/monitor_json.h"
#include "settings/settings_store.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>
#include <thread>

namespace orvelle {
namespace {

QJsonObject sampleThisMachine(const ProbeArguments& arguments) {
    const SettingsStore settings;
    SystemMonitor monitor(makeHostSources(), settings);
    for (int cycle = 0; cycle < arguments.cycles; ++cycle) {
        if (cycle > 0)
            std::this_thread::sleep_for(std::chrono::duration<double>(arguments.stepSeconds));
        monitor.updateCycle();
    }
    return publishedValues(monitor);
}

QJsonObject replayRoots(const ProbeArguments& arguments) {
    FixedClock clock;
    std::vector<MachineSources> moments;
    for (const QString& root : arguments.roots)
        moments.push_back(makeTreeSources(root.toStdString(), clock.reader()));
    ReplayMachine machine(std::move(moments));

    const SettingsStore settings;
    SystemMonitor monitor(machine.sources(clock.reader()), settings);
    for (std::size_t cycle = 0; cycle < machine.momentCount(); ++cycle) {
        if (cycle > 0) {
            clock.advance(std::chrono::duration<double>(arguments.stepSeconds));
            machine.advance();
        }
        monitor.updateCycle();
    }
    return publishedValues(monitor);
}

} // namespace

std::variant<QJsonObject, UnreadableRoot> probe(const ProbeArguments& arguments) {
    for (const QString& root : arguments.roots) {
        if (!QFileInfo(root).isDir() || !QDir(root).isReadable())
            return UnreadableRoot{QStringLiteral("Cannot read the directory \"%1\"").arg(root)};
    }
    return arguments.roots.isEmpty() ? sampleThisMachine(arguments) : replayRoots(arguments);
}

} // namespace orvelle
