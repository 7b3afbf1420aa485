#pragma once

#include <QTest>

#include <chrono>

namespace orvelle {

/// The longest time that a test waits for an expected event. Only a failing test waits that long.
inline constexpr std::chrono::milliseconds patience{20'000};

/// Handles events until `holds` returns true; false if it never does.
template <class Condition>
[[nodiscard]] bool waitUntil(Condition holds) {
    return QTest::qWaitFor(holds, static_cast<int>(patience.count()));
}

} // namespace orvelle
