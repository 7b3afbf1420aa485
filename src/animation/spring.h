#pragma once

namespace orvelle {

/// The motion of a spring.
struct SpringParameters {
    double response = 0;        ///< period without damping, seconds
    double dampingFraction = 0; ///< above 0 and below 1, where 1 would be critical damping

    bool operator==(const SpringParameters&) const = default;
};

/// A value that a damped spring pulls to its target. The motion is exact for steps of any length. A change of
/// target keeps position and velocity, so that it stays smooth in the middle of a motion.
class Spring {
public:
    /// Starts at rest at `position`.
    explicit Spring(double position)
        : m_position(position)
        , m_target(position) {}

    [[nodiscard]] double position() const { return m_position; }
    /// Change of the position per second.
    [[nodiscard]] double velocity() const { return m_velocity; }

    /// Pulls to `target` from now on.
    void retarget(double target) { m_target = target; }
    /// Moves to `target` at once and rests there.
    void jump(double target);
    /// Lets `seconds` pass; 0 or less changes nothing.
    void advance(double seconds, const SpringParameters& parameters);

    /// Whether position and velocity are within `tolerance` of resting at the target.
    [[nodiscard]] bool isSettled(double tolerance) const;

private:
    double m_position;
    double m_velocity = 0;
    double m_target;
};

/// How far a fraction is beyond 1, where a bar is full.
[[nodiscard]] constexpr double overshoot(double fraction) {
    return fraction > 1 ? fraction - 1 : 0;
}

} // namespace orvelle
