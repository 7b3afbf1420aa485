#include "app/app_delegate.h"

#include "app/context_menu_entries.h"
#include "app/throttle.h"
#include "core/system_monitor.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

#include <QCoreApplication>

namespace orvelle {

AppDelegate::AppDelegate(SystemMonitor& monitor, const SettingsStore& settings, const ThemeManager& themes,
                         StatusBar& statusBar, QObject* parent)
    : QObject(parent)
    , m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes)
    , m_statusBar(statusBar) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    m_monitor.start();
    connect(&m_settings, &SettingsStore::updateIntervalChanged, &m_monitor, &SystemMonitor::restart);
    setupStatusItems();
    snapshotVisibility();
    startRefreshTimer();
}

void AppDelegate::applicationWillTerminate() {
    disconnect(&m_settings, nullptr, &m_monitor, nullptr);
    m_monitor.stop();
    m_refreshTimer.reset();
}

void AppDelegate::setupStatusItems() {
    m_cancellables.clear();
    if (m_contextMenu != nullptr)
        m_contextMenu->close(); // the item above it goes
    for (StatusItem* item : std::as_const(m_statusItems))
        m_statusBar.removeItem(*item);
    m_statusItems.clear();
    for (const Module& module : modules()) {
        if ((m_settings.*module.isShown)())
            createStatusItem(module);
    }
}

void AppDelegate::createStatusItem(const Module& module) {
    StatusItem& item = m_statusBar.addItem(module.key, module.length);
    m_statusItems.insert(module.key, &item);
    item.setClickHandler([this, &item](ClickButton button) { statusItemClicked(item, button); });

    const auto redraw = [this, &item, makeView = module.makeMenuBarView] {
        item.setView(makeView({m_monitor, m_settings, m_themes}));
    };
    redraw();
    auto throttle = std::make_unique<Throttle>(redrawInterval);
    connect(&m_monitor, &SystemMonitor::changed, throttle.get(), &Throttle::trigger);
    connect(throttle.get(), &Throttle::passed, throttle.get(), redraw);
    // What the user chooses is seen at once. The theme is one of the settings, and has changed by then.
    connect(&m_settings, &SettingsStore::changed, throttle.get(), redraw);
    m_cancellables.push_back(std::move(throttle));
}

void AppDelegate::statusItemClicked(StatusItem& item, ClickButton button) {
    if (button == ClickButton::right)
        showContextMenu(item);
}

void AppDelegate::showContextMenu(const StatusItem& item) {
    if (m_contextMenu == nullptr)
        m_contextMenu = m_statusBar.makeContextMenu();
    m_contextMenu->show(item, contextMenuEntries(nullptr, &AppDelegate::quitApp));
}

void AppDelegate::quitApp() {
    QCoreApplication::quit();
}

AppDelegate::Visibility AppDelegate::currentVisibility() const {
    Visibility visibility;
    for (const Module& module : modules())
        visibility.insert(module.key, (m_settings.*module.isShown)());
    return visibility;
}

void AppDelegate::snapshotVisibility() {
    m_previousVisibility = currentVisibility();
}

void AppDelegate::startRefreshTimer() {
    m_refreshTimer = std::make_unique<QTimer>();
    m_refreshTimer->callOnTimeout(this, &AppDelegate::checkVisibility);
    // Coarse, so that it wakes the process together with the sampling timer.
    m_refreshTimer->setTimerType(Qt::CoarseTimer);
    m_refreshTimer->start(visibilityInterval);
}

void AppDelegate::checkVisibility() {
    if (currentVisibility() == m_previousVisibility)
        return;
    setupStatusItems();
    snapshotVisibility();
}

} // namespace orvelle
