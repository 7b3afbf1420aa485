#pragma once

#include <QList>

namespace orvelle {

/// Splits a width among neighbours, from left to right in whole points: evenly where each has the room that
/// it needs in an even share, else to each what it needs and an equal part of what is left, or missing.
[[nodiscard]] QList<double> sharedWidths(const QList<double>& needed, double available);

} // namespace orvelle
