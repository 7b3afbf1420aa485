#pragma once

#include <QStringList>

#include <memory>
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

/// The monitors after the update cycles of `plan`. A replay waits for nothing: its clock begins at 2026-01-01
/// 00:00:00 UTC and is moved on by one step between the roots. `settings` must outlive the monitors.
[[nodiscard]] std::variant<std::unique_ptr<SystemMonitor>, UnreadableRoot>
sampledMonitor(const SamplingPlan& plan, const SettingsStore& settings);

} // namespace orvelle
