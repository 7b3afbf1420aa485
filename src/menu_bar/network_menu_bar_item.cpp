#include "menu_bar/network_menu_bar_item.h"

#include "charts/sparkline_view.h"
#include "core/network_monitor.h"
#include "formatting/formatters.h"
#include "theme/colors.h"
#include "theme/fonts.h"

namespace orvelle {
namespace {

constexpr double networkSpacing = 2;
constexpr double historyHeight = 14;
constexpr double rateFontSize = 8;

SceneNode bareRate(double bytesPerSecond) {
    return textNode(formatRateCompact(bytesPerSecond), monospacedSystemFont(rateFontSize, QFont::Medium),
                    LabelColor{0.7});
}

SceneNode rateWithArrow(const QString& arrow, double bytesPerSecond, const QColor& color) {
    constexpr double arrowFontSize = 6;
    constexpr double arrowSpacing = 1;
    constexpr double opacity = 0.8;
    const SceneNode rate =
        textNode(formatRateCompact(bytesPerSecond), monospacedSystemFont(rateFontSize), LabelColor{opacity});
    return row({symbolNode(arrow, arrowFontSize, withOpacity(color, opacity)), rate}, arrowSpacing);
}

} // namespace

ItemScene NetworkMenuBarItem::body() const {
    return scene(picture(), accessibleText());
}

IconScene NetworkMenuBarItem::icon() const {
    constexpr double iconArrowFontSize = 10;
    constexpr double iconArrowSpacing = -6; // the arrows leave much of their squares empty
    constexpr double idleOpacity = 0.4;
    const auto arrow = [](const QString& name, double bytesPerSecond, const QColor& color) {
        return symbolNode(name, iconArrowFontSize,
                          isActive(bytesPerSecond) ? color : withOpacity(color, idleOpacity));
    };
    const AppTheme& theme = m_themes.currentTheme();
    return {
        .body = row(
            {arrow(QStringLiteral("arrow.down"), m_monitor.totalDownloadSpeed(), theme.networkDownloadColor),
             arrow(QStringLiteral("arrow.up"), m_monitor.totalUploadSpeed(), theme.networkUploadColor)},
            iconArrowSpacing),
        .label = formatRateCompact(m_monitor.totalDownloadSpeed()),
        .widestLabel = QStringLiteral("1023M")};
}

QString NetworkMenuBarItem::accessibleText() const {
    return QStringLiteral("Network download %1, upload %2")
        .arg(formatRate(m_monitor.totalDownloadSpeed()), formatRate(m_monitor.totalUploadSpeed()));
}

SceneNode NetworkMenuBarItem::picture() const {
    constexpr double widthBesideRates = 32;
    constexpr double widthBesideIcon = 36;
    const SceneNode icon = iconNode(QStringLiteral("network"), moduleColor());
    const bool hasHistory = !m_monitor.downloadHistory().isEmpty();
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
        return hasHistory ? row({ratePair(), history(widthBesideRates)}, networkSpacing) : ratePair();
    case MenuBarDisplayStyle::textOnly:
        return rates();
    case MenuBarDisplayStyle::iconAndText:
        return ratePair();
    case MenuBarDisplayStyle::sparkline:
        return row({icon, hasHistory ? history(widthBesideIcon) : ratePair()}, networkSpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, activityDots()}, networkSpacing);
}

SceneNode NetworkMenuBarItem::rates() const {
    return column({bareRate(m_monitor.totalUploadSpeed()), bareRate(m_monitor.totalDownloadSpeed())}, 0,
                  ColumnAlignment::trailing);
}

SceneNode NetworkMenuBarItem::ratePair() const {
    const AppTheme& theme = m_themes.currentTheme();
    return column(
        {rateWithArrow(QStringLiteral("arrow.up"), m_monitor.totalUploadSpeed(), theme.networkUploadColor),
         rateWithArrow(QStringLiteral("arrow.down"), m_monitor.totalDownloadSpeed(),
                       theme.networkDownloadColor)},
        0, ColumnAlignment::trailing);
}

SceneNode NetworkMenuBarItem::history(double width) const {
    const AppTheme& theme = m_themes.currentTheme();
    return {DualSparklineView{.topData = recentSamples(m_monitor.downloadHistory()),
                              .bottomData = recentSamples(m_monitor.uploadHistory()),
                              .topColor = theme.networkDownloadColor,
                              .bottomColor = theme.networkUploadColor,
                              .width = width,
                              .height = historyHeight}};
}

SceneNode NetworkMenuBarItem::activityDots() const {
    constexpr double dotDiameter = 5;
    const AppTheme& theme = m_themes.currentTheme();
    return dotsNode({activityDotColor(m_monitor.totalDownloadSpeed(), theme.networkDownloadColor),
                     activityDotColor(m_monitor.totalUploadSpeed(), theme.networkUploadColor)},
                    dotDiameter);
}

} // namespace orvelle
