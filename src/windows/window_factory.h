#pragma once

#include "settings/module_table.h"

#include <QWindow>

#include <functional>
#include <memory>

namespace orvelle {

class SettingsStore;
class SystemMonitor;
class ThemeManager;

/// What the windows show, and what they ask of the program.
struct WindowContext {
    SystemMonitor& monitor;
    SettingsStore& settings;
    ThemeManager& themes;
    std::function<void()> openSettings;
    std::function<void()> quitApp;
    /// Null, or the object that reports on launching at login, see `SettingsContext`.
    QObject* launchAtLogin = nullptr;
};

/// Makes the contents of the program's windows. They must not outlive it. Main thread only.
class WindowFactory {
public:
    virtual ~WindowFactory() = default;

    /// The detail panel of the module in its frame, not shown yet, 320 x 500 points. Its corners have this
    /// radius in points. Null when it cannot be loaded.
    [[nodiscard]] virtual std::unique_ptr<QWindow> makePanel(ModuleId module, double cornerRadius) = 0;
    /// The settings, not shown yet.
    [[nodiscard]] virtual std::unique_ptr<QWindow> makeSettings() = 0;
};

/// Makes the factory, which the program does not do before the first window opens. Everything in the context
/// must outlive the result. Null, with the reason on the program's standard error, when what makes the
/// windows cannot be loaded, which happens when the program is not installed whole.
using WindowFactoryLoader = std::function<std::unique_ptr<WindowFactory>(const WindowContext& context)>;

/// Finds what makes the windows, and keeps it: an upgrade may replace or remove the file while the program
/// runs, and what it then brings need not fit the program. To be called when the program starts.
[[nodiscard]] WindowFactoryLoader findWindowFactory();

/// The name of the function below in the module that holds the windows.
inline constexpr const char* makeWindowFactorySymbol = "orvelleMakeWindowFactory";

} // namespace orvelle

/// The factory itself, in Qt Quick. The caller owns it.
extern "C" [[gnu::visibility("default")]] orvelle::WindowFactory*
orvelleMakeWindowFactory(const orvelle::WindowContext& context);
