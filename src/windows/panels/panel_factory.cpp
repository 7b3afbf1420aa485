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

#include <utility>

namespace orvelle {
namespace {

/// Every monitor under the name of the property by which a panel asks for it.
QVariantMap monitorsOf(SystemMonitor& monitor) {
    QVariantMap monitors{{QStringLiteral("process"), QVariant::fromValue(&monitor.process())}};
#define ORVELLE_MODULE(id, ...) monitors.insert(QStringLiteral(#id), QVariant::fromValue(&monitor.id()));
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    return monitors;
}

/// The properties that the object has.
QVariantMap onlyThoseOf(const QObject& object, QVariantMap properties) {
    properties.removeIf([&object](const QVariantMap::iterator& property) {
        return object.metaObject()->indexOfProperty(property.key().toLatin1()) < 0;
    });
    return properties;
}

} // namespace

PanelFactory::PanelFactory(QQmlEngine& engine, PanelContext context)
    : m_engine(engine)
    , m_context(std::move(context)) {
    registerChartTypes();
    registerPanelTypes();
}

QQuickItem* PanelFactory::createPanel(QQmlComponent& component) const {
    // A component that is not ready must not be asked to create anything.
    QObject* panel = component.isReady() ? component.beginCreate(m_engine.rootContext()) : nullptr;
    if (panel == nullptr)
        return nullptr;
    QVariantMap properties = monitorsOf(m_context.monitor);
    properties.insert(QStringLiteral("settings"), QVariant::fromValue(&m_context.settings));
    properties.insert(QStringLiteral("themeManager"), QVariant::fromValue(&m_context.themes));
    component.setInitialProperties(panel, onlyThoseOf(*panel, properties));
    component.completeCreate();
    // A panel without a property that its view requires is created all the same, and would open half made.
    if (component.isError()) {
        delete panel;
        return nullptr;
    }
    return qobject_cast<QQuickItem*>(panel);
}

std::unique_ptr<QQuickView> PanelFactory::makePanel(ModuleId module, double cornerRadius) {
    const ModuleInfo& info = moduleInfo(module);
    QQmlComponent component(&m_engine,
                            QUrl(QStringLiteral("qrc:/Orvelle/Panels/%1.qml").arg(info.panelView)));
    QQuickItem* panel = createPanel(component);
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
    window->setTitle(QStringLiteral("Orvelle %1").arg(info.title)); // not seen, but read out
    window->resize(panelSize);
    return window;
}

} // namespace orvelle
