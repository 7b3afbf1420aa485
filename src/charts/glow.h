#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QImage>
#include <QRectF>

#include <functional>

/// The glow of charts: a blurred copy of a shape in one colour. A chart glows only when its `showGlow` is
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

/// Radius of the blur, points: twice its standard deviation.
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

/// How far a blur of `radius` reaches beyond what it blurs, points.
[[nodiscard]] constexpr double glowReach(double radius) {
    return 1.5 * radius;
}

/// `inked` with room around it for its glow.
[[nodiscard]] QRectF withGlowRoom(const QRectF& inked, double radius);

struct GlowStyle {
    QColor color = {}; ///< with the glow's opacity
    double radius = 0; ///< of the blur, points

    /// The glow of a chart in `color`.
    [[nodiscard]] static GlowStyle of(const QColor& color, GlowIntensity intensity);

    [[nodiscard]] bool isVisible() const { return radius > 0 && color.alpha() > 0; }
};

/// Paints a blurred copy of `mask` (Format_Alpha8, made for the grid under `painter`).
void paintGlow(QPainter& painter, const Picture& mask, const GlowStyle& style);

/// Paints a blurred copy of what `draw` paints within `inked`; of its colours only the opacity counts.
void paintGlow(QPainter& painter, const QRectF& inked, const GlowStyle& style,
               const std::function<void(QPainter&)>& draw);

/// `mask` (Format_Alpha8) blurred like a Gaussian of the standard deviation `sigma`, in pixels. What lies
/// outside the image counts as clear, and what is spread outside is lost. A sigma of 0 or below, or not
/// finite, leaves the mask unchanged.
[[nodiscard]] QImage blurredAlpha(const QImage& mask, double sigma);

} // namespace orvelle
