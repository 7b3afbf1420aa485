#include "snapshot/panel_pictures.h"

#include "app/modules.h"
#include "charts/motion.h"
#include "core/system_monitor.h"
#include "look/quick/quick_engine.h"
#include "panels/panel_factory.h"
#include "snapshot/sheets.h"

#include <QCoreApplication>
#include <QQmlEngine>

namespace orvelle {

QList<PanelPicture> panelPictures(SystemMonitor& monitor, FreshSettings& settings) {
    Motion::shared().setReduced(true); // so that everything stands where it would come to rest
    const std::unique_ptr<QQmlEngine> engine = makeEngine();
    PanelFactory factory(
        *engine,
        {.monitor = monitor, .settings = settings.store, .themes = settings.themes, .openSettings = [] {}});
    QList<PanelPicture> pictures;
    for (const Module& module : modules()) {
        const std::unique_ptr<QQuickView> panel = factory.makePanel(QString(module.key));
        if (panel == nullptr)
            continue;
        panel->show(); // what was never shown has not been filled yet
        QCoreApplication::processEvents();
        QImage image = panel->grabWindow();
        image.setDevicePixelRatio(
            panel->effectiveDevicePixelRatio()); // which the software renderer leaves out
        pictures.append({QStringLiteral("panel-") + module.key, image});
    }
    return pictures;
}

} // namespace orvelle
