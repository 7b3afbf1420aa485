#include "menu_bar/sensor_menu_bar_item.h"

#include "core/sensor_monitor.h"
#include "formatting/formatters.h"
#include "menu_bar/item_nodes.h"
#include "menu_bar/sensor_item_rules.h"
#include "settings/settings_store.h"
#include "theme/fonts.h"
#include "theme/label_colors.h"
#include "theme/theme_manager.h"

namespace orvelle {
namespace {

constexpr double sensorSpacing = 2;
constexpr QSizeF sensorHistorySize(24, 10);
constexpr double historyMaximum = 110;

} // namespace

SensorMenuBarItem::SensorMenuBarItem(const SensorMonitor& monitor, const SettingsStore& settings,
                                     const ThemeManager& themes)
    : m_monitor(monitor)
    , m_settings(settings)
    , m_themes(themes) {}

ItemScene SensorMenuBarItem::body() const {
    return {
        .body = picture(), .accessibleName = QStringLiteral("Sensors"), .accessibleText = accessibleText()};
}

QString SensorMenuBarItem::accessibleText() const {
    const double celsius = m_monitor.cpuTemperature();
    return celsius > 0 ? QStringLiteral("Sensors %1").arg(formatTemperature(celsius, false))
                       : QStringLiteral("Sensors: no temperature");
}

SceneNode SensorMenuBarItem::picture() const {
    const double celsius = m_monitor.cpuTemperature();
    const QColor color = temperatureColor(celsius, m_themes.sensorColor(m_settings));
    const SceneNode icon = iconNode(QStringLiteral("thermometer.medium"), color);
    const SceneNode text =
        textNode(temperatureText(celsius), monospacedSystemFont(smallValueFontSize, QFont::Medium),
                 celsius > 0 ? color : LabelColors::secondary);
    switch (m_settings.menuBarDisplayStyle()) {
    case MenuBarDisplayStyle::miniBars:
    case MenuBarDisplayStyle::textOnly:
        return text;
    case MenuBarDisplayStyle::iconAndText:
        return row({icon, text}, sensorSpacing);
    case MenuBarDisplayStyle::sparkline:
        return row({icon, historyNode(m_monitor.cpuTempHistory(), color, historyMaximum, sensorHistorySize)},
                   sensorSpacing);
    case MenuBarDisplayStyle::dotIndicator:
        break;
    }
    return row({icon, dotsNode(temperatureDotColors(celsius))}, sensorSpacing);
}

} // namespace orvelle
