#pragma once

#include "menu_bar/item_presenter.h"
#include "menu_bar/modules.h"
#include "shell/desktop.h"
#include "windows/window_factory.h"

#include <QMap>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>
#include <vector>

namespace orvelle {

class Throttle;

/// What the delegate asks of the desktop and of the windows' contents.
struct AppDependencies {
    StatusBar& statusBar;
    std::function<std::unique_ptr<WindowFactory>(const WindowContext&)> loadWindowFactory;
    std::function<std::unique_ptr<SettingsWindow>(std::unique_ptr<QWindow>)> makeSettingsWindow;
    /// What the settings window tells about starting at login, see `WindowContext`.
    QObject* launchAtLogin = nullptr;
    /// The clock by which the items move.
    AnimationClock& clock = AnimationClock::shared();
};

/// The menu that a right click on any item opens.
[[nodiscard]] std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings,
                                                        std::function<void()> quitApp);

/// Runs the program: it starts the sampling, keeps one status item with its panel for each module that the
/// settings show, redraws the items when there are new values, and owns the settings window. Main thread
/// only.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    /// The menu bar is redrawn at most once in this time, however often the monitors sample.
    static constexpr std::chrono::milliseconds redrawInterval{2000};
    /// How often the settings are asked which modules to show.
    static constexpr std::chrono::milliseconds visibilityInterval{3000};

    /// Everything that is passed must outlive the delegate.
    AppDelegate(SystemMonitor& monitor, SettingsStore& settings, ThemeManager& themes,
                AppDependencies dependencies, QObject* parent = nullptr);
    ~AppDelegate() override;

    /// Samples once, shows the items and starts both timers. From now on a changed interval restarts the
    /// sampling, whoever changed it.
    void applicationDidFinishLaunching();
    /// Stops both timers; the items stay as they are.
    void applicationWillTerminate();

    /// What a second start of the program does: the keyboard moves to the items. Who has hidden every module
    /// gets the settings, which can show them again.
    void applicationShouldHandleReopen();

    /// Recreates all items, in their fixed order, when a module has been switched on or off since the last
    /// time.
    void checkVisibility();

    /// What a click on an item does: a right click opens its menu, a left one its panel.
    void statusItemClicked(const StatusItem& item, ClickButton button);
    /// Opens the panel of an item, in place of another one's, or closes it when it is open.
    void togglePopover(const StatusItem& item);
    void showContextMenu(const StatusItem& item);
    /// Opens the settings window, or brings it before the others.
    void openSettings();
    /// Ends the program.
    static void quitApp();

    /// The items that exist now, by module key.
    [[nodiscard]] const QMap<QString, StatusItem*>& statusItems() const { return m_statusItems; }
    /// Whether the panel of this module is open.
    [[nodiscard]] bool isPopoverShown(const QString& key) const;
    /// Whether the settings are being re-checked.
    [[nodiscard]] bool isRefreshing() const { return m_refreshTimer != nullptr; }

private:
    using Visibility = QMap<QString, bool>;

    struct ShownModule {
        ModuleId module;
        std::unique_ptr<ItemPresenter> presenter;
    };

    void setupStatusItems();
    void createStatusItem(const ModuleInfo& module);
    void subscribe();
    /// Shows the present values in every item.
    void redraw();
    void closePopoversExcept(const Popover* kept);
    [[nodiscard]] WindowFactory* windows();
    [[nodiscard]] Visibility currentVisibility() const;
    void snapshotVisibility();
    void startRefreshTimer();

    AppDependencies m_dependencies;
    std::unique_ptr<WindowFactory>
        m_windowFactory; ///< null before the first window opens; it outlives their contents
    QMap<QString, StatusItem*> m_statusItems;
    std::map<QString, std::unique_ptr<Popover>> m_popovers; ///< by module key, one for each item
    SystemMonitor& m_monitor;
    SettingsStore& m_settings;
    ThemeManager& m_themes;
    /// What shows the scenes of the items that exist now, in their order.
    std::vector<ShownModule> m_shownModules;
    /// Holds back the redraws of the items; null before there are any. What they are subscribed to ends with
    /// it.
    std::unique_ptr<Throttle> m_cancellables;
    std::unique_ptr<ContextMenu> m_contextMenu;       ///< null before the first right click
    std::unique_ptr<QTimer> m_refreshTimer;           ///< runs while samples come less often
    std::unique_ptr<SettingsWindow> m_settingsWindow; ///< null before it is first asked for
    Visibility m_previousVisibility;
};

} // namespace orvelle
