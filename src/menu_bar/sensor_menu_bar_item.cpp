#include "menu_bar/sensor_menu_bar_item.h"

#include "core/sensor_monitor.h"
#include "core/severity.h"
#include "formatting/formatters.h"
#include "theme/colors.h"
#include "theme/fonts.h"

#include <fmt/format.h>

namespace orvelle {
namespace {

constexpr double sensorSpacing = 2;
constexpr QSizeF sensorHistorySize(24, 10);
constexpr double historyMaximum = 110;

} // namespace

ItemScene SensorMenuBarItem::body() const {
    return scene(picture(), accessibleText());
}

IconScene SensorMenuBarItem::icon() const {
    const double celsius = m_monitor.cpuTemperature();
    // Opaque, because a translucent number this small is hard to read.
    const TextColor color = celsius > 0 ? TextColor(QColor(temperatureColor(celsius, moduleColor()).rgb()))
                                        : TextColor(secondaryLabel);
    const QFont font = monospacedSystemFont(valueFontSize, QFont::Bold);
    return {.body = textNode(temperatureText(celsius), font, color),
            .label = temperatureText(celsius),
            .widestLabel = QStringLiteral("100°")};
}

QString SensorMenuBarItem::accessibleText() const {
    const double celsius = m_monitor.cpuTemperature();
    return celsius > 0 ? QStringLiteral("Sensors %1").arg(formatTemperature(celsius, false))
                       : QStringLiteral("Sensors: no temperature");
}

SceneNode SensorMenuBarItem::picture() const {
    const double celsius = m_monitor.cpuTemperature();
    const QColor color = temperatureColor(celsius, moduleColor());
    const SceneNode icon = iconNode(QStringLiteral("thermometer.medium"), color);
    const SceneNode text =
        textNode(temperatureText(celsius), monospacedSystemFont(smallValueFontSize, QFont::Medium),
                 celsius > 0 ? TextColor(color) : TextColor(secondaryLabel));
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

QString temperatureText(double celsius) {
    return celsius > 0 ? QString::fromStdString(fmt::format("{:.0f}°", celsius)) : QStringLiteral("--°");
}

QColor temperatureColor(double celsius, const QColor& color) {
    const Severity severity = temperatureSeverity(celsius);
    if (severity == Severity::normal)
        return withOpacity(color, 0.7);
    return severity == Severity::warning ? SystemColors::yellow : SystemColors::red;
}

QList<QColor> temperatureDotColors(double celsius) {
    constexpr double degreesPerDot = 20;
    constexpr double unlitOpacity = 0.15;
    QList<QColor> colors = {SystemColors::green, SystemColors::green, SystemColors::yellow,
                            SystemColors::orange, SystemColors::red};
    for (qsizetype dot = litDotCount(celsius / degreesPerDot, colors.size()); dot < colors.size(); ++dot)
        colors[dot] = withOpacity(colors.at(dot), unlitOpacity);
    return colors;
}

} // namespace orvelle
