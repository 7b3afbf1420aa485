#include "menu_bar/battery_menu_bar_item.h"

#include "core/battery_monitor.h"
#include "core/severity.h"
#include "theme/colors.h"

#include <algorithm>

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

/// Beside or below the picture of a battery that charges.
SceneNode chargingMark() {
    return symbolNode(QStringLiteral("bolt.fill"), chargingMarkFontSize, SystemColors::yellow);
}

} // namespace

ItemScene BatteryMenuBarItem::body() const {
    return scene(picture(), accessibleText());
}

IconScene BatteryMenuBarItem::icon() const {
    const BatteryInfo& battery = m_monitor.battery();
    if (!battery.isPresent)
        return {.body = iconSymbol(QStringLiteral("powerplug"), SystemColors::green)};
    const QColor color = batteryColor(battery.currentCapacity, battery.isCharging, moduleColor());
    std::vector<SceneNode> parts = {
        {BatteryShape{.charge = chargedFraction(battery.currentCapacity), .color = color}}};
    if (battery.isCharging)
        parts.push_back(chargingMark());
    return {.body = column(parts, batterySpacing, ColumnAlignment::center),
            .label = chargeText(battery),
            .widestLabel = widestPercent()};
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
    const QColor color = batteryColor(battery.currentCapacity, battery.isCharging, moduleColor());
    const SceneNode icon = iconNode(QStringLiteral("battery.100"), color);
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::textOnly:
        return charge(valueFontSize);
    case MenuBarDisplayStyle::miniBars:
    case MenuBarDisplayStyle::iconAndText:
        return row({{BatteryShape{.charge = chargedFraction(battery.currentCapacity), .color = color}},
                    charge(smallValueFontSize)},
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
        parts.push_back(chargingMark());
    return row(parts, batterySpacing);
}

double chargedFraction(qint64 charge) {
    return std::clamp(static_cast<double>(charge) / 100, 0.0, 1.0);
}

QColor batteryColor(qint64 charge, bool isCharging, const QColor& color) {
    if (isCharging)
        return SystemColors::green;
    const Severity severity = batterySeverity(charge, isCharging);
    if (severity == Severity::critical)
        return SystemColors::red;
    return severity == Severity::warning ? SystemColors::yellow : color;
}

QList<QColor> batteryDotColors(qint64 charge, const QColor& color) {
    constexpr qsizetype dotCount = 5;
    constexpr double unlitOpacity = 0.2;
    const qsizetype lit = litDotCount(chargedFraction(charge) * static_cast<double>(dotCount), dotCount);
    return meterColors(color, lit, dotCount, unlitOpacity);
}

} // namespace orvelle
