#include "menu_bar/sensor_item_rules.h"

#include "menu_bar/item_rules.h"
#include "theme/opacity.h"
#include "theme/system_colors.h"

#include <fmt/format.h>

namespace orvelle {

QString temperatureText(double celsius) {
    return celsius > 0 ? QString::fromStdString(fmt::format("{:.0f}°", celsius)) : QStringLiteral("--°");
}

QColor temperatureColor(double celsius, const QColor& color) {
    if (celsius < 60)
        return withOpacity(color, 0.7);
    return celsius < 80 ? SystemColors::yellow : SystemColors::red;
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
