#include "common/example_machines.h"
#include "core/system_monitor.h"
#include "menu_bar/modules.h"
#include "menu_bar/scene_painter.h"
#include "paint_cost.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"

#include <QImage>
#include <QMetaEnum>
#include <QTemporaryDir>

#include <cstdio>

namespace orvelle::bench {
namespace {

constexpr double barHeight = 22;

/// What a redraw of the bar does: builds the view of each module anew and paints it in its place.
void paintItems(QPainter& painter, std::span<const ModuleInfo> shown, const ModuleContext& context) {
    double left = 0;
    for (const ModuleInfo& module : shown) {
        paintScene(painter, {left, 0, module.width, barHeight}, makeScene(module.id, context).body,
                   BarAppearance::dark);
        left += module.width;
    }
}

double costOf(std::span<const ModuleInfo> shown, const ModuleContext& context, double pixelsPerPoint) {
    double length = 0;
    for (const ModuleInfo& module : shown)
        length += module.width;
    QImage image((QSizeF(length, barHeight) * pixelsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelsPerPoint);
    image.fill(Qt::black);
    QPainter painter(&image);
    return leastMilliseconds([&] { paintItems(painter, shown, context); });
}

} // namespace

void printItemCosts() {
    const QTemporaryDir folder;
    SettingsStore settings(folder.filePath(QStringLiteral("orvelle.conf")));
    const ThemeManager themes(settings);
    const auto monitor = exampleMonitor(ExampleMachine::laptop, settings);
    const ModuleContext context{*monitor, settings, themes};
    std::puts("| menu bar, milliseconds | two items, 1x | six items, 1x | six items, 2x |\n"
              "| --- | --- | --- | --- |");
    const QMetaEnum styles = QMetaEnum::fromType<MenuBarDisplayStyle>();
    for (int index = 0; index < styles.keyCount(); ++index) {
        settings.setMenuBarDisplayStyle(static_cast<MenuBarDisplayStyle>(styles.value(index)));
        std::printf("| %s | %.3f | %.3f | %.3f |\n", styles.key(index),
                    costOf(std::span(moduleTable).first(2), context, 1), costOf(moduleTable, context, 1),
                    costOf(moduleTable, context, 2));
    }
    std::puts("");
}

} // namespace orvelle::bench
