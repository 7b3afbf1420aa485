#pragma once

#include "animation/spring.h"
#include "settings/styles.h"

#include <QEasingCurve>

#include <optional>

/// The durations and curves of all animations of charts. Durations are seconds.
namespace orvelle {

/// The spring of a bar's height and colour; nothing when changes show at once.
[[nodiscard]] std::optional<SpringParameters> barSpring(AnimationSpeed speed, bool animate);

/// The spring of the fill of a `GradientBar`.
inline constexpr SpringParameters gradientBarSpring{.response = 0.4, .dampingFraction = 0.7};

/// How long a ring takes to fill when it is first shown (ease out); nothing when it fills at once.
[[nodiscard]] std::optional<double> ringOpeningSeconds(AnimationSpeed speed);

/// How long a ring takes to follow a change (ease in and out); nothing when it follows at once.
[[nodiscard]] std::optional<double> ringChangeSeconds(AnimationSpeed speed);

inline constexpr double miniBarSeconds = 0.3;            ///< ease in and out
inline constexpr double lineGraphSeconds = 0.3;          ///< ease in and out
inline constexpr double lineGraphRedrawSeconds = 0.1;    ///< shortest time between two redraws
inline constexpr double segmentRingOpeningSeconds = 1.0; ///< ease out, from progress 0 to 1
inline constexpr double temperatureGaugeSeconds = 0.5;   ///< ease in and out

/// Half a period of a critical ring's pulse: from scale 1 to `pulseLargestScale`, or back.
inline constexpr double pulseSeconds = 0.8;
inline constexpr double pulseLargestScale = 1.03;

/// The scale of a ring that has been pulsing for `elapsedSeconds`; it eases in and out both ways.
[[nodiscard]] double pulseScaleAt(double elapsedSeconds);

/// Starts and ends gently: the cubic Bezier curve through (0.42, 0) and (0.58, 1).
[[nodiscard]] const QEasingCurve& easeInOut();

/// Starts at once and ends gently: the cubic Bezier curve through (0, 0) and (0.58, 1).
[[nodiscard]] const QEasingCurve& easeOut();

} // namespace orvelle
