#include "charts/glow_painter.h"

#include "charts/blur.h"
#include "charts/glow.h"
#include "theme/opacity.h"

namespace orvelle {

GlowStyle GlowStyle::of(const QColor& color, GlowIntensity intensity) {
    return {withOpacity(color, glowOpacity(intensity)), glowRadius(intensity)};
}

QRectF withGlowRoom(const QRectF& inked, double radius) {
    const double reach = glowReach(radius);
    return inked.adjusted(-reach, -reach, reach, reach);
}

void paintGlow(QPainter& painter, const Picture& mask, const GlowStyle& style) {
    if (mask.image.isNull() || !style.isVisible())
        return;
    const double sigmaPixels = style.radius / 2 * PixelGrid::under(painter).pixelsPerPoint;
    showPicture(painter, {tinted(blurredAlpha(mask.image, sigmaPixels), style.color), mask.offset});
}

void paintGlow(QPainter& painter, const QRectF& inked, const GlowStyle& style,
               const std::function<void(QPainter&)>& draw) {
    if (style.isVisible())
        paintGlow(painter,
                  rasterize(PixelGrid::under(painter), withGlowRoom(inked, style.radius),
                            QImage::Format_Alpha8, draw),
                  style);
}

} // namespace orvelle
