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

/// The program: it owns everything that lives as long as the process and connects it.
class OrvelleApp {
public:
    /// `sinceStart` was started when the process entered main(). Needs a desktop that `prepareDesktop()` has
    /// found. The arguments name the program and nothing else; both must outlive the object.
    OrvelleApp(int& argumentCount, char** arguments, QElapsedTimer sinceStart);

    /// Runs until the program is told to end; returns its exit status. Ends at once, and well, when the
    /// program runs on this desktop already.
    [[nodiscard]] int run();

private:
    /// A session that restores what ran in it would start the program whether or not the user has it start
    /// at login, and beside the one that the login item starts.
    void leaveLoginToItsSwitch();
    void logStart();
    void logSamples();
    void logMotion();
    void logFonts();

    QElapsedTimer m_sinceStart;
    QGuiApplication m_application;
    TerminationSignals m_terminationSignals;
    SettingsStore m_settings{openUserSettings()};
    ThemeManager m_themes;
    SystemMonitor m_monitor;
    std::unique_ptr<QObject> m_reducedMotion; ///< null where the desktop cannot say whether it is wanted
    std::unique_ptr<QObject> m_desktopFonts;  ///< null where Qt knows the fonts
    std::unique_ptr<StatusBar> m_statusBar;
    std::unique_ptr<SingleInstance> m_singleInstance; ///< null before run()
    LaunchAtLogin m_launchAtLogin;
    AppDelegate m_delegate;
};

} // namespace orvelle
