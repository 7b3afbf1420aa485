#include "charts/bar_animation.h"

#include <algorithm>

namespace orvelle {
namespace {

std::array<double, 5> componentsOf(const BarLook& look) {
    return {look.ratio, look.color.redF(), look.color.greenF(), look.color.blueF(), look.color.alphaF()};
}

} // namespace

BarAnimation::BarAnimation(const BarLook& look)
    : m_springs{Spring(0), Spring(0), Spring(0), Spring(0), Spring(0)} {
    jump(look);
}

BarLook BarAnimation::look() const {
    const auto component = [this](std::size_t index) {
        return static_cast<float>(std::clamp(m_springs[index].position(), 0.0, 1.0));
    };
    return {m_springs[0].position(),
            QColor::fromRgbF(component(1), component(2), component(3), component(4))};
}

void BarAnimation::retarget(const BarLook& look) {
    const auto targets = componentsOf(look);
    for (std::size_t index = 0; index < m_springs.size(); ++index)
        m_springs[index].retarget(targets[index]);
}

void BarAnimation::jump(const BarLook& look) {
    const auto targets = componentsOf(look);
    for (std::size_t index = 0; index < m_springs.size(); ++index)
        m_springs[index].jump(targets[index]);
}

void BarAnimation::advance(double seconds, const SpringParameters& spring) {
    for (Spring& each : m_springs)
        each.advance(seconds, spring);
}

bool BarAnimation::isSettled() const {
    constexpr double invisible = 0.001; // a tenth of a point on a bar of 100
    return std::ranges::all_of(m_springs, [](const Spring& spring) { return spring.isSettled(invisible); });
}

} // namespace orvelle
