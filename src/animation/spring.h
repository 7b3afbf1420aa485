#pragma once

#include "animation/animation_timing.h"

namespace orvelle {

/// How far a moving fraction is beyond 1, where it would be full.
[[nodiscard]] constexpr double overshoot(double fraction) {
    return fraction > 1 ? fraction - 1 : 0;
}

/// A value that a damped spring pulls to its target. The motion is exact for any step, large or small, and a
/// change of target keeps position and speed, so that a change in the middle of another one stays smooth.
class Spring {
public:
    /// Starts at rest at `position`.
    explicit Spring(double position)
        : m_position(position)
        , m_target(position) {}

    [[nodiscard]] double position() const { return m_position; }
    /// Change of the position per second.
    [[nodiscard]] double velocity() const { return m_velocity; }
    [[nodiscard]] double target() const { return m_target; }

    /// Pulls to `target` from now on.
    void retarget(double target) { m_target = target; }
    /// Moves to `target` at once and rests there.
    void jump(double target);
    /// Lets `seconds` pass; none or a negative number changes nothing.
    void advance(double seconds, const SpringParameters& parameters);

    /// Whether position and speed are within `tolerance` of resting at the target.
    [[nodiscard]] bool isSettled(double tolerance) const;

private:
    double m_position;
    double m_velocity = 0;
    double m_target;
};

} // namespace orvelle
