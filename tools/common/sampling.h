#pragma once

#include "platform/replay/fake_sources.h"
#include "platform/replay/replay_machine.h"

#include <QStringList>

#include <memory>
#include <optional>
#include <variant>

namespace orvelle {

class SettingsStore;
class SystemMonitor;

/// Which machine is sampled, and how often.
struct SamplingPlan {
    QStringList roots;      ///< one directory per update cycle; empty: sample this machine
    double stepSeconds = 3; ///< time between two cycles
    int cycles = 2;         ///< update cycles of this machine; `roots` decides it in a replay
};

/// Why a root directory cannot be read, for a person to read.
struct UnreadableRoot {
    QString message;
};

/// Why the first of these directories that cannot be read cannot be; nothing when all can.
[[nodiscard]] std::optional<UnreadableRoot> firstUnreadable(const QStringList& roots);

/// A machine whose moments were recorded as trees of files. Its clock begins at 2026-01-01 00:00:00 UTC and
/// is moved on by one step between two moments.
class RecordedMachine {
public:
    /// There is at least one root, and all are readable. `settings` must outlive the monitors.
    RecordedMachine(const QStringList& roots, double stepSeconds, const SettingsStore& settings);
    ~RecordedMachine();

    [[nodiscard]] SystemMonitor& monitor() { return *m_monitor; }
    /// Runs the update cycle of the next moment; false when none is left.
    [[nodiscard]] bool sampleNext();
    /// The monitors as they are now, which outlive the machine.
    [[nodiscard]] std::unique_ptr<SystemMonitor> takeMonitor() &&;

private:
    FakeClock m_clock;
    ReplayMachine m_machine;
    double m_stepSeconds;
    std::size_t m_sampledMoments = 0;
    std::unique_ptr<SystemMonitor> m_monitor;
};

/// The monitors after the update cycles of `plan`. A replay waits for nothing. `settings` must outlive the
/// monitors.
[[nodiscard]] std::variant<std::unique_ptr<SystemMonitor>, UnreadableRoot>
sampledMonitor(const SamplingPlan& plan, const SettingsStore& settings);

} // namespace orvelle
