#include "common/sampling.h"

#include "core/system_monitor.h"
#include "platform/host.h"

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

std::vector<MachineSources> momentsIn(const QStringList& roots, const WallClock& now) {
    std::vector<MachineSources> moments;
    for (const QString& root : roots)
        moments.push_back(makeTreeSources(root.toStdString(), now));
    return moments;
}

std::unique_ptr<SystemMonitor> replayRoots(const SamplingPlan& plan, const SettingsStore& settings) {
    RecordedMachine machine(plan.roots, plan.stepSeconds, settings);
    while (machine.sampleNext()) {
    }
    return std::move(machine).takeMonitor();
}

} // namespace

std::optional<UnreadableRoot> firstUnreadable(const QStringList& roots) {
    for (const QString& root : roots) {
        if (!QFileInfo(root).isDir() || !QFileInfo(root).isExecutable() || !QDir(root).isReadable())
            return UnreadableRoot{QStringLiteral("Cannot read the directory \"%1\"").arg(root)};
    }
    return std::nullopt;
}

RecordedMachine::RecordedMachine(const QStringList& roots, double stepSeconds, const SettingsStore& settings)
    : m_machine(momentsIn(roots, m_clock.reader()))
    , m_stepSeconds(stepSeconds)
    , m_monitor(std::make_unique<SystemMonitor>(m_machine.sources(m_clock.reader()), settings)) {}

RecordedMachine::~RecordedMachine() = default;

std::unique_ptr<SystemMonitor> RecordedMachine::takeMonitor() && {
    return std::move(m_monitor);
}

bool RecordedMachine::sampleNext() {
    if (m_sampledMoments == m_machine.momentCount())
        return false;
    if (m_sampledMoments++ > 0) {
        m_clock.advance(std::chrono::duration<double>(m_stepSeconds));
        m_machine.advance();
    }
    m_monitor->updateCycle();
    return true;
}

std::variant<std::unique_ptr<SystemMonitor>, UnreadableRoot> sampledMonitor(const SamplingPlan& plan,
                                                                            const SettingsStore& settings) {
    if (const auto unreadable = firstUnreadable(plan.roots))
        return *unreadable;
    return plan.roots.isEmpty() ? sampleThisMachine(plan, settings) : replayRoots(plan, settings);
}

} // namespace orvelle
