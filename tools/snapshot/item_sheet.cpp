#include "menu_bar/modules.h"
#include "menu_bar/scene_painter.h"
#include "snapshot/sheets.h"
#include "snapshot/style_cases.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

constexpr double itemHeight = 22;

SheetCell itemCell(const ModuleInfo& module, MenuBarDisplayStyle style, SystemMonitor& monitor,
                   FreshSettings& settings) {
    const auto paint = [&module, style, &monitor, &settings](QPainter& painter, const QRectF& frame) {
        // The place of the item shows whether its content is centred and fits.
        painter.fillRect(frame, QColor(255, 255, 255, 15));
        settings.store.setMenuBarDisplayStyle(style);
        const ModuleContext context{monitor, settings.store, settings.themes};
        paintScene(painter, frame, makeScene(module.id, context).body);
    };
    return {.caption = module.key, .size = {module.width, itemHeight}, .paint = paint};
}

} // namespace

Sheet menuBarItemSheet(SystemMonitor& monitor, FreshSettings& settings) {
    Sheet sheet{.name = QStringLiteral("menu-bar-items"), .rows = {}, .backgrounds = {SheetBackground::dark}};
    for (const MenuBarDisplayStyle style : everyCase<MenuBarDisplayStyle>()) {
        SheetRow row{.title = caseName(style), .cells = {}};
        for (const ModuleInfo& module : moduleTable)
            row.cells.append(itemCell(module, style, monitor, settings));
        sheet.rows.append(row);
    }
    return sheet;
}

QList<Sheet> chartSheets() {
    return {barChartSheet(),  miniBarSheet(),     lineGraphSheet(),       sparklineSheet(),
            ringChartSheet(), segmentRingSheet(), temperatureGaugeSheet()};
}

} // namespace orvelle
