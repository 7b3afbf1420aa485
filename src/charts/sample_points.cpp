#include "charts/sample_points.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvelle {
namespace {

/// Columns with fewer points than this on average are drawn in full.
constexpr double crowdedPointsPerColumn = 8;

/// Appends the first, extreme and last of the points [first, last], in their own order and without repeats.
void appendExtremes(QList<QPointF>& kept, const QList<QPointF>& points, qsizetype first, qsizetype last) {
    const auto begin = points.cbegin();
    const auto higher = [](const QPointF& left, const QPointF& right) { return left.y() < right.y(); };
    const auto [top, bottom] = std::minmax_element(begin + first, begin + last + 1, higher);
    std::array<qsizetype, 4> indices{first, top - begin, bottom - begin, last};
    std::ranges::sort(indices);
    const auto end = std::unique(indices.begin(), indices.end());
    for (auto index = indices.begin(); index != end; ++index)
        kept.append(points[*index]);
}

} // namespace

double sampleRatio(double value, double scale) {
    const double ratio = value / scale;
    if (std::isnan(ratio))
        return std::isinf(value) && value > 0 ? 1 : 0;
    return std::clamp(ratio, lowestRatio, 1.0);
}

QList<QPointF> samplePoints(const QList<double>& data, double scale, const QSizeF& canvas, double topInset) {
    QList<QPointF> points;
    if (data.size() < 2)
        return points;
    points.reserve(data.size());
    const double step = canvas.width() / static_cast<double>(data.size() - 1);
    for (qsizetype index = 0; index < data.size(); ++index) {
        const double rise = (canvas.height() - topInset) * sampleRatio(data[index], scale);
        points.append({static_cast<double>(index) * step, canvas.height() - rise});
    }
    return points;
}

QList<QPointF> visiblePoints(const QList<QPointF>& points, double columnWidth) {
    if (points.size() < 2 || !(columnWidth > 0))
        return points;
    const double columns = (points.last().x() - points.first().x()) / columnWidth;
    if (static_cast<double>(points.size()) <= columns * crowdedPointsPerColumn)
        return points;
    QList<QPointF> kept;
    const auto columnOf = [&](qsizetype index) { return std::floor(points[index].x() / columnWidth); };
    qsizetype first = 0;
    for (qsizetype index = 1; index <= points.size(); ++index) {
        if (index < points.size() && columnOf(index) == columnOf(first))
            continue;
        appendExtremes(kept, points, first, index - 1);
        first = index;
    }
    return kept;
}

QPainterPath areaUnder(const QPainterPath& line, const QList<QPointF>& points, double bottom) {
    QPainterPath area = line;
    if (points.isEmpty())
        return area;
    area.lineTo(points.last().x(), bottom);
    area.lineTo(points.first().x(), bottom);
    area.closeSubpath();
    return area;
}

} // namespace orvelle
