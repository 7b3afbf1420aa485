#include "charts/line_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvelle {
namespace {

/// Lines with fewer points per column on average are drawn in full.
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

/// Shorter chords have no direction.
constexpr double smallestChord = 0.001;

double length(const QPointF& vector) {
    return std::hypot(vector.x(), vector.y());
}

/// The offset of a control point from its end of the curve. `outerChord` is the chord beyond that end.
QPointF dampedTangent(const QPointF& span, double outerChord, double innerChord) {
    if (outerChord <= smallestChord || innerChord <= smallestChord)
        return {};
    return span / (3 * (1 + outerChord / innerChord));
}

void addSpline(QPainterPath& path, const QList<QPointF>& points) {
    const qsizetype last = points.size() - 1;
    for (qsizetype index = 0; index < last; ++index) {
        const QPointF& before = points[std::max<qsizetype>(index - 1, 0)];
        const QPointF& after = points[std::min(index + 2, last)];
        const SplineControls controls = dampedControls(before, points[index], points[index + 1], after);
        path.cubicTo(controls.first, controls.second, points[index + 1]);
    }
}

void addSteps(QPainterPath& path, const QList<QPointF>& points) {
    for (qsizetype index = 1; index < points.size(); ++index) {
        path.lineTo(points[index].x(), points[index - 1].y());
        path.lineTo(points[index]);
    }
}

void addLines(QPainterPath& path, const QList<QPointF>& points) {
    for (qsizetype index = 1; index < points.size(); ++index)
        path.lineTo(points[index]);
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

SplineControls dampedControls(const QPointF& before, const QPointF& from, const QPointF& to,
                              const QPointF& after) {
    const double chord = length(to - from);
    return {from + dampedTangent(to - before, length(from - before), chord),
            to - dampedTangent(after - from, length(after - to), chord)};
}

QPainterPath linePath(const QList<QPointF>& points, GraphLineStyle style) {
    QPainterPath path;
    if (points.size() < 2)
        return path;
    path.reserve(static_cast<int>(points.size() * 3));
    path.moveTo(points.first());
    if (style == GraphLineStyle::stepped)
        addSteps(path, points);
    else if (style == GraphLineStyle::smooth && points.size() > 2)
        addSpline(path, points);
    else
        addLines(path, points);
    return path;
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
