#include "menu_bar/battery_item_rules.h"

#include "menu_bar/item_rules.h"
#include "theme/system_colors.h"

#include <algorithm>

namespace orvelle {
namespace {

double chargedFraction(qint64 charge) {
    return std::clamp(static_cast<double>(charge) / 100, 0.0, 1.0);
}

} // namespace

QColor batteryColor(qint64 charge, bool isCharging, const QColor& color) {
    if (isCharging)
        return SystemColors::green;
    if (charge < 21)
        return SystemColors::red;
    return charge < 41 ? SystemColors::yellow : color;
}

double batteryFillWidth(qint64 charge) {
    constexpr double fullWidth = 18;
    return fullWidth * chargedFraction(charge);
}

QList<QColor> batteryDotColors(qint64 charge, const QColor& color) {
    constexpr qsizetype dotCount = 5;
    constexpr double unlitOpacity = 0.2;
    const qsizetype lit = litDotCount(chargedFraction(charge) * static_cast<double>(dotCount), dotCount);
    return meterColors(color, lit, dotCount, unlitOpacity);
}

} // namespace orvelle
