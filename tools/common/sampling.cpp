#include "common/sampling.h"

#include "core/system_monitor.h"
#include "platform/host.h"
#include "platform/replay/fake_sources.h"
#include "platform/replay/replay_machine.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>
#include <thread>

namespace orvelle {
namespace {

std::unique_ptr<SystemMonitor> sampleThisMachine(const SamplingPlan& plan, const SettingsStore& settings) {
    auto monitor = std::make_unique<SystemMonitor>(makeHostSources(), settings);
    for (int cycle = 0; cycle < plan.cycles; ++cycle) {
        if (cycle > 0)
            std::this_thread::sleep_for(std::chrono::duration<double>(plan.stepSeconds));
        monitor->updateCycle();
    }
    return monitor;
}

std::unique_ptr<SystemMonitor> replayRoots(const SamplingPlan& plan, const SettingsStore& settings) {
    FakeClock clock;
    std::vector<MachineSources> moments;
    for (const QString& root : plan.roots)
        moments.push_back(makeTreeSources(root.toStdString(), clock.reader()));
    ReplayMachine machine(std::move(moments));

    auto monitor = std::make_unique<SystemMonitor>(machine.sources(clock.reader()), settings);
    for (std::size_t cycle = 0; cycle < machine.momentCount(); ++cycle) {
        if (cycle > 0) {
            clock.advance(std::chrono::duration<double>(plan.stepSeconds));
            machine.advance();
        }
        monitor->updateCycle();
    }
    return monitor;
}

} // namespace

std::variant<std::unique_ptr<SystemMonitor>, UnreadableRoot> sampledMonitor(const SamplingPlan& plan,
                                                                            const SettingsStore& settings) {
    for (const QString& root : plan.roots) {
        if (!QFileInfo(root).isDir() || !QFileInfo(root).isExecutable() || !QDir(root).isReadable())
            return UnreadableRoot{QStringLiteral("Cannot read the directory \"%1\"").arg(root)};
    }
    return plan.roots.isEmpty() ? sampleThisMachine(plan, settings) : replayRoots(plan, settings);
}

} // namespace orvelle
