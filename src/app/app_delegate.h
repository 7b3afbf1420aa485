#pragma once

#include "app/modules.h"
#include "app/shell/status_bar.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <vector>

namespace orvelle {

class Throttle;

/// Runs the program: it starts the sampling, keeps one status item for each module that the settings show and
/// redraws them when there are new values. Main thread only.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    /// The menu bar is redrawn at most once in this time, however often the monitors sample.
    static constexpr std::chrono::milliseconds redrawInterval{2000};
    /// How often the settings are asked which modules to show.
    static constexpr std::chrono::milliseconds visibilityInterval{3000};

    /// Everything that is passed must outlive the delegate.
    AppDelegate(SystemMonitor& monitor, const SettingsStore& settings, const ThemeManager& themes,
                StatusBar& statusBar, QObject* parent = nullptr);
    ~AppDelegate() override;

    /// Samples once, shows the items and starts both timers. From now on a changed interval restarts the
    /// sampling, whoever changed it.
    void applicationDidFinishLaunching();
    /// Stops both timers; the items stay as they are.
    void applicationWillTerminate();

    /// Recreates all items, in their fixed order, when a module has been switched on or off since the last
    /// time.
    void checkVisibility();

    /// What a click on an item does: a right click opens its menu.
    void statusItemClicked(StatusItem& item, ClickButton button);
    void showContextMenu(const StatusItem& item);
    /// Ends the program.
    static void quitApp();

    /// The items that exist now, by module key.
    [[nodiscard]] const QMap<QString, StatusItem*>& statusItems() const { return m_statusItems; }
    /// Whether the settings are being re-checked.
    [[nodiscard]] bool isRefreshing() const { return m_refreshTimer != nullptr; }

private:
    using Visibility = QMap<QString, bool>;

    void setupStatusItems();
    void createStatusItem(const Module& module);
    [[nodiscard]] Visibility currentVisibility() const;
    void snapshotVisibility();
    void startRefreshTimer();

    QMap<QString, StatusItem*> m_statusItems;
    SystemMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
    StatusBar& m_statusBar;
    /// One per item; what an item is subscribed to ends with it.
    std::vector<std::unique_ptr<Throttle>> m_cancellables;
    std::unique_ptr<ContextMenu> m_contextMenu; ///< null before the first right click
    std::unique_ptr<QTimer> m_refreshTimer;
    Visibility m_previousVisibility;
};

} // namespace orvelle
