#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QSizeF>

/// Where the samples of a history stand on a canvas whose top-left corner is the origin; y grows downward.
namespace orvelle {

/// `value` / `scale`, at most 1. Negative samples stay negative, but no lower than `lowestRatio`: farther
/// below the canvas nothing can be told apart, and the arithmetic stays finite. Not a number counts as 0.
[[nodiscard]] double sampleRatio(double value, double scale);
inline constexpr double lowestRatio = -100;

/// One point per sample, spread evenly over the width: sample 0 at x = 0, the last one at x = width. A ratio
/// of 0 stands at y = height, a ratio of 1 at y = `topInset`. Empty for fewer than two samples.
[[nodiscard]] QList<QPointF> samplePoints(const QList<double>& data, double scale, const QSizeF& canvas,
                                          double topInset = 0);

/// The points of a line that is drawn with `columnWidth` points to the smallest visible column. Where many
/// points share a column only its first, lowest, highest and last are kept, which cover the same pixels.
/// Lines with few points come back as they are.
[[nodiscard]] QList<QPointF> visiblePoints(const QList<QPointF>& points, double columnWidth);

/// The area between a line and the bottom edge at y = `bottom`: the line, extended straight down from both
/// of its ends. `points` are the points that the line passes through.
[[nodiscard]] QPainterPath areaUnder(const QPainterPath& line, const QList<QPointF>& points, double bottom);

} // namespace orvelle
