#pragma once

#include "settings/styles.h"

/// What the strengths of glow stand for in every chart. A chart applies them only when its `showGlow` is
/// true.
namespace orvelle {

/// Opacity of the glow's colour, 0 to 1.
[[nodiscard]] constexpr double glowOpacity(GlowIntensity intensity) {
    switch (intensity) {
    case GlowIntensity::none:
        return 0;
    case GlowIntensity::subtle:
        return 0.3;
    case GlowIntensity::medium:
        return 0.5;
    case GlowIntensity::intense:
        return 0.8;
    }
    return 0;
}

/// Radius of the blur in points; its standard deviation is half of that.
[[nodiscard]] constexpr double glowRadius(GlowIntensity intensity) {
    switch (intensity) {
    case GlowIntensity::none:
        return 0;
    case GlowIntensity::subtle:
        return 2;
    case GlowIntensity::medium:
        return 4;
    case GlowIntensity::intense:
        return 8;
    }
    return 0;
}

/// How far a blur of `radius` can reach beyond what it blurs, points.
[[nodiscard]] constexpr double glowReach(double radius) {
    return 1.5 * radius;
}

} // namespace orvelle
