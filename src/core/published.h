#pragma once

#include <utility>

namespace orvelle {

/// Assigns a published property and tells its observers. Observers are told at each assignment, in the order
/// of the assignments, also when the value is the same as before.
template <class Monitor, class Value>
void publish(Monitor* monitor, Value& property, Value value, void (Monitor::*changed)()) {
    property = std::move(value);
    (monitor->*changed)();
}

} // namespace orvelle
