#pragma once

#include <QList>

/// The bounded history that every monitor keeps: oldest sample first.
namespace orvelle::MetricHistory {

/// Samples kept in every monitor; at the default interval of 3 seconds they span 3 minutes.
inline constexpr qsizetype maxHistoryCount = 60;

/// Appends `sample` and drops the oldest samples beyond `maximumCount`.
void append(QList<double>& history, double sample, qsizetype maximumCount = maxHistoryCount);

} // namespace orvelle::MetricHistory
