#pragma once

#include "charts/bar_look.h"

#include <QList>

/// What lies between two values: the first at `progress` 0, the second at 1.
namespace orvelle {

[[nodiscard]] double mixed(double from, double to, double progress);

/// Each component of the colour by itself.
[[nodiscard]] QColor mixed(const QColor& from, const QColor& to, double progress);

/// Length and colour together.
[[nodiscard]] BarLook mixed(const BarLook& from, const BarLook& to, double progress);

/// Bar by bar. Rows of another length have nothing in common: then it is the second from the start.
[[nodiscard]] QList<BarLook> mixed(const QList<BarLook>& from, const QList<BarLook>& to, double progress);

/// Two histories that fill the same width, as a series of the second one's length. Where they differ in
/// length, the first is read between its samples, so that its line stays where it was at `progress` 0. One
/// that is too short to be drawn is not mixed in.
[[nodiscard]] QList<double> mixed(const QList<double>& from, const QList<double>& to, double progress);

} // namespace orvelle
