#include "app/menu_bar_items/cpu_menu_bar_item.h"

#include "app/formatters/formatters.h"
#include "app/menu_bar_items/cpu_item_rules.h"
#include "app/menu_bar_items/item_drawings.h"
#include "charts/mini_bar.h"
#include "core/cpu_monitor.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

namespace orvelle {
namespace {

constexpr double spacing = 3;
constexpr QSizeF historySize(32, 12);

double coreLoad(const CPUMonitor::CoreUsage& core) {
    return core.user + core.system;
}

} // namespace

CPUMenuBarItem::CPUMenuBarItem(const CPUMonitor& monitor, const SettingsStore& settings,
                               const ThemeManager& themes)
    : m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes) {}

void CPUMenuBarItem::paint(QPainter& painter, const QRectF& bounds) const {
    paintCentred(painter, bounds, body());
}

QString CPUMenuBarItem::accessibleText() const {
    return QStringLiteral("CPU %1").arg(formatPercent(m_monitor.totalUsage()));
}

ItemPart CPUMenuBarItem::body() const {
    const QColor color = m_themes.cpuColor(m_settings);
    const ItemPart icon = iconPart(u"cpu", color);
    const ItemPart usage = valuePart(formatPercent(m_monitor.totalUsage()));
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return row({icon, coreBars(color)}, spacing);
    case MenuBarDisplayStyle::textOnly:
        return usage;
    case MenuBarDisplayStyle::iconAndText:
        return row({icon, usage}, spacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyPart(m_monitor.usageHistory(), color, 1.0, historySize)}, spacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, coreDots(color)}, spacing);
}

ItemPart CPUMenuBarItem::coreBars(const QColor& color) const {
    const QList<CPUMonitor::CoreUsage> cores = m_monitor.coreUsages();
    const double width = coreBarsWidth(cores.size());
    const auto paint = [cores, color](QPainter& painter, const QRectF& frame) {
        const QList<QRectF> bars = coreBarSlots(cores.size());
        for (qsizetype core = 0; core < cores.size(); ++core) {
            MiniBar{.value = coreLoad(cores.at(core)), .color = color}.paint(
                painter, bars.at(core).translated(frame.topLeft()));
        }
    };
    return {.size = {width, coreBarsHeight}, .rigidWidth = width, .paint = paint};
}

ItemPart CPUMenuBarItem::coreDots(const QColor& color) const {
    const QList<CPUMonitor::CoreUsage>& cores = m_monitor.coreUsages();
    QList<QColor> colors;
    for (const CPUMonitor::CoreUsage& core : cores.first(coreDotCount(cores.size())))
        colors.append(coreDotColor(coreLoad(core), color));
    return dotsPart(colors);
}

} // namespace orvelle
