#pragma once

#include <QColor>
#include <QList>

/// What lies between two values: the first at `progress` 0, the second at 1.
namespace orvelle {

[[nodiscard]] double interpolate(double from, double to, double progress);

/// Each component of the colour by itself.
[[nodiscard]] QColor interpolate(const QColor& from, const QColor& to, double progress);

/// Two histories that fill the same width, as a series of the second one's length. Where they differ in
/// length, the first is read between its samples, so that its line stays where it was at `progress` 0. One
/// that is too short to be drawn is not mixed in.
[[nodiscard]] QList<double> interpolate(const QList<double>& from, const QList<double>& to, double progress);

} // namespace orvelle
