#include "panels/panel_factory.h"

#include "charts/quick/chart_types.h"
#include "core/system_monitor.h"
#include "panels/panel_window.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <optional>
#include <utility>

void qml_register_types_Orvelle_Panels(); // written by the build

/// A static library does not register what it holds by itself. The macro must stand outside all namespaces.
static void registerPanels() {
    //  Q_INIT_RESOURCE(qmlcache_orvelle_panels);
    qml_register_types_Orvelle_Panels();
}

namespace orvelle {
namespace {

/// A panel's file and the monitors that it shows.
struct PanelRecipe {
    QString file;
    QVariantMap monitors;
};

std::optional<PanelRecipe> recipeOf(QStringView key, SystemMonitor& monitor) {
    const auto object = [](QObject& source) { return QVariant::fromValue(&source); };
    if (key == u"cpu")
        return PanelRecipe{QStringLiteral("CPUPanelView"),
                           {{QStringLiteral("cpu"), object(monitor.cpu())},
                            {QStringLiteral("process"), object(monitor.process())}}};
    if (key == u"memory")
        return PanelRecipe{QStringLiteral("MemoryPanelView"),
                           {{QStringLiteral("memory"), object(monitor.memory())},
                            {QStringLiteral("process"), object(monitor.process())}}};
    if (key == u"network")
        return PanelRecipe{QStringLiteral("NetworkPanelView"),
                           {{QStringLiteral("network"), object(monitor.network())}}};
    if (key == u"disk")
        return PanelRecipe{QStringLiteral("DiskPanelView"),
                           {{QStringLiteral("disk"), object(monitor.disk())}}};
    if (key == u"battery")
        return PanelRecipe{QStringLiteral("BatteryPanelView"),
                           {{QStringLiteral("battery"), object(monitor.battery())}}};
    if (key == u"sensor")
        return PanelRecipe{QStringLiteral("SensorPanelView"),
                           {{QStringLiteral("sensor"), object(monitor.sensor())}}};
    return std::nullopt;
}

/// What is done once in the life of the program, whatever number of factories it has.
void prepareQuick() {
    static bool isPrepared = false;
    if (std::exchange(isPrepared, true))
        return;
    // No graphics processor is woken for a few charts, and no driver loaded.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    registerChartTypes();
    registerPanels();
}

} // namespace

PanelFactory::PanelFactory(PanelContext context)
    : m_context(std::move(context)) {}

PanelFactory::~PanelFactory() = default;

QQmlEngine& PanelFactory::engine() {
    if (!m_engine) {
        prepareQuick();
        m_engine = std::make_unique<QQmlEngine>();
        m_engine->addImportPath(QStringLiteral("qrc:/"));
    }
    return *m_engine;
}

std::unique_ptr<QQuickView> PanelFactory::makePanel(QStringView key, double cornerRadius) {
    std::optional<PanelRecipe> recipe = recipeOf(key, m_context.monitor);
    if (!recipe)
        return nullptr;
    QVariantMap properties = recipe->monitors;
    properties.insert(QStringLiteral("settings"), QVariant::fromValue(&m_context.settings));
    properties.insert(QStringLiteral("themeManager"), QVariant::fromValue(&m_context.themes));

    QQmlComponent component(&engine(), QUrl(QStringLiteral("qrc:/Orvelle/Panels/%1.qml").arg(recipe->file)));
    // A component that is not ready must not be asked to create anything.
    auto* panel = component.isReady()
                      ? qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties))
                      : nullptr;
    if (panel == nullptr) {
        qWarning("%s", qUtf8Printable(component.errorString()));
        return nullptr;
    }
    auto window = std::make_unique<PanelWindow>(engine(), m_context.openSettings);
    panel->setParent(window.get());
    if (cornerRadius > 0)
        window->makeTranslucent();
    window->setPanel(*panel, {{QStringLiteral("themeManager"), QVariant::fromValue(&m_context.themes)},
                              {QStringLiteral("cornerRadius"), cornerRadius}});
    window->resize(panelSize);
    return window;
}

} // namespace orvelle
