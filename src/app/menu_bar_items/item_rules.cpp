#include "app/menu_bar_items/item_rules.h"

#include "charts/canvas.h"
#include "core/checked.h"

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

} // namespace orvelle
