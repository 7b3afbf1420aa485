#include "snapshot/window_pictures.h"

#include "animation/animation_clock.h"
#include "core/system_monitor.h"
#include "menu_bar/modules.h"
#include "snapshot/sheets.h"
#include "windows/common/quick_engine.h"
#include "windows/panels/panel_factory.h"
#include "windows/settings/settings_window.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickItem>

#include <cmath>

namespace orvelle {
namespace {

/// An engine without animations.
std::unique_ptr<QQmlEngine> makeStillEngine() {
    AnimationClock::shared().setReduced(true);
    return makeEngine();
}

/// Gives the window the height of its content, so that nothing scrolls.
void growToContent(QQuickView& window, const QQuickItem& scroller) {
    window.resize(window.width(), static_cast<int>(std::ceil(scroller.property("contentHeight").toDouble())));
    QCoreApplication::processEvents();
}

} // namespace

QImage pictureOf(QQuickView& window) {
    QCoreApplication::processEvents();
    QImage image = window.grabWindow();
    image.setDevicePixelRatio(window.effectiveDevicePixelRatio()); // the software renderer leaves it out
    return image;
}

QList<WindowPicture> panelPictures(SystemMonitor& monitor, FreshSettings& settings) {
    const std::unique_ptr<QQmlEngine> engine = makeStillEngine();
    PanelFactory factory(
        *engine,
        {.monitor = monitor, .settings = settings.store, .themes = settings.themes, .openSettings = [] {}});
    QList<WindowPicture> pictures;
    for (const ModuleInfo& module : moduleTable) {
        const std::unique_ptr<QQuickView> panel = factory.makePanel(module.id);
        if (panel == nullptr)
            continue;
        panel->show(); // a panel is filled when it is first shown
        pictures.append({QStringLiteral("panel-") + module.key, pictureOf(*panel)});
    }
    return pictures;
}

QList<SettingsPose> settingsPoses() {
    return {{.name = QStringLiteral("settings"), .size = settingsSize, .isUnfolded = true, .isWhole = true},
            {.name = QStringLiteral("settings-folded"), .size = settingsSize, .isWhole = true},
            {.name = QStringLiteral("settings-small"), .size = smallestSettingsSize},
            {.name = QStringLiteral("settings-narrow"),
             .size = smallestSettingsSize,
             .isUnfolded = true,
             .isWhole = true}};
}

WindowPicture settingsPicture(FreshSettings& settings, const SettingsPose& pose) {
    const std::unique_ptr<QQmlEngine> engine = makeStillEngine();
    const std::unique_ptr<QQuickView> window =
        makeSettingsView(*engine, {.settings = settings.store, .themes = settings.themes, .quitApp = [] {}});
    window->resize(pose.size);
    window->show();
    if (auto* overrides = window->findChild<QQuickItem*>(QStringLiteral("overrides")))
        overrides->setProperty("showCustomColors", pose.isUnfolded);
    (void)pictureOf(*window); // lays out the content, whose height is needed
    const auto* scroller = window->findChild<QQuickItem*>(QStringLiteral("scroller"));
    if (scroller != nullptr && pose.isWhole)
        growToContent(*window, *scroller);
    return {pose.name, pictureOf(*window)};
}

} // namespace orvelle
