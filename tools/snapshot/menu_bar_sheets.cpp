#include "core/system_monitor.h"
#include "menu_bar/modules.h"
#include "menu_bar/scene_painter.h"
#include "snapshot/sheets.h"
#include "snapshot/window_pictures.h"
#include "windows/common/quick_engine.h"
#include "windows/panels/panel_factory.h"

#include <QQmlEngine>

#include <cmath>
#include <numeric>

namespace orvelle {
namespace {

constexpr double barHeight = 22;
constexpr double barPadding = 8; ///< before the first and after the last item
constexpr double iconSide = 22;
constexpr double panelGap = 6; ///< between the bar and a panel
constexpr int themesPerRow = 4;

/// A little nearer to the colour of labels than the sheet, which shows whether the content is centred and
/// fits.
QColor barBackground(BarAppearance appearance) {
    return colorOnBar(LabelColor{15.0 / 255}, appearance);
}

SheetCell itemCell(const ModuleInfo& module, MenuBarDisplayStyle style, SystemMonitor& monitor,
                   FreshSettings& settings, BarAppearance appearance) {
    const auto paint = [&module, style, appearance, &monitor, &settings](QPainter& painter,
                                                                         const QRectF& frame) {
        painter.fillRect(frame, barBackground(appearance));
        settings.store.setMenuBarDisplayStyle(style);
        const ModuleContext context{monitor, settings.store, settings.themes};
        paintScene(painter, frame, makeScene(module.id, context).body, appearance);
    };
    return {.caption = module.key, .size = {module.width, barHeight}, .paint = paint};
}

double barWidth() {
    return std::accumulate(moduleTable.begin(), moduleTable.end(), 2 * barPadding,
                           [](double width, const ModuleInfo& module) { return width + module.width; });
}

void paintBar(QPainter& painter, const QRectF& frame, const ModuleContext& context) {
    painter.fillRect(frame, barBackground(BarAppearance::dark));
    QRectF place(frame.left() + barPadding, frame.top(), 0, barHeight);
    for (const ModuleInfo& module : moduleTable) {
        place.setWidth(module.width);
        paintScene(painter, place, makeScene(module.id, context).body, BarAppearance::dark);
        place.moveLeft(place.right());
    }
}

SheetCell themeCell(const AppTheme& theme, const QImage& panel, SystemMonitor& monitor,
                    FreshSettings& settings) {
    const QSizeF panelSize = panel.deviceIndependentSize();
    const auto paint = [=, id = theme.id, &monitor, &settings](QPainter& painter, const QRectF& frame) {
        settings.store.setSelectedThemeId(id);
        paintBar(painter, {frame.topLeft(), QSizeF(frame.width(), barHeight)},
                 {monitor, settings.store, settings.themes});
        const double left = frame.left() + std::floor((frame.width() - panelSize.width()) / 2);
        painter.drawImage(QRectF({left, frame.top() + barHeight + panelGap}, panelSize), panel);
    };
    return {.caption = theme.name,
            .size = {barWidth(), barHeight + panelGap + panelSize.height()},
            .paint = paint};
}

SheetRow iconRow(const QString& title, const QString& theme, SettingsStore::CPUDisplayMode mode,
                 SystemMonitor& monitor, FreshSettings& settings) {
    SheetRow row{.title = title, .cells = {}};
    for (const ModuleInfo& module : moduleTable) {
        const auto paint = [=, &module, &monitor, &settings](QPainter& painter, const QRectF& frame) {
            settings.store.setSelectedThemeId(theme);
            settings.store.setCpuDisplayMode(mode);
            paintIcon(painter, frame, makeIcon(module.id, {monitor, settings.store, settings.themes}).body);
        };
        row.cells.append({.caption = module.key, .size = {iconSide, iconSide}, .paint = paint});
    }
    return row;
}

} // namespace

Sheet trayIconSheet(SystemMonitor& monitor, FreshSettings& settings) {
    Sheet sheet{.name = QStringLiteral("tray-icons"), .rows = {}};
    for (const auto mode : everyCase<SettingsStore::CPUDisplayMode>())
        sheet.rows.append(iconRow(caseName(mode), settings.store.selectedThemeId(), mode, monitor, settings));
    for (const AppTheme& theme : builtInThemes())
        sheet.rows.append(
            iconRow(theme.name, theme.id, SettingsStore::CPUDisplayMode::barChart, monitor, settings));
    return sheet;
}

Sheet menuBarItemSheet(SystemMonitor& monitor, FreshSettings& settings, BarAppearance appearance) {
    const bool isDark = appearance == BarAppearance::dark;
    Sheet sheet{.name = isDark ? QStringLiteral("menu-bar-items") : QStringLiteral("menu-bar-items-light"),
                .rows = {},
                .backgrounds = {isDark ? SheetBackground::dark : SheetBackground::light}};
    for (const MenuBarDisplayStyle style : everyCase<MenuBarDisplayStyle>()) {
        SheetRow row{.title = caseName(style), .cells = {}};
        for (const ModuleInfo& module : moduleTable)
            row.cells.append(itemCell(module, style, monitor, settings, appearance));
        sheet.rows.append(row);
    }
    return sheet;
}

Sheet themeSheet(SystemMonitor& monitor, FreshSettings& settings) {
    Sheet sheet{.name = QStringLiteral("themes"), .rows = {}, .backgrounds = {SheetBackground::dark}};
    const std::unique_ptr<QQmlEngine> engine = makeEngine();
    PanelFactory factory(
        *engine,
        {.monitor = monitor, .settings = settings.store, .themes = settings.themes, .openSettings = [] {}});
    const std::unique_ptr<QQuickView> panel = factory.makePanel(ModuleId::cpu);
    panel->show();
    for (const AppTheme& theme : builtInThemes()) {
        if (sheet.rows.isEmpty() || sheet.rows.last().cells.size() == themesPerRow)
            sheet.rows.append(SheetRow{.title = {}, .cells = {}});
        settings.store.setSelectedThemeId(theme.id);
        sheet.rows.last().cells.append(themeCell(theme, pictureOf(*panel), monitor, settings));
    }
    return sheet;
}

} // namespace orvelle
