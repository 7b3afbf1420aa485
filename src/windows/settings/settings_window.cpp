#include "windows/settings/settings_window.h"

#include "settings/settings_store.h"
#include "theme/theme_manager.h"
#include "windows/charts/chart_types.h"

#include <QQmlError>
#include <QQuickItem>
#include <QtGlobal>

#include <mutex>

void qml_register_types_Orvelle_Settings(); // written by the build

// A static library needs this to link in the files that were compiled ahead of time. The macro works only
// outside of namespaces.
static void registerSettingsTypesAndFiles() {
    Q_INIT_RESOURCE(qmlcache_orvelle_windows_settings);
    qml_register_types_Orvelle_Settings();
}

namespace orvelle {

void registerSettingsTypes() {
    static std::once_flag once;
    std::call_once(once, registerSettingsTypesAndFiles);
}

std::unique_ptr<QQuickView> makeSettingsView(QQmlEngine& engine, const SettingsContext& context) {
    registerChartTypes();
    registerSettingsTypes();
    auto view = std::make_unique<SettingsQuickView>(engine, context.quitApp);
    view->setTitle(QStringLiteral("Orvelle Settings"));
    view->setResizeMode(QQuickView::SizeRootObjectToView);
    view->setInitialProperties(
        {{QStringLiteral("settings"), QVariant::fromValue(&context.settings)},
         {QStringLiteral("themeManager"), QVariant::fromValue(&context.themes)},
         {QStringLiteral("launchAtLogin"), QVariant::fromValue(context.launchAtLogin)}});
    view->open();
    view->resize(settingsSize);
    view->setMinimumSize(smallestSettingsSize);
    return view;
}

void SettingsQuickView::open() {
    setSource(QUrl(QStringLiteral("qrc:/Orvelle/Settings/SettingsScrollView.qml")));
    if (rootObject() == nullptr)
        return; // the engine has logged the reason
    setColor(rootObject()->property("color").value<QColor>());
    connect(rootObject(), SIGNAL(quitApp()), this, SLOT(quitApp()));
}

} // namespace orvelle
