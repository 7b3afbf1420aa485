#include "charts/bar_rules.h"

#include "charts/system_colors.h"

#include <algorithm>
#include <cmath>

namespace orvelle {

double miniBarHeight(double fraction, double availableHeight) {
    const double height = std::min(fraction, 1.0) * availableHeight;
    return height > smallestBarHeight ? height : smallestBarHeight;
}

QColor miniBarColor(double fraction, const QColor& color) {
    if (fraction >= 0.75)
        return systemRed;
    if (fraction >= 0.5)
        return systemYellow;
    return color;
}

} // namespace orvelle
