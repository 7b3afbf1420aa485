#include "windows/settings/settings_factory.h"

#include "settings/settings_store.h"
#include "theme/theme_manager.h"
#include "windows/charts/chart_types.h"
#include "windows/settings/settings_quick_view.h"
#include "windows/settings/settings_types.h"

#include <QQmlError>

namespace orvelle {

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

} // namespace orvelle
