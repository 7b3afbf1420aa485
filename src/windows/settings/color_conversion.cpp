#include "windows/settings/color_conversion.h"

#include "theme/colors.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr double largestComponent = 255;
constexpr int sextantCount = 6; ///< of the hue circle, one between each two of the six pure colours

/// The hue in sextants from red. `spread` is the difference of the largest and the smallest component.
double hueInSextants(const QColor& color, double spread) {
    const int red = color.red();
    const int green = color.green();
    const int blue = color.blue();
    if (red >= green && red >= blue)
        return green >= blue ? (green - blue) / spread : sextantCount + (green - blue) / spread;
    return green >= blue ? 2 + (blue - red) / spread : 4 + (red - green) / spread;
}

/// The share of a primary colour in a hue `distance` sextants away: all of it within one sextant, none from
/// two sextants on.
double primaryShare(double distance) {
    return std::clamp(2 - std::min(distance, sextantCount - distance), 0.0, 1.0);
}

} // namespace

HSBColor ColorConversion::hsbFromColor(const QColor& color, double hueOfGrey) {
    const auto [smallest, largest] = std::minmax({color.red(), color.green(), color.blue()});
    const double spread = largest - smallest;
    return {.hue = spread > 0 ? hueInSextants(color, spread) / sextantCount : hueOfGrey,
            .saturation = largest > 0 ? spread / largest : 0,
            .brightness = largest / largestComponent};
}

QColor ColorConversion::colorFromHSB(double hue, double saturation, double brightness) {
    const auto component = [&](double primaryInSextants) {
        const double distance = std::abs(hue * sextantCount - primaryInSextants);
        const double strength = brightness * (1 - saturation * (1 - primaryShare(distance)));
        return static_cast<int>(std::lround(strength * largestComponent));
    };
    return {component(0), component(2), component(4)};
}

QColor ColorConversion::colorFromHex(const QString& hex, const QColor& fallback) {
    return hexToColor(hex).value_or(QColor::fromRgb(fallback.rgb()));
}

QString ColorConversion::hexFromColor(const QColor& color) {
    return colorToHex(color);
}

} // namespace orvelle
