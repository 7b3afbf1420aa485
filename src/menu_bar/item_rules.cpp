#include "menu_bar/item_rules.h"

#include "core/checked.h"
#include "theme/opacity.h"

#include <algorithm>

namespace orvelle {

QList<double> recentSamples(const QList<double>& history) {
    return history.last(std::min(history.size(), recentSampleCount));
}

qsizetype litDotCount(double level, qsizetype dotCount) {
    return std::clamp<qsizetype>(checkedTruncate(level), 0, dotCount);
}

QList<QColor> meterColors(const QColor& color, qsizetype litCount, qsizetype dotCount, double dimmedOpacity) {
    QList<QColor> colors;
    for (qsizetype dot = 0; dot < dotCount; ++dot)
        colors.append(dot < litCount ? color : withOpacity(color, dimmedOpacity));
    return colors;
}

bool isActive(double bytesPerSecond) {
    constexpr double idleBytesPerSecond = 1024;
    return bytesPerSecond > idleBytesPerSecond;
}

QColor activityDotColor(double bytesPerSecond, const QColor& color) {
    constexpr double idleOpacity = 0.2;
    return isActive(bytesPerSecond) ? color : withOpacity(color, idleOpacity);
}

} // namespace orvelle
