#include "windows/settings/color_parts.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double largestComponent = 255;
constexpr int sideCount = 6; ///< of the circle of hues: from each of six pure colours to the next

/// In sides of the circle, from red.
double hueInSides(const QColor& color, double spread) {
    const int red = color.red();
    const int green = color.green();
    const int blue = color.blue();
    if (red >= green && red >= blue)
        return green >= blue ? (green - blue) / spread : sideCount + (green - blue) / spread;
    return green >= blue ? 2 + (blue - red) / spread : 4 + (red - green) / spread;
}

/// How much of a pure colour is in a hue, which is `distance` sides away from it: all of it up to one side
/// away, nothing from two sides on.
double share(double distance) {
    return std::clamp(2 - std::min(distance, sideCount - distance), 0.0, 1.0);
}

} // namespace

ColorParts colorParts(const QColor& color, double hueOfGrey) {
    const auto [weakest, strongest] = std::minmax({color.red(), color.green(), color.blue()});
    const double spread = strongest - weakest;
    return {.hue = spread > 0 ? hueInSides(color, spread) / sideCount : hueOfGrey,
            .saturation = strongest > 0 ? spread / strongest : 0,
            .brightness = strongest / largestComponent};
}

QColor colorOfParts(const ColorParts& parts) {
    const auto component = [&](double pureHueInSides) {
        const double distance = std::abs(parts.hue * sideCount - pureHueInSides);
        const double strength = parts.brightness * (1 - parts.saturation * (1 - share(distance)));
        return static_cast<int>(std::lround(strength * largestComponent));
    };
    return {component(0), component(2), component(4)};
}

} // namespace orvelle
