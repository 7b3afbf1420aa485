#pragma once

#include "settings/settings_store.h"
#include "snapshot/sheet.h"
#include "theme/theme_manager.h"

#include <QTemporaryDir>

/// The sheets that there are.
namespace orvelle {

class SystemMonitor;

/// The settings of a user who has changed nothing, kept apart from those of the real user.
struct FreshSettings {
    QTemporaryDir folder;
    SettingsStore store{folder.filePath(QStringLiteral("orvelle.conf"))};
    ThemeManager themes{store};
};

[[nodiscard]] Sheet barChartSheet();
[[nodiscard]] Sheet miniBarSheet();
[[nodiscard]] Sheet lineGraphSheet();
[[nodiscard]] Sheet sparklineSheet();
[[nodiscard]] Sheet ringChartSheet();
[[nodiscard]] Sheet segmentRingSheet();
[[nodiscard]] Sheet temperatureGaugeSheet();

/// Every chart in all its styles, with values of its own.
[[nodiscard]] QList<Sheet> chartSheets();

/// All menu-bar items in every style, each in its place in the bar. Painting the sheet changes the style in
/// `settings`, which must outlive it as `monitor` must.
[[nodiscard]] Sheet menuBarItemSheet(SystemMonitor& monitor, FreshSettings& settings);

/// The bar with all modules above the CPU panel, in each theme. Painting the sheet changes the theme in
/// `settings`, which must outlive it as `monitor` must.
[[nodiscard]] Sheet themeSheet(SystemMonitor& monitor, FreshSettings& settings);

} // namespace orvelle
