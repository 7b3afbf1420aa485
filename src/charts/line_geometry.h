#pragma once

#include "settings/styles.h"

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QSizeF>

/// The way from the samples of a history to a line on a canvas. The origin is the canvas's top-left corner
/// and y grows downward. Lengths are in points.
namespace orvelle {

/// `value` / `scale`, at most 1 and at least `lowestRatio`. Negative samples stay negative: their line leaves
/// the canvas. Not a number counts as 0.
[[nodiscard]] double sampleRatio(double value, double scale);
/// Keeps the arithmetic finite; farther below the canvas no difference can be seen.
inline constexpr double lowestRatio = -100;

/// One point per sample, spread evenly from x = 0 to the canvas's width. A ratio of 0 stands at the bottom
/// edge, a ratio of 1 at y = `topInset`. Empty for fewer than two samples.
[[nodiscard]] QList<QPointF> samplePoints(const QList<double>& data, double scale, const QSizeF& canvas,
                                          double topInset = 0);

/// The points of a line whose smallest visible column is `columnWidth` wide. Of many points in one column
/// only the first, lowest, highest and last are kept, which cover the same pixels. Few points come back
/// unchanged.
[[nodiscard]] QList<QPointF> visiblePoints(const QList<QPointF>& points, double columnWidth);

/// The control points of the cubic curve between two neighbouring points of a smooth line.
struct SplineControls {
    QPointF first;
    QPointF second;
};

/// The curve from `from` to `to`, whose outer neighbours are `before` and `after` (the point itself at an end
/// of the line). Each tangent is parallel to the chord between the neighbours and damped by the ratio of the
/// chord lengths on its two sides, so that the curve does not overshoot where spacing or slope changes
/// abruptly. Where a chord has no length the control point is the end point itself.
[[nodiscard]] SplineControls dampedControls(const QPointF& before, const QPointF& from, const QPointF& to,
                                            const QPointF& after);

/// The line through the points; `dotted` is `sharp` until it is stroked. Empty for fewer than two points.
[[nodiscard]] QPainterPath linePath(const QList<QPointF>& points, GraphLineStyle style);

/// The area between a line and y = `bottom`: the line, extended straight down from both of its ends. `points`
/// are the points that the line passes through.
[[nodiscard]] QPainterPath areaUnder(const QPainterPath& line, const QList<QPointF>& points, double bottom);

} // namespace orvelle
