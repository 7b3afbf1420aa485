#include "menu_bar/cpu_item_rules.h"

#include "theme/opacity.h"
#include "theme/system_colors.h"

#include <algorithm>

namespace orvelle {

double coreBarsWidth(qsizetype coreCount) {
    constexpr double widthPerCore = 3.5;
    constexpr qsizetype widestCoreCount = 12;
    return static_cast<double>(std::min(coreCount, widestCoreCount)) * widthPerCore;
}

QList<QRectF> coreBarSlots(qsizetype coreCount) {
    const auto count = static_cast<double>(coreCount);
    const double spacing = std::min(1.0, coreBarsWidth(coreCount) / (2 * count - 1));
    const double barWidth = (coreBarsWidth(coreCount) - spacing * (count - 1)) / count;
    QList<QRectF> bars;
    for (qsizetype core = 0; core < coreCount; ++core)
        bars.append(QRectF(static_cast<double>(core) * (barWidth + spacing), 0, barWidth, coreBarsHeight));
    return bars;
}

qsizetype coreDotCount(qsizetype coreCount) {
    constexpr qsizetype mostDots = 8;
    return std::min(coreCount, mostDots);
}

QColor coreDotColor(double load, const QColor& color) {
    if (load < 0.3)
        return withOpacity(color, 0.3);
    if (load < 0.6)
        return withOpacity(color, 0.6);
    return load < 0.8 ? color : SystemColors::red;
}

} // namespace orvelle
