#include "charts/bar_look.h"

#include "theme/colors.h"

#include <algorithm>
#include <cmath>
#include <ranges>

namespace orvelle {
namespace {

constexpr double smallestHeight = 1;
constexpr double halfFull = 0.5;
constexpr double threeQuartersFull = 0.75;
/// Each of the two colour ramps covers a quarter of the scale.
constexpr double rampsPerScale = 4;
constexpr double amberGreen = 0.85;

QColor opaque(double red, double green, double blue) {
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

/// The sRGB form of a colour; white for an invalid one.
QColor inSRgb(const QColor& color) {
    return color.isValid() ? color.toRgb() : QColor(SystemColors::white);
}

std::array<double, 5> componentsOf(const BarLook& look) {
    return {look.ratio, look.color.redF(), look.color.greenF(), look.color.blueF(), look.color.alphaF()};
}

} // namespace

double barFillRatio(double value, double maxValue) {
    if (!(maxValue > 0))
        return 0;
    const double ratio = value / maxValue;
    return std::isnan(ratio) ? 0 : std::clamp(ratio, 0.0, 1.0);
}

double barHeight(double ratio, double availableHeight) {
    const double height = ratio * availableHeight;
    return height > smallestHeight ? height : smallestHeight; // also for what is not a number
}

QColor barColor(double ratio, const QColor& baseColor) {
    if (!(ratio >= halfFull))
        return baseColor;
    if (ratio < threeQuartersFull) {
        const double blend = (ratio - halfFull) * rampsPerScale;
        const QColor base = inSRgb(baseColor);
        return opaque(blend + (1 - blend) * base.redF(), blend * amberGreen + (1 - blend) * base.greenF(),
                      (1 - blend) * base.blueF());
    }
    const double redness = std::min((ratio - threeQuartersFull) * rampsPerScale, 1.0);
    return opaque(1, (1 - redness) * amberGreen, 0);
}

QColor miniBarColor(double fraction, const QColor& color) {
    if (fraction >= threeQuartersFull)
        return SystemColors::red;
    if (fraction >= halfFull)
        return SystemColors::yellow;
    return color;
}

BarLook interpolate(const BarLook& from, const BarLook& to, double progress) {
    return {interpolate(from.ratio, to.ratio, progress), interpolate(from.color, to.color, progress)};
}

QList<BarLook> interpolate(const QList<BarLook>& from, const QList<BarLook>& to, double progress) {
    if (from.size() != to.size())
        return to;
    QList<BarLook> result;
    result.reserve(to.size());
    for (qsizetype index = 0; index < to.size(); ++index)
        result.append(interpolate(from[index], to[index], progress));
    return result;
}

bool looksAlike(const QList<BarLook>& one, const QList<BarLook>& other, double fullPixels) {
    constexpr double visiblePixels = 0.5;
    constexpr double visibleShade = 0.02;
    return std::ranges::equal(one, other, [fullPixels](const BarLook& first, const BarLook& second) {
        if (std::abs(first.ratio - second.ratio) * fullPixels >= visiblePixels)
            return false;
        const auto shades = componentsOf(first);
        const auto others = componentsOf(second);
        return std::ranges::equal(
            shades | std::views::drop(1), others | std::views::drop(1),
            [](double shade, double same) { return std::abs(shade - same) < visibleShade; });
    });
}

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
