#include "menu_bar/memory_menu_bar_item.h"

#include "core/memory_monitor.h"
#include "formatting/formatters.h"

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

ItemScene MemoryMenuBarItem::body() const {
    return scene(picture(), accessibleText());
}

IconScene MemoryMenuBarItem::icon() const {
    const double used = usedFraction(m_monitor.info());
    return {.body = iconSymbolAndLevel(QStringLiteral("memorychip"), used, moduleColor()),
            .label = formatPercent(used),
            .widestLabel = widestPercent()};
}

QString MemoryMenuBarItem::accessibleText() const {
    return QStringLiteral("Memory %1").arg(formatPercent(usedFraction(m_monitor.info())));
}

SceneNode MemoryMenuBarItem::picture() const {
    const QColor color = moduleColor();
    const double used = usedFraction(m_monitor.info());
    const SceneNode icon = iconNode(QStringLiteral("memorychip"), color);
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return row({icon, levelBarNode(barSize, barCornerRadius, std::min(used, 1.0), color, true),
                    valueNode(formatPercent(used), smallValueFontSize)},
                   memorySpacing);
    case MenuBarDisplayStyle::textOnly:
        return valueNode(formatPercent(used));
    case MenuBarDisplayStyle::iconAndText:
        return row({icon, valueNode(formatPercent(used))}, memorySpacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyNode(m_monitor.pressureHistory(), color, 1.0, memoryHistorySize)},
                   memorySpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    const qsizetype lit = litDotCount(used * static_cast<double>(dotCount), dotCount);
    return row({icon, dotsNode(meterColors(color, lit, dotCount, unlitOpacity))}, memorySpacing);
}

} // namespace orvelle
