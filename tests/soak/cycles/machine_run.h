#pragma once

#include "bar_items.h"
#include "common/footprint.h"
#include "common/machine.h"
#include "settings/settings_store.h"
#include "speed_check.h"
#include "theme/theme_manager.h"
#include "value_check.h"

#include <QTemporaryDir>

#include <chrono>
#include <optional>

namespace orvelle::soak {

/// What a run may take.
struct Limits {
    std::uint64_t warmUpCycles = 2000;
    std::uint64_t measuredCycles = 1000; ///< at either end
    int measurements = 3;                ///< of them at either end; the lowest cost counts
    std::chrono::duration<double> time{};
    std::optional<std::uint64_t> cycles{}; ///< instead of the time
};

/// The process after the same thousand cycles, and what one of them costs.
struct Measurement {
    Footprint footprint;
    double microsecondsPerCycle = 0;
    std::size_t timers = 0; ///< of the monitor
};

struct RunResult {
    std::uint64_t cycles = 0;
    double seconds = 0;
    Measurement first; ///< after the warm-up
    Measurement last;
    std::vector<std::string> failures;
};

/// Update cycles of one machine, each checked, with the items of the bar.
class MachineRun {
public:
    MachineRun(Machine& machine, std::uint64_t seed);

    /// Ends at the first broken promise.
    [[nodiscard]] RunResult run(const Limits& limits);

private:
    void check();
    /// Returns the processor time of the update cycle and the items.
    double cycle(Random& random);
    void cycles(std::uint64_t count, Random& random);
    [[nodiscard]] Measurement measure(const Limits& limits);
    /// Waits until the machine is known as it was at first and the settings are on the disk, and measures
    /// then.
    [[nodiscard]] Footprint settledFootprint();
    /// What the user does once in a while: changes the interval or the style.
    void changeSettings();

    Machine& m_machine;
    std::uint64_t m_seed;
    Answers m_answers;
    bool m_hasSteadyClock = false;
    QTemporaryDir m_folder;
    SettingsStore m_settings;
    ThemeManager m_themes;
    std::optional<SystemMonitor> m_monitor;
    std::optional<BarItems> m_items;
    ValueCheck m_values;
    SpeedCheck m_speeds;
    Failures m_failures;
    std::uint64_t m_cycles = 0;
    int m_style = 0;
};

} // namespace orvelle::soak
