#pragma once

#include "animation/interpolate.h"

#include <QEasingCurve>

#include <utility>

namespace orvelle {

/// A value that takes a fixed time to follow a change, along a curve. A change in the middle of another one
/// starts from what is shown then. `interpolate` tells what lies between two values.
template <typename Value>
class Transition {
public:
    /// Starts at rest.
    explicit Transition(Value value = {})
        : m_from(value)
        , m_target(std::move(value)) {}

    [[nodiscard]] Value shown() const {
        if (isSettled())
            return m_target;
        return interpolate(m_from, m_target, m_curve->valueForProgress(m_elapsedSeconds / m_seconds));
    }
    [[nodiscard]] const Value& target() const { return m_target; }
    [[nodiscard]] bool isSettled() const { return m_elapsedSeconds >= m_seconds; }

    /// Moves to `target` within `seconds` from now on. The curve must outlive the motion.
    void retarget(Value target, double seconds, const QEasingCurve& curve) {
        m_from = shown();
        m_target = std::move(target);
        m_seconds = seconds;
        m_elapsedSeconds = 0;
        m_curve = &curve;
    }
    /// Shows `target` at once.
    void jump(Value target) {
        m_target = std::move(target);
        m_from = m_target;
        m_seconds = m_elapsedSeconds = 0;
    }
    /// Shows the present target at once.
    void settle() { jump(m_target); }

    /// Lets `seconds` pass.
    void advance(double seconds) {
        if (isSettled() || !(seconds > 0))
            return;
        m_elapsedSeconds += seconds;
        constexpr double roundingSeconds = 1e-6; // of the sum of many steps
        if (m_elapsedSeconds + roundingSeconds >= m_seconds)
            settle();
    }

private:
    Value m_from;
    Value m_target;
    double m_seconds = 0;
    double m_elapsedSeconds = 0;
    const QEasingCurve* m_curve = nullptr; ///< of the motion under way
};

} // namespace orvelle
