#include "animation/animation_timing.h"

#include <QPointF>

#include <cmath>

namespace orvelle {
namespace {

constexpr double barDampingFraction = 0.7;

QEasingCurve bezierCurve(const QPointF& firstControl, const QPointF& secondControl) {
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment(firstControl, secondControl, {1, 1});
    return curve;
}

/// One of three durations by speed; nothing for `instant`.
std::optional<double> secondsFor(AnimationSpeed speed, double slow, double normal, double fast) {
    switch (speed) {
    case AnimationSpeed::slow:
        return slow;
    case AnimationSpeed::normal:
        return normal;
    case AnimationSpeed::fast:
        return fast;
    case AnimationSpeed::instant:
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

std::optional<SpringParameters> barSpring(AnimationSpeed speed, bool animate) {
    const std::optional<double> response = secondsFor(speed, 0.8, 0.4, 0.2);
    if (!animate || !response)
        return std::nullopt;
    return SpringParameters{*response, barDampingFraction};
}

std::optional<double> ringOpeningSeconds(AnimationSpeed speed) {
    return secondsFor(speed, 1.6, 0.8, 0.3);
}

std::optional<double> ringChangeSeconds(AnimationSpeed speed) {
    return secondsFor(speed, 0.8, 0.4, 0.15);
}

double pulseScaleAt(double elapsedSeconds) {
    const double legs = std::fmod(elapsedSeconds / pulseSeconds, 2);
    const double progress = legs <= 1 ? legs : 2 - legs;
    return 1 + (pulseLargestScale - 1) * easeInOut().valueForProgress(progress);
}

const QEasingCurve& easeInOut() {
    static const QEasingCurve curve = bezierCurve({0.42, 0}, {0.58, 1});
    return curve;
}

const QEasingCurve& easeOut() {
    static const QEasingCurve curve = bezierCurve({0, 0}, {0.58, 1});
    return curve;
}

} // namespace orvelle
