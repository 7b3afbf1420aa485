#include "windows/panels/panel_factory.h"

#include "core/system_monitor.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"
#include "windows/charts/chart_types.h"
#include "windows/panels/panel_types.h"
#include "windows/panels/panel_window.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <optional>
#include <utility>

namespace orvelle {
namespace {

/// A panel's file and the monitors that it shows.
struct PanelRecipe {
    QString file;
    QString windowTitle; ///< not seen, but read out
    QVariantMap monitors;
};

std::optional<PanelRecipe> recipeOf(QStringView key, SystemMonitor& monitor) {
    const auto object = [](QObject& source) { return QVariant::fromValue(&source); };
    if (key == u"cpu")
        return PanelRecipe{QStringLiteral("CPUPanelView"),
                           QStringLiteral("Orvelle CPU"),
                           {{QStringLiteral("cpu"), object(monitor.cpu())},
                            {QStringLiteral("process"), object(monitor.process())}}};
    if (key == u"memory")
        return PanelRecipe{QStringLiteral("MemoryPanelView"),
                           QStringLiteral("Orvelle Memory"),
                           {{QStringLiteral("memory"), object(monitor.memory())},
                            {QStringLiteral("process"), object(monitor.process())}}};
    if (key == u"network")
        return PanelRecipe{QStringLiteral("NetworkPanelView"),
                           QStringLiteral("Orvelle Network"),
                           {{QStringLiteral("network"), object(monitor.network())}}};
    if (key == u"disk")
        return PanelRecipe{QStringLiteral("DiskPanelView"),
                           QStringLiteral("Orvelle Disk"),
                           {{QStringLiteral("disk"), object(monitor.disk())}}};
    if (key == u"battery")
        return PanelRecipe{QStringLiteral("BatteryPanelView"),
                           QStringLiteral("Orvelle Battery"),
                           {{QStringLiteral("battery"), object(monitor.battery())}}};
    if (key == u"sensor")
        return PanelRecipe{QStringLiteral("SensorPanelView"),
                           QStringLiteral("Orvelle Sensors"),
                           {{QStringLiteral("sensor"), object(monitor.sensor())}}};
    return std::nullopt;
}

} // namespace

PanelFactory::PanelFactory(QQmlEngine& engine, PanelContext context)
    : m_engine(engine)
    , m_context(std::move(context)) {
    registerChartTypes();
    registerPanelTypes();
}

std::unique_ptr<QQuickView> PanelFactory::makePanel(QStringView key, double cornerRadius) {
    std::optional<PanelRecipe> recipe = recipeOf(key, m_context.monitor);
    if (!recipe)
        return nullptr;
    QVariantMap properties = recipe->monitors;
    properties.insert(QStringLiteral("settings"), QVariant::fromValue(&m_context.settings));
    properties.insert(QStringLiteral("themeManager"), QVariant::fromValue(&m_context.themes));

    QQmlComponent component(&m_engine, QUrl(QStringLiteral("qrc:/Orvelle/Panels/%1.qml").arg(recipe->file)));
    // A component that is not ready must not be asked to create anything.
    auto* panel = component.isReady()
                      ? qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties))
                      : nullptr;
    if (panel == nullptr) {
        qWarning("%s", qUtf8Printable(component.errorString()));
        return nullptr;
    }
    auto window = std::make_unique<PanelWindow>(m_engine, m_context.openSettings);
    panel->setParent(window.get());
    if (cornerRadius > 0)
        window->makeTranslucent();
    window->setPanel(*panel, {{QStringLiteral("themeManager"), QVariant::fromValue(&m_context.themes)},
                              {QStringLiteral("cornerRadius"), cornerRadius}});
    window->setTitle(recipe->windowTitle);
    window->resize(panelSize);
    return window;
}

} // namespace orvelle
