#include "app/menu_bar_items/cpu_menu_bar_item.h"

#include "app/formatters/formatters.h"
#include "app/menu_bar_items/cpu_item_rules.h"
#include "app/menu_bar_items/item_drawings.h"
#include "app/menu_bar_items/part_key.h"
#include "charts/bar_rules.h"
#include "charts/mini_bar.h"
#include "core/cpu_monitor.h"
#include "look/device_pixels.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double cpuSpacing = 3;
constexpr QSizeF cpuHistorySize(32, 12);

/// Moves the bar's sides to whole device pixels, because a gap of one pixel that lies between two is not
/// seen. Where bars or gaps are narrower than a pixel, they stay where they are.
QRectF onWholePixels(const QPainter& painter, const QRectF& bar, double gap) {
    if (std::min(bar.width(), gap) * devicePixelsPerPoint(painter) < 1)
        return bar;
    const double left = snappedToDevicePixels(painter, bar.topLeft()).x();
    const double right = snappedToDevicePixels(painter, bar.topRight()).x();
    return {left, bar.top(), right - left, bar.height()};
}

double coreLoad(const CPUMonitor::CoreUsage& core) {
    return core.user + core.system;
}

std::string coreBarsKey(const QList<BarLook>& bars) {
    std::string key = partKey("core bars", bars.size());
    for (const BarLook& bar : bars) {
        appendToKey(key, visibleLength(barHeight(bar.ratio, coreBarsHeight)));
        appendToKey(key, bar.color);
    }
    return key;
}

ItemPart coreBars(const QList<BarLook>& bars) {
    const double width = coreBarsWidth(bars.size());
    const auto paint = [bars](QPainter& painter, const QRectF& frame) {
        const QList<QRectF> places = coreBarSlots(bars.size());
        const double gap = bars.size() > 1 ? places.at(1).left() - places.at(0).right() : 1;
        for (qsizetype core = 0; core < bars.size(); ++core) {
            const QRectF place = places.at(core).translated(frame.topLeft());
            MiniBar::paint(painter, onWholePixels(painter, place, gap), bars.at(core));
        }
    };
    return {.key = coreBarsKey(bars), .size = {width, coreBarsHeight}, .rigidWidth = width, .paint = paint};
}

} // namespace

CPUMenuBarItem::CPUMenuBarItem(const CPUMonitor& monitor, const SettingsStore& settings,
                               const ThemeManager& themes)
    : m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes) {}

EasedBars CPUMenuBarItem::bars() const {
    if (m_settings.menuBarDisplayStyle() != MenuBarDisplayStyle::miniBars)
        return {};
    const QColor color = m_themes.cpuColor(m_settings);
    EasedBars bars{.looks = {}, .fullLength = coreBarsHeight};
    for (const CPUMonitor::CoreUsage& core : m_monitor.coreUsages())
        bars.looks.append(MiniBar{.value = coreLoad(core), .color = color}.look());
    return bars;
}

QString CPUMenuBarItem::accessibleText() const {
    return QStringLiteral("CPU %1").arg(formatPercent(m_monitor.totalUsage()));
}

ItemPart CPUMenuBarItem::body(const QList<BarLook>& shown) const {
    const QColor color = m_themes.cpuColor(m_settings);
    const ItemPart icon = iconPart(u"cpu", color);
    const ItemPart usage = valuePart(formatPercent(m_monitor.totalUsage()));
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return row({icon, coreBars(shown)}, cpuSpacing);
    case MenuBarDisplayStyle::textOnly:
        return usage;
    case MenuBarDisplayStyle::iconAndText:
        return row({icon, usage}, cpuSpacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyPart(m_monitor.usageHistory(), color, 1.0, cpuHistorySize)}, cpuSpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, coreDots(color)}, cpuSpacing);
}

ItemPart CPUMenuBarItem::coreDots(const QColor& color) const {
    const QList<CPUMonitor::CoreUsage>& cores = m_monitor.coreUsages();
    QList<QColor> colors;
    for (const CPUMonitor::CoreUsage& core : cores.first(coreDotCount(cores.size())))
        colors.append(coreDotColor(coreLoad(core), color));
    return dotsPart(colors);
}

} // namespace orvelle
