#pragma once

#include <QList>

#include <utility>

namespace orvelle {

/// Assigns a published property and notifies its observers. They are notified at each assignment, in the
/// order of the assignments, even when the value stays the same.
template <class Monitor, class Value>
void publish(Monitor* monitor, Value& property, Value value, void (Monitor::*changed)()) {
    property = std::move(value);
    (monitor->*changed)();
}

/// The bounded history that every monitor keeps, oldest sample first.
namespace MetricHistory {

/// Samples kept in every monitor; at the default interval of 3 seconds they span 3 minutes.
inline constexpr qsizetype maxHistoryCount = 60;

/// Appends `sample` and drops the oldest samples beyond `maximumCount`.
inline void append(QList<double>& history, double sample, qsizetype maximumCount = maxHistoryCount) {
    history.append(sample);
    if (history.size() > maximumCount)
        history.remove(0, history.size() - maximumCount);
}

} // namespace MetricHistory
} // namespace orvelle
