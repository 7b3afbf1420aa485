#include "windows/settings/shared_widths.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orvelle {
namespace {

QList<double> widestOfEachColumn(const QList<double>& cells, qsizetype columnCount) {
    QList<double> widths(columnCount, 0);
    for (qsizetype index = 0; index < cells.size(); ++index) {
        double& width = widths[index % columnCount];
        width = std::max(width, std::ceil(cells[index]));
    }
    return widths;
}

} // namespace

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

QList<double> fittingColumns(const QList<double>& needed, double spacing, double available) {
    qsizetype rowCount = 0;
    while (true) {
        ++rowCount;
        const qsizetype columnCount = std::max<qsizetype>(1, (needed.size() + rowCount - 1) / rowCount);
        QList<double> widths = widestOfEachColumn(needed, columnCount);
        const double gaps = spacing * static_cast<double>(columnCount - 1);
        if (columnCount == 1 || std::accumulate(widths.begin(), widths.end(), gaps) <= available)
            return widths;
    }
}

} // namespace orvelle
