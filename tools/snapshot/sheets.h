#pragma once

#include "settings/setting_value.h" // caseName
#include "settings/settings_store.h"
#include "shell/status_item.h"
#include "snapshot/sheet.h"
#include "theme/theme_manager.h"

#include <QList>
#include <QMetaEnum>
#include <QTemporaryDir>

/// All sheets.
namespace orvelle {

class SystemMonitor;

/// Default settings, kept apart from those of the real user.
struct FreshSettings {
    QTemporaryDir folder;
    SettingsStore store{folder.filePath(QStringLiteral("orvelle.conf"))};
    ThemeManager themes{store};
};

/// Every case of a style in the order of its declaration, so that a new case appears on the sheets.
template <typename Style>
[[nodiscard]] QList<Style> everyCase() {
    const QMetaEnum type = QMetaEnum::fromType<Style>();
    QList<Style> cases;
    for (int index = 0; index < type.keyCount(); ++index)
        cases.append(static_cast<Style>(type.value(index)));
    return cases;
}

[[nodiscard]] Sheet barChartSheet();
[[nodiscard]] Sheet miniBarSheet();
[[nodiscard]] Sheet lineGraphSheet();
[[nodiscard]] Sheet sparklineSheet();
[[nodiscard]] Sheet ringChartSheet();
[[nodiscard]] Sheet segmentRingSheet();
[[nodiscard]] Sheet temperatureGaugeSheet();

/// Every chart in all its styles, with values of its own.
[[nodiscard]] QList<Sheet> chartSheets();

/// All menu-bar items in every style, on a bar of this appearance. Painting the sheet changes the style in
/// `settings`, which must outlive the sheet as `monitor` must.
[[nodiscard]] Sheet menuBarItemSheet(SystemMonitor& monitor, FreshSettings& settings,
                                     BarAppearance appearance);

/// The icons of all modules in the tray, once for each way to show the CPU, and in each theme. Painting the
/// sheet changes both in `settings`, which must outlive the sheet as `monitor` must.
[[nodiscard]] Sheet trayIconSheet(SystemMonitor& monitor, FreshSettings& settings);

/// The bar with all modules above the CPU panel, in each theme. Painting the sheet changes the theme in
/// `settings`, which must outlive the sheet as `monitor` must.
[[nodiscard]] Sheet themeSheet(SystemMonitor& monitor, FreshSettings& settings);

} // namespace orvelle
