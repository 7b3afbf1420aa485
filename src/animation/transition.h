#pragma once

#include <QColor>
#include <QEasingCurve>
#include <QList>

#include <utility>

namespace orvelle {

// Interpolation: the first value at `progress` 0, the second at 1.

[[nodiscard]] double interpolate(double from, double to, double progress);

/// Each component by itself.
[[nodiscard]] QColor interpolate(const QColor& from, const QColor& to, double progress);

/// Two histories over the same width, as a series of the second one's length. A first one of another length
/// is resampled along its line. A series with fewer than two samples has no line: the second shows at once.
[[nodiscard]] QList<double> interpolate(const QList<double>& from, const QList<double>& to, double progress);

/// A value that follows a change along a curve, in a fixed time. A change in the middle of a transition
/// starts from the value shown then. `Value` has a function `interpolate`.
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

    /// Moves to `target` within `seconds` from now on. The curve must outlive the transition.
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

    /// Lets `seconds` pass; 0 or less changes nothing.
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
    const QEasingCurve* m_curve = nullptr; ///< null until the first transition
};

} // namespace orvelle
