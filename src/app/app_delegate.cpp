#include "app/app_delegate.h"

#include "app/throttle.h"
#include "core/system_monitor.h"
#include "settings/settings_store.h"
#include "theme/fonts.h"
#include "theme/theme_manager.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvelle {

std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings, std::function<void()> quitApp) {
    return {{QStringLiteral("Settings..."), QStringLiteral(","), std::move(openSettings)},
            {},
            {QStringLiteral("Quit Orvelle"), QStringLiteral("q"), std::move(quitApp)}};
}

AppDelegate::AppDelegate(SystemMonitor& monitor, SettingsStore& settings, ThemeManager& themes,
                         AppDependencies dependencies, QObject* parent)
    : QObject(parent)
    , m_dependencies(std::move(dependencies))
    , m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    m_monitor.start();
    connect(&m_settings, &SettingsStore::updateIntervalChanged, &m_monitor, [this] {
        m_monitor.restart();
        startRefreshTimer();
    });
    connect(&m_dependencies.statusBar, &StatusBar::firstPainted, this, &AppDelegate::handleFirstPainted);
    m_dependencies.statusBar.setMenu(contextMenuEntries([this] { openSettings(); }, &AppDelegate::quitApp));
    setupStatusItems();
    snapshotVisibility();
    startRefreshTimer();
}

void AppDelegate::applicationWillTerminate() {
    disconnect(&m_settings, nullptr, &m_monitor, nullptr);
    m_monitor.stop();
    m_refreshTimer.reset();
}

void AppDelegate::applicationShouldHandleReopen() {
    checkVisibility(); // a module may just have been switched on
    if (m_statusItems.isEmpty())
        openSettings();
    else
        m_dependencies.statusBar.takeKeyboard();
}

void AppDelegate::handleRequest(const StartRequest& request) {
    switch (request.kind) {
    case StartRequest::Kind::startAgain:
        applicationShouldHandleReopen();
        break;
    case StartRequest::Kind::openSettings:
        openSettings();
        break;
    case StartRequest::Kind::openPanel:
        openPanel(request.module);
        break;
    case StartRequest::Kind::quit:
        quitApp();
        break;
    }
}

void AppDelegate::openPanel(const QString& key) {
    checkVisibility(); // the module may just have been switched on
    const bool isKnown =
        std::ranges::any_of(moduleTable, [&key](const ModuleInfo& module) { return module.key == key; });
    const StatusItem* item = m_statusItems.value(key);
    if (!isKnown) {
        applicationShouldHandleReopen();
    } else if (item == nullptr) {
        openSettings();
    } else if (!m_hasPainted) {
        m_awaitedPanel = key;
    } else if (!isPopoverShown(key)) {
        m_dependencies.statusBar.chooseItem(*item);
        togglePopover(*item);
    }
}

void AppDelegate::handleFirstPainted() {
    m_hasPainted = true;
    if (const QString key = std::exchange(m_awaitedPanel, {}); !key.isEmpty())
        openPanel(key);
}

void AppDelegate::setupStatusItems() {
    m_cancellables.reset();
    m_popovers.clear();
    if (m_contextMenu != nullptr)
        m_contextMenu->close(); // its item is about to be removed
    for (StatusItem* item : std::as_const(m_statusItems))
        m_dependencies.statusBar.removeItem(*item);
    m_statusItems.clear();
    m_shownModules.clear();
    std::vector<ModuleInfo> shown;
    std::ranges::copy_if(moduleTable, std::back_inserter(shown),
                         [this](const ModuleInfo& module) { return m_settings.isShown(module.id); });
    if (m_dependencies.statusBar.addsItemsOnTheLeft())
        std::ranges::reverse(shown); // the table's order is that from left to right
    for (const ModuleInfo& module : shown)
        createStatusItem(module);
    redraw();
    subscribe();
}

void AppDelegate::createStatusItem(const ModuleInfo& module) {
    StatusItem& item = m_dependencies.statusBar.addItem(module.key, module.width);
    m_statusItems.insert(module.key, &item);
    item.setClickHandler([this, &item](ClickButton button) { statusItemClicked(item, button); });
    m_popovers.insert_or_assign(module.key,
                                m_dependencies.statusBar.makePopover([this, id = module.id](double radius) {
                                    return windows() ? windows()->makePanel(id, radius) : nullptr;
                                }));
    m_shownModules.push_back({module.id, std::make_unique<ItemPresenter>(item, m_dependencies.clock)});
}

void AppDelegate::subscribe() {
    m_cancellables = std::make_unique<Throttle>(redrawInterval, this);
    Throttle* throttle = m_cancellables.get();
    connect(&m_monitor, &SystemMonitor::changed, throttle, &Throttle::trigger);
    connect(throttle, &Throttle::passed, throttle, [this] { redraw(); });
    // A new setting takes effect at once. The theme is a setting, and has already changed at this point.
    connect(&m_settings, &SettingsStore::changed, throttle, [this] { redraw(); });
    connect(&FontChanges::shared(), &FontChanges::changed, throttle, [this] { redraw(); });
}

void AppDelegate::redraw() {
    const ModuleContext context{m_monitor, m_settings, m_themes};
    const double usage = m_monitor.cpu().totalUsage();
    for (const ShownModule& shown : m_shownModules) {
        shown.presenter->show(makeScene(shown.module, context), usage);
        if (shown.presenter->showsIcon())
            shown.presenter->showIcon(makeIcon(shown.module, context));
    }
}

void AppDelegate::statusItemClicked(const StatusItem& item, ClickButton button) {
    if (button == ClickButton::right)
        showContextMenu(item);
    else
        togglePopover(item);
}

void AppDelegate::togglePopover(const StatusItem& item) {
    const auto found = m_popovers.find(item.identifier());
    if (found == m_popovers.end())
        return;
    Popover& popover = *found->second;
    if (m_contextMenu != nullptr)
        m_contextMenu->close();
    closePopoversExcept(&popover);
    if (popover.isShown())
        popover.close();
    else
        popover.show(item);
}

void AppDelegate::closePopoversExcept(const Popover* kept) {
    for (const auto& [key, popover] : m_popovers) {
        if (popover.get() != kept && popover->isShown())
            popover->close();
    }
}

bool AppDelegate::isPopoverShown(const QString& key) const {
    const auto found = m_popovers.find(key);
    return found != m_popovers.end() && found->second->isShown();
}

void AppDelegate::showContextMenu(const StatusItem& item) {
    closePopoversExcept(nullptr);
    if (m_contextMenu == nullptr)
        m_contextMenu = m_dependencies.statusBar.makeContextMenu();
    m_contextMenu->show(item, contextMenuEntries([this] { openSettings(); }, &AppDelegate::quitApp));
}

void AppDelegate::openSettings() {
    qCDebug(openLog, "the settings were asked for");
    if (m_settingsWindow == nullptr && windows() != nullptr) {
        if (std::unique_ptr<QWindow> content = windows()->makeSettings())
            m_settingsWindow = m_dependencies.makeSettingsWindow(std::move(content));
    }
    if (m_settingsWindow != nullptr)
        m_settingsWindow->bringForward();
}

WindowFactory* AppDelegate::windows() {
    if (m_windowFactory == nullptr)
        m_windowFactory =
            m_dependencies.loadWindowFactory({m_monitor, m_settings, m_themes, [this] { openSettings(); },
                                              &AppDelegate::quitApp, m_dependencies.launchAtLogin});
    return m_windowFactory.get();
}

void AppDelegate::quitApp() {
    QCoreApplication::quit();
}

AppDelegate::Visibility AppDelegate::currentVisibility() const {
    Visibility visibility;
    for (const ModuleInfo& module : moduleTable)
        visibility.insert(module.key, m_settings.isShown(module.id));
    return visibility;
}

void AppDelegate::snapshotVisibility() {
    m_previousVisibility = currentVisibility();
}

void AppDelegate::startRefreshTimer() {
    m_refreshTimer = std::make_unique<QTimer>(this);
    m_refreshTimer->callOnTimeout(this, &AppDelegate::checkVisibility);
    m_refreshTimer->setTimerType(Qt::PreciseTimer); // a coarse timer may be late by a twentieth
    m_refreshTimer->setInterval(visibilityInterval);
    // Every sample checks too, so the timer is needed only while samples come less often.
    connect(&m_monitor, &SystemMonitor::changed, m_refreshTimer.get(), [this] { checkVisibility(); });
    if (m_monitor.activeInterval() > std::chrono::duration<double>(visibilityInterval).count())
        m_refreshTimer->start();
}

void AppDelegate::checkVisibility() {
    if (currentVisibility() == m_previousVisibility)
        return;
    setupStatusItems();
    snapshotVisibility();
}

} // namespace orvelle
