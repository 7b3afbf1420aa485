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

/// The parts of the desktop and the window contents that the delegate uses.
struct AppDependencies {
    StatusBar& statusBar;
    WindowFactoryLoader loadWindowFactory;
    std::function<std::unique_ptr<SettingsWindow>(std::unique_ptr<QWindow>)> makeSettingsWindow;
    /// Reports errors of starting at login to the settings window, see `WindowContext`.
    QObject* launchAtLogin = nullptr;
    /// Drives the animation of the items.
    AnimationClock& clock = AnimationClock::shared();
};

/// The menu that a right click on any item opens.
[[nodiscard]] std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings,
                                                        std::function<void()> quitApp);

/// Runs the program: starts the sampling, keeps one status item with its panel per visible module, redraws
/// the items when there are new values, and owns the settings window. Main thread only.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    /// The menu bar is redrawn at most once per interval, however often the monitors sample.
    static constexpr std::chrono::milliseconds redrawInterval{2000};
    /// How often the delegate checks which modules the settings show.
    static constexpr std::chrono::milliseconds visibilityInterval{3000};

    /// All referenced objects must outlive the delegate.
    AppDelegate(SystemMonitor& monitor, SettingsStore& settings, ThemeManager& themes,
                AppDependencies dependencies, QObject* parent = nullptr);
    ~AppDelegate() override;

    /// Samples once, shows the items and starts both timers. Afterwards any change of the interval restarts
    /// the sampling.
    void applicationDidFinishLaunching();
    /// Stops both timers; the items stay as they are.
    void applicationWillTerminate();

    /// Handles a second start of the program: moves the keyboard focus to the items. If every module is
    /// hidden, opens the settings instead, where modules can be shown again.
    void applicationShouldHandleReopen();
    /// Does what a start of the program asks for.
    void handleRequest(const StartRequest& request);
    /// Opens the panel of the module with this key, with the keyboard in it, as soon as the items are on the
    /// screen. Leaves a panel open that is. Opens the settings if the module is hidden; for a key that no
    /// module has, does what any second start does.
    void openPanel(const QString& key);

    /// Recreates all items in their fixed order if a module has been switched on or off since the last call.
    void checkVisibility();

    /// Handles a click on an item: a right click opens its menu, a left click its panel.
    void statusItemClicked(const StatusItem& item, ClickButton button);
    /// Opens the panel of an item and closes any other panel. Closes the panel if it is already open.
    void togglePopover(const StatusItem& item);
    void showContextMenu(const StatusItem& item);
    /// Opens the settings window, or brings it to the front.
    void openSettings();
    /// Ends the program.
    static void quitApp();

    /// The present items, by module key.
    [[nodiscard]] const QMap<QString, StatusItem*>& statusItems() const { return m_statusItems; }
    /// Whether the panel of this module is open.
    [[nodiscard]] bool isPopoverShown(const QString& key) const;
    /// Whether the timer that checks the settings runs.
    [[nodiscard]] bool isRefreshing() const { return m_refreshTimer != nullptr; }

private:
    using Visibility = QMap<QString, bool>;

    struct ShownModule {
        ModuleId module;
        std::unique_ptr<ItemPresenter> presenter;
    };

    void setupStatusItems();
    void createStatusItem(const ModuleInfo& module);
    void handleFirstPainted();
    void subscribe();
    /// Shows the current values in every item.
    void redraw();
    void closePopoversExcept(const Popover* kept);
    [[nodiscard]] WindowFactory* windows();
    [[nodiscard]] Visibility currentVisibility() const;
    void snapshotVisibility();
    void startRefreshTimer();

    AppDependencies m_dependencies;
    std::unique_ptr<WindowFactory>
        m_windowFactory; ///< null before the first window opens; outlives the windows' contents
    QMap<QString, StatusItem*> m_statusItems;
    std::map<QString, std::unique_ptr<Popover>> m_popovers; ///< by module key, one for each item
    SystemMonitor& m_monitor;
    SettingsStore& m_settings;
    ThemeManager& m_themes;
    /// The presenters of the present items, in the order of their creation.
    std::vector<ShownModule> m_shownModules;
    /// Limits the redraws of the items; null before there are items. Destroying it ends their subscriptions.
    std::unique_ptr<Throttle> m_cancellables;
    std::unique_ptr<ContextMenu> m_contextMenu;       ///< null before the first right click
    std::unique_ptr<QTimer> m_refreshTimer;           ///< runs while samples come less often
    std::unique_ptr<SettingsWindow> m_settingsWindow; ///< null before it first opens
    bool m_hasPainted = false;                        ///< the items have been on the screen
    QString m_awaitedPanel; ///< key of the panel to open when they are; empty for none
    Visibility m_previousVisibility;
};

} // namespace orvelle
