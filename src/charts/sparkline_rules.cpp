#include "charts/sparkline_rules.h"

namespace orvelle {

std::optional<double> sparklineScale(const QList<double>& data, double maxValue) {
    if (data.size() < 2)
        return std::nullopt;
    if (maxValue > 0)
        return maxValue;
    double largest = 0; // starting from zero also skips samples that are not a number
    for (const double sample : data)
        largest = sample > largest ? sample : largest;
    return largest > 0 ? std::optional(largest) : std::nullopt;
}

QPainterPath sparklinePath(const QList<QPointF>& points) {
    QPainterPath path;
    if (points.size() < 2)
        return path;
    path.reserve(static_cast<int>(points.size() * 3));
    path.moveTo(points.first());
    if (points.size() == 2) {
        path.lineTo(points.last());
        return path;
    }
    for (qsizetype index = 1; index < points.size(); ++index) {
        const QPointF& from = points[index - 1];
        const QPointF& to = points[index];
        const double middle = (from.x() + to.x()) / 2;
        path.cubicTo({middle, from.y()}, {middle, to.y()}, to);
    }
    return path;
}

} // namespace orvelle
