#pragma once

#include <QTest>

#include <chrono>

namespace orvelle {

/// How long a test waits for what must come. Only a test that fails waits that long.
inline constexpr std::chrono::milliseconds patience{20'000};

/// Handles events until `holds` is true; false when it never is.
template <class Condition>
[[nodiscard]] bool waitUntil(Condition holds) {
    return QTest::qWaitFor(holds, static_cast<int>(patience.count()));
}

} // namespace orvelle
