#include "menu_bar/cpu_menu_bar_item.h"

#include "charts/plain_bars.h"
#include "core/cpu_monitor.h"
#include "formatting/formatters.h"
#include "menu_bar/scene_layout.h"
#include "theme/colors.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double cpuSpacing = 3;
constexpr QSizeF cpuHistorySize(32, 12);

double coreLoad(const CPUMonitor::CoreUsage& core) {
    return core.user + core.system;
}

} // namespace

ItemScene CPUMenuBarItem::body() const {
    return scene(picture(), accessibleText());
}

IconScene CPUMenuBarItem::icon() const {
    QList<double> loads;
    for (const CPUMonitor::CoreUsage& core : m_monitor.coreUsages())
        loads.append(coreLoad(core));
    const bool showsBars =
        m_settings.cpuDisplayMode() == SettingsStore::CPUDisplayMode::barChart && !loads.isEmpty();
    return {.body = showsBars ? iconBars(loads, moduleColor())
                              : iconDigitsAndLevel(m_monitor.totalUsage(), moduleColor()),
            .label = formatPercent(m_monitor.totalUsage()),
            .widestLabel = widestPercent()};
}

QString CPUMenuBarItem::accessibleText() const {
    return QStringLiteral("CPU %1").arg(formatPercent(m_monitor.totalUsage()));
}

SceneNode CPUMenuBarItem::picture() const {
    const QColor color = moduleColor();
    const SceneNode icon = iconNode(QStringLiteral("cpu"), color);
    const SceneNode usage = valueNode(formatPercent(m_monitor.totalUsage()));
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return row({icon, coreBars(color)}, cpuSpacing);
    case MenuBarDisplayStyle::textOnly:
        return usage;
    case MenuBarDisplayStyle::iconAndText:
        return row({icon, usage}, cpuSpacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyNode(m_monitor.usageHistory(), color, 1.0, cpuHistorySize)}, cpuSpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, coreDots(color)}, cpuSpacing);
}

SceneNode CPUMenuBarItem::coreBars(const QColor& color) const {
    CoreBarsShape bars;
    for (const CPUMonitor::CoreUsage& core : m_monitor.coreUsages()) {
        const MiniBar bar{.value = coreLoad(core), .color = color};
        bars.levels.append({.look = bar.look(), .fullLength = coreBarsHeight});
    }
    return {bars};
}

SceneNode CPUMenuBarItem::coreDots(const QColor& color) const {
    const QList<CPUMonitor::CoreUsage>& cores = m_monitor.coreUsages();
    QList<QColor> colors;
    for (const CPUMonitor::CoreUsage& core : cores.first(coreDotCount(cores.size())))
        colors.append(coreDotColor(coreLoad(core), color));
    return dotsNode(colors);
}

qsizetype coreDotCount(qsizetype coreCount) {
    constexpr qsizetype mostDots = 8;
    return std::min(coreCount, mostDots);
}

QColor coreDotColor(double load, const QColor& color) {
    if (load < 0.3)
        return withOpacity(color, 0.3);
    if (load < 0.6)
        return withOpacity(color, 0.6);
    return load < 0.8 ? color : SystemColors::red;
}

} // namespace orvelle
