#include "settings_ui/shared_widths.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvelle {

QList<double> sharedWidths(const QList<double>& needed, double available) {
    const auto count = static_cast<double>(needed.size());
    const double share = available / count;
    const bool isEven = std::ranges::all_of(needed, [share](double width) { return width <= share; });
    const double spare = (available - std::accumulate(needed.begin(), needed.end(), 0.0)) / count;
    QList<double> widths;
    double end = 0;
    double edge = 0;
    for (const double width : needed) {
        end += isEven ? share : std::max(0.0, width + spare);
        widths.append(std::round(end) - edge);
        edge = std::round(end);
    }
    return widths;
}

} // namespace orvelle
