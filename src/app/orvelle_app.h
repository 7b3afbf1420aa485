#pragma once

#include "app/app_delegate.h"
#include "app/launch_at_login.h"
#include "app/termination_signals.h"
#include "core/system_monitor.h"
#include "settings/settings_store.h"
#include "shell/desktop.h"
#include "theme/theme_manager.h"

#include <QElapsedTimer>
#include <QGuiApplication>

namespace orvelle {

/// The program: owns and connects everything that lives as long as the process.
class OrvelleApp {
public:
    /// The application object exists. `sinceStart` started when the process entered main(). The references
    /// must outlive the object.
    OrvelleApp(SettingsStore& settings, Desktop& desktop, SingleInstance& instance, QElapsedTimer sinceStart);

    /// Does what this start was asked for, and runs until the program quits; returns its exit status.
    [[nodiscard]] int run(const StartRequest& request);

private:
    /// Keeps a restored session from starting the program: it would ignore the setting to start at login, and
    /// add a second process to the one that the login item starts.
    void leaveLoginToItsSwitch();
    void logStart();
    void logSamples();
    void logMotion();
    void logFonts();

    QElapsedTimer m_sinceStart;
    SettingsStore& m_settings;
    Desktop& m_desktop;
    TerminationSignals m_terminationSignals;
    ThemeManager m_themes;
    SystemMonitor m_monitor;
    std::unique_ptr<QObject> m_reducedMotion; ///< null where the desktop does not report it
    std::unique_ptr<QObject> m_desktopFonts;  ///< null where Qt knows the fonts
    std::unique_ptr<StatusBar> m_statusBar;
    LaunchAtLogin m_launchAtLogin;
    AppDelegate m_delegate;
};

} // namespace orvelle
