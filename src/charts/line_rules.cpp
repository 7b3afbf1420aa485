#include "charts/line_rules.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double smallestScale = 0.001;
/// Chords shorter than this have no direction worth following.
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

double lineGraphScale(double maxValue) {
    return maxValue > smallestScale ? maxValue : smallestScale;
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

std::optional<DashPattern> lineDashes(GraphLineStyle style) {
    if (style == GraphLineStyle::dotted)
        return DashPattern{.dash = 3, .gap = 4};
    return std::nullopt;
}

} // namespace orvelle
