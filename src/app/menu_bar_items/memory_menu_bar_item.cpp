#include "app/menu_bar_items/memory_menu_bar_item.h"

#include "app/formatters/formatters.h"
#include "app/menu_bar_items/item_drawings.h"
#include "app/menu_bar_items/item_rules.h"
#include "core/memory_monitor.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double memorySpacing = 3;
constexpr QSizeF barSize(28, 8);
constexpr double barCornerRadius = 3;
constexpr QSizeF memoryHistorySize(28, 12);
constexpr qsizetype dotCount = 5;
constexpr double unlitOpacity = 0.2;

} // namespace

MemoryMenuBarItem::MemoryMenuBarItem(const MemoryMonitor& monitor, const SettingsStore& settings,
                                     const ThemeManager& themes)
    : m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes) {}

EasedBars MemoryMenuBarItem::bars() const {
    if (m_settings.menuBarDisplayStyle() != MenuBarDisplayStyle::miniBars)
        return {};
    const double level = std::min(usedFraction(m_monitor.info()), 1.0);
    return {.looks = {{level, m_themes.memoryColor(m_settings)}}, .fullLength = barSize.width()};
}

QString MemoryMenuBarItem::accessibleText() const {
    return QStringLiteral("Memory %1").arg(formatPercent(usedFraction(m_monitor.info())));
}

ItemPart MemoryMenuBarItem::body(const QList<BarLook>& shown) const {
    const QColor color = m_themes.memoryColor(m_settings);
    const double used = usedFraction(m_monitor.info());
    const ItemPart icon = iconPart(u"memorychip", color);
    const BarLook bar = shown.value(0);
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return row({icon, levelBarPart(barSize, barCornerRadius, bar.ratio, bar.color),
                    valuePart(formatPercent(used), smallValueFontSize)},
                   memorySpacing);
    case MenuBarDisplayStyle::textOnly:
        return valuePart(formatPercent(used));
    case MenuBarDisplayStyle::iconAndText:
        return row({icon, valuePart(formatPercent(used))}, memorySpacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyPart(m_monitor.pressureHistory(), color, 1.0, memoryHistorySize)},
                   memorySpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    const qsizetype lit = litDotCount(used * static_cast<double>(dotCount), dotCount);
    return row({icon, dotsPart(meterColors(color, lit, dotCount, unlitOpacity))}, memorySpacing);
}

} // namespace orvelle
