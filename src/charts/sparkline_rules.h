#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>

#include <optional>

namespace orvelle {

/// A full-scale sample of a sparkline stands this many points below the top edge.
inline constexpr double sparklineTopInset = 1.0;

/// The value that a sparkline draws at full scale: `maxValue` when it is above 0, else the largest sample.
/// Nothing when there are fewer than two samples or none is above 0: then nothing is drawn.
[[nodiscard]] std::optional<double> sparklineScale(const QList<double>& data, double maxValue);

/// A line through the points that is level at every one of them; two points are joined straight.
/// Empty for fewer than two points.
[[nodiscard]] QPainterPath sparklinePath(const QList<QPointF>& points);

} // namespace orvelle
