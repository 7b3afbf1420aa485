#include "animation/spring.h"

#include <cmath>
#include <numbers>

namespace orvelle {

void Spring::jump(double target) {
    m_position = m_target = target;
    m_velocity = 0;
}

void Spring::advance(double seconds, const SpringParameters& parameters) {
    if (!(seconds > 0))
        return;
    // The solution of x'' + 2 decay x' + frequency^2 x = 0, where x is the distance from the target.
    const double frequency = 2 * std::numbers::pi / parameters.response;
    const double decay = parameters.dampingFraction * frequency;
    const double swing = frequency * std::sqrt(1 - parameters.dampingFraction * parameters.dampingFraction);
    const double cosinePart = m_position - m_target;
    const double sinePart = (m_velocity + decay * cosinePart) / swing;
    const double shrink = std::exp(-decay * seconds);
    const double cosine = std::cos(swing * seconds);
    const double sine = std::sin(swing * seconds);
    const double distance = shrink * (cosinePart * cosine + sinePart * sine);
    m_velocity = shrink * swing * (sinePart * cosine - cosinePart * sine) - decay * distance;
    m_position = m_target + distance;
}

bool Spring::isSettled(double tolerance) const {
    return std::abs(m_position - m_target) <= tolerance && std::abs(m_velocity) <= tolerance;
}

} // namespace orvelle
