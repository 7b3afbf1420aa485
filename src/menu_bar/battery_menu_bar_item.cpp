#include "menu_bar/battery_menu_bar_item.h"

#include "core/battery_monitor.h"
#include "menu_bar/battery_item_rules.h"
#include "menu_bar/item_nodes.h"
#include "settings/settings_store.h"
#include "theme/system_colors.h"
#include "theme/theme_manager.h"

namespace orvelle {
namespace {

constexpr double batterySpacing = 2;
constexpr double chargingMarkFontSize = 7;
constexpr QSizeF batteryHistorySize(28, 12);

SceneNode externalPower() {
    return row({iconNode(QStringLiteral("powerplug"), SystemColors::green),
                valueNode(QStringLiteral("AC"), smallValueFontSize)},
               batterySpacing);
}

QString chargeText(const BatteryInfo& battery) {
    return QString::number(battery.currentCapacity) + QLatin1Char('%');
}

} // namespace

BatteryMenuBarItem::BatteryMenuBarItem(const BatteryMonitor& monitor, const SettingsStore& settings,
                                       const ThemeManager& themes)
    : m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes) {}

ItemScene BatteryMenuBarItem::body() const {
    return {
        .body = picture(), .accessibleName = QStringLiteral("Battery"), .accessibleText = accessibleText()};
}

QString BatteryMenuBarItem::accessibleText() const {
    const BatteryInfo& battery = m_monitor.battery();
    if (!battery.isPresent)
        return QStringLiteral("Battery: none, on AC power");
    const QString charging = battery.isCharging ? QStringLiteral(", charging") : QString();
    return QStringLiteral("Battery %1").arg(chargeText(battery)) + charging;
}

SceneNode BatteryMenuBarItem::picture() const {
    const BatteryInfo& battery = m_monitor.battery();
    if (!battery.isPresent)
        return externalPower();
    const QColor color =
        batteryColor(battery.currentCapacity, battery.isCharging, m_themes.batteryColor(m_settings));
    const SceneNode icon = iconNode(QStringLiteral("battery.100"), color);
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::textOnly:
        return charge(valueFontSize);
    case MenuBarDisplayStyle::miniBars:
    case MenuBarDisplayStyle::iconAndText:
        return row(
            {{BatteryShape{.charge = battery.currentCapacity, .color = color}}, charge(smallValueFontSize)},
            batterySpacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyNode(m_monitor.chargeHistory(), color, 1.0, batteryHistorySize)},
                   batterySpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, dotsNode(batteryDotColors(battery.currentCapacity, color))}, batterySpacing);
}

SceneNode BatteryMenuBarItem::charge(double fontSize) const {
    std::vector<SceneNode> parts = {valueNode(chargeText(m_monitor.battery()), fontSize)};
    if (m_monitor.battery().isCharging)
        parts.push_back(symbolNode(QStringLiteral("bolt.fill"), chargingMarkFontSize, SystemColors::yellow));
    return row(parts, batterySpacing);
}

} // namespace orvelle
