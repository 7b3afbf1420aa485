#pragma once

#include <QList>

#include <algorithm>
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
    if (history.size() < maximumCount) {
        history.append(sample);
        return;
    }
    // A list that drops its first element and appends one grows by the room of that element with every
    // sample, if a view shares it. So the elements move instead.
    std::shift_left(history.begin(), history.end(), history.size() - maximumCount + 1);
    history.resize(maximumCount);
    history.back() = sample;
}

} // namespace MetricHistory
} // namespace orvelle
