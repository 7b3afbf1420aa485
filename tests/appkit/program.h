#pragma once

#include "app/app_delegate.h"
#include "appkit/simulated/desktop.h"
#include "core/system_monitor.h"
#include "platform/replay/fake_sources.h"
#include "settings/settings_store.h"
#include "shell/desktop.h"
#include "theme/theme_manager.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {

/// The program as it runs on macOS, apart from its event loop, its machine and what its windows contain.
class Program {
public:
    Program();

    /// The settings for all six modules at once.
    void showAll(bool shown);
    /// Adds an item that belongs to no module.
    StatusItem& addItem(const char* identifier, double length = 40) {
        return statusBar->addItem(QLatin1StringView(identifier), length);
    }

    QTemporaryDir directory;
    SettingsStore settings{directory.filePath(QStringLiteral("settings.ini"))};
    ThemeManager themes{settings};
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
    std::unique_ptr<Desktop> desktop = chooseDesktop(desktopNames().first()).make(settings);
    std::unique_ptr<StatusBar> statusBar = desktop->makeStatusBar();
    /// What was made for the windows: keys of panels and "settings".
    QStringList contents;
    std::vector<QWindow*> contentWindows; ///< not those that are gone
    double panelCornerRadius = -1;        ///< asked for last
    bool canMakeContents = true;
    std::optional<WindowContext> context; ///< what the contents were given
    AppDelegate delegate;
};

/// A test on a fresh desktop. At its end everything lent must have been given back and no call may have been
/// wrong.
class AppKitTest : public ::testing::Test {
protected:
    AppKitTest() { simulated::startDesktop(); }
    void TearDown() override;

    /// The program, not yet launched.
    [[nodiscard]] Program& program() {
        if (!m_program)
            m_program.emplace();
        return *m_program;
    }
    /// The program with all six modules shown, launched.
    Program& launch();
    /// Ends the program.
    void end() { m_program.reset(); }
    /// Ends the program and checks the account, as at the end of the test; then the test goes on with a fresh
    /// desktop.
    void startAfresh();

private:
    std::optional<Program> m_program;
};

/// The places of the modules in the menu bar when all are shown.
inline constexpr std::size_t cpuItem = 0, memoryItem = 1, sensorItem = 5;

/// The identifiers of the items that there are, from left to right.
[[nodiscard]] std::vector<std::string> itemIdentifiers();
/// The one popover that is shown; a failure when there is none or more than one.
[[nodiscard]] simulated::PopoverState shownPopover();
/// How many popovers are shown.
[[nodiscard]] long shownPopoverCount();

} // namespace orvelle
