#pragma once

#include "common/scripted_machine.h"
#include "core/system_monitor.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"
#include "windows/window_factory.h"

#include <QTemporaryDir>

#include <memory>
#include <string>

namespace orvelle::soak {

/// The windows of the program on a scripted machine, used as its user would. Every function ends the use at
/// the first broken promise, which `failure` then names.
class OpenedWindows {
public:
    explicit OpenedWindows(std::uint64_t seed);

    /// Opens each panel, lets it show some samples, closes and opens it again as the program does with those
    /// that it keeps, and destroys it. Then uses the settings. Some of it happens with another theme and
    /// style.
    void useEach();
    /// Leaves one panel open for so many samples.
    void watch(ModuleId module, int samples);
    /// Closes everything and makes the machine and the settings what they were at first, so that measurements
    /// compare the same.
    void settle();

    [[nodiscard]] std::uint64_t openings() const { return m_openings; }
    [[nodiscard]] std::uint64_t samples() const { return m_samples; }
    /// Empty while all promises are kept.
    [[nodiscard]] const std::string& failure() const { return m_failure; }

private:
    /// Shows the window and waits for its first frame.
    void open(QWindow* window);
    void sample();
    /// Opens the panel, lets it show so many samples, clicks into it and closes it.
    void look(QWindow* panel, int samples);
    /// Changes what the windows look like.
    void restyle(Random& random);

    ScriptedMachine m_machine{ScriptedMachine::Clock::steadyToo};
    Random m_random;
    QTemporaryDir m_folder;
    SettingsStore m_settings;
    ThemeManager m_themes;
    SystemMonitor m_monitor;
    std::unique_ptr<WindowFactory> m_factory;
    std::uint64_t m_openings = 0;
    std::uint64_t m_samples = 0;
    std::string m_failure;
};

} // namespace orvelle::soak
