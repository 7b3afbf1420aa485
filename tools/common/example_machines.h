#pragma once

#include <memory>

namespace orvelle {

class SettingsStore;
class SystemMonitor;

/// Machines that are made up and the same in every run, for pictures that are compared and for benchmarks.
enum class ExampleMachine {
    laptop,       ///< at work, on its battery: everything that can be shown, at middling values
    loadedLaptop, ///< everything at its limit, charging: the longest texts and the warning colours
    bareComputer, ///< sixteen cores; no battery, no sensors, no volumes, no traffic and no history yet
};

/// The monitors of `machine` after its update cycles. `settings` must outlive them.
[[nodiscard]] std::unique_ptr<SystemMonitor> exampleMonitor(ExampleMachine machine,
                                                            const SettingsStore& settings);

} // namespace orvelle
