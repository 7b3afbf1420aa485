#include "menu_bar/disk_menu_bar_item.h"

#include "charts/sparkline_view.h"
#include "core/disk_monitor.h"
#include "formatting/formatters.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

constexpr double diskSpacing = 2;
constexpr QSizeF diskHistorySize(28, 12);

} // namespace

ItemScene DiskMenuBarItem::body() const {
    return scene(picture(), accessibleText());
}

IconScene DiskMenuBarItem::icon() const {
    const QString symbol = QStringLiteral("internaldrive");
    const std::optional<double> fraction = used();
    if (!fraction)
        return {.body = iconSymbol(symbol, moduleColor())};
    return {.body = iconSymbolAndLevel(symbol, *fraction, moduleColor()),
            .label = formatPercent(*fraction),
            .widestLabel = widestPercent()};
}

QString DiskMenuBarItem::accessibleText() const {
    const std::optional<double> fraction = used();
    const QString usedText = fraction ? QStringLiteral(" %1").arg(formatPercent(*fraction)) : QString();
    return QStringLiteral("Disk%1, read %2, write %3")
        .arg(usedText, formatRate(m_monitor.diskIO().readSpeed), formatRate(m_monitor.diskIO().writeSpeed));
}

SceneNode DiskMenuBarItem::picture() const {
    const QColor color = moduleColor();
    const SceneNode icon = iconNode(QStringLiteral("internaldrive"), color);
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return row({icon, activityAndUsage(color)}, diskSpacing);
    case MenuBarDisplayStyle::textOnly:
        return withUsedText({});
    case MenuBarDisplayStyle::iconAndText:
        return withUsedText({icon});
    case MenuBarDisplayStyle::sparkline:
        return row({icon, history()}, diskSpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, activityDots()}, diskSpacing);
}

std::optional<double> DiskMenuBarItem::used() const {
    if (m_monitor.volumes().isEmpty())
        return std::nullopt;
    return usedFraction(m_monitor.volumes().first());
}

SceneNode DiskMenuBarItem::withUsedText(std::vector<SceneNode> parts) const {
    if (const std::optional<double> fraction = used())
        parts.push_back(valueNode(formatPercent(*fraction)));
    return row(parts, diskSpacing);
}

SceneNode DiskMenuBarItem::activityAndUsage(const QColor& color) const {
    constexpr double arrowFontSize = 6;
    constexpr double stackSpacing = 1;
    constexpr QSizeF barSize(20, 4);
    constexpr double barCornerRadius = 2;
    const AppTheme& theme = m_themes.currentTheme();
    const auto arrow = [](const QString& name, double bytesPerSecond, const QColor& directionColor) {
        return symbolNode(name, arrowFontSize, activityArrowColor(bytesPerSecond, directionColor));
    };
    std::vector<SceneNode> parts = {row(
        {arrow(QStringLiteral("arrow.up.circle.fill"), m_monitor.diskIO().writeSpeed, theme.diskWriteColor),
         arrow(QStringLiteral("arrow.down.circle.fill"), m_monitor.diskIO().readSpeed, theme.diskReadColor)},
        stackSpacing)};
    if (const std::optional<double> fraction = used())
        parts.push_back(levelBarNode(barSize, barCornerRadius, *fraction, color, false));
    return column(parts, stackSpacing, ColumnAlignment::center);
}

SceneNode DiskMenuBarItem::history() const {
    const AppTheme& theme = m_themes.currentTheme();
    return {DualSparklineView{.topData = recentSamples(m_monitor.readHistory()),
                              .bottomData = recentSamples(m_monitor.writeHistory()),
                              .topColor = theme.diskReadColor,
                              .bottomColor = theme.diskWriteColor,
                              .width = diskHistorySize.width(),
                              .height = diskHistorySize.height()}};
}

SceneNode DiskMenuBarItem::activityDots() const {
    const AppTheme& theme = m_themes.currentTheme();
    return dotsNode({activityDotColor(m_monitor.diskIO().readSpeed, theme.diskReadColor),
                     activityDotColor(m_monitor.diskIO().writeSpeed, theme.diskWriteColor)});
}

QColor activityArrowColor(double bytesPerSecond, const QColor& color) {
    constexpr double idleOpacity = 0.4;
    return isActive(bytesPerSecond) ? color : withOpacity(SystemColors::grey, idleOpacity);
}

} // namespace orvelle
