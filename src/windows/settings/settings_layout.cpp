#include "windows/settings/settings_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace orvelle {
namespace {

constexpr double gridSpacing = 10;
constexpr double smallestColumn = 80;
constexpr double largestColumn = 120;

double sum(const QList<double>& widths) {
    return std::accumulate(widths.cbegin(), widths.cend(), 0.0);
}

QList<double> widestOfEachColumn(const QList<double>& cells, qsizetype columnCount) {
    QList<double> widths(columnCount, 0);
    for (qsizetype index = 0; index < cells.size(); ++index) {
        double& width = widths[index % columnCount];
        width = std::max(width, std::ceil(cells[index]));
    }
    return widths;
}

QList<double> divided(const QList<double>& needed, double available) {
    const auto count = static_cast<double>(needed.size());
    const double share = available / count;
    const bool isEven = std::ranges::all_of(needed, [share](double width) { return width <= share; });
    const double surplus = (available - sum(needed)) / count;
    QList<double> widths;
    double end = 0;
    double edge = 0;
    for (const double width : needed) {
        end += isEven ? share : std::max(0.0, width + surplus);
        widths.append(std::round(end) - edge);
        edge = std::round(end);
    }
    return widths;
}

QList<double> columnsFor(const QList<double>& needed, double spacing, double available) {
    qsizetype rowCount = 0;
    while (true) {
        ++rowCount;
        const qsizetype columnCount = std::max<qsizetype>(1, (needed.size() + rowCount - 1) / rowCount);
        QList<double> widths = widestOfEachColumn(needed, columnCount);
        const double gaps = spacing * static_cast<double>(columnCount - 1);
        if (columnCount == 1 || gaps + sum(widths) <= available)
            return widths;
    }
}

QList<double> numbers(const QVariantList& values) {
    QList<double> result;
    for (const QVariant& value : values)
        result.append(value.toDouble());
    return result;
}

QVariantList toQml(const QList<double>& widths) {
    return {widths.cbegin(), widths.cend()};
}

} // namespace

QVariantList SettingsLayout::sharedWidths(const QVariantList& needed, double available) {
    return toQml(divided(numbers(needed), available));
}

QVariantList SettingsLayout::fittingColumns(const QVariantList& needed, double spacing, double available) {
    return toQml(columnsFor(numbers(needed), spacing, available));
}

double SettingsLayout::widthOfOneRow(const QVariantList& needed) {
    return sum(columnsFor(numbers(needed), 0, std::numeric_limits<double>::infinity()));
}

double SettingsLayout::themeGridSpacing() {
    return gridSpacing;
}

QVariantList SettingsLayout::themeGridColumns(double available, int cardCount) {
    const double fitting = (available + gridSpacing) / (smallestColumn + gridSpacing);
    const int count = fitting > 1 ? static_cast<int>(std::min<double>(fitting, cardCount)) : 1;
    const double columnsWidth = available - (count - 1) * gridSpacing;
    return toQml(divided(QList<double>(count, 0),
                         std::clamp(columnsWidth, count * smallestColumn, count * largestColumn)));
}

double SettingsLayout::largestThemeGridWidth(int cardCount) {
    return cardCount * (largestColumn + gridSpacing) - gridSpacing;
}

} // namespace orvelle
