#pragma once

#include <QList>

namespace orvelle {

/// Splits a width among neighbours, from left to right in whole points: evenly where each has the room that
/// it needs in an even share, else to each what it needs and an equal part of what is left, or missing.
[[nodiscard]] QList<double> sharedWidths(const QList<double>& needed, double available);

/// The columns of cells that stand row by row in as few rows as a width allows, and how wide each must be for
/// the widest cell in it, in whole points. The rows are as even as they can be. There is one column at least.
[[nodiscard]] QList<double> fittingColumns(const QList<double>& needed, double spacing, double available);

} // namespace orvelle
