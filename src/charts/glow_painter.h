#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>

#include <functional>

namespace orvelle {

/// A glow ready to be painted.
struct GlowStyle {
    QColor color = {}; ///< its opacity included
    double radius = 0; ///< of the blur, points; its standard deviation is half of that

    /// The glow of a chart in `color`.
    [[nodiscard]] static GlowStyle of(const QColor& color, GlowIntensity intensity);

    /// Whether there is anything to see.
    [[nodiscard]] bool isVisible() const { return radius > 0 && color.alpha() > 0; }
};

/// `inked` with room around it for all that the blur spreads.
[[nodiscard]] QRectF withGlowRoom(const QRectF& inked, double radius);

/// Paints a blurred copy of `mask` (Format_Alpha8, made for the grid under `painter`). What lies beyond the
/// mask's edges counts as clear.
void paintGlow(QPainter& painter, const Picture& mask, const GlowStyle& style);

/// Paints a blurred copy of what `draw` paints within `inked`; of its colours only the opacity counts.
void paintGlow(QPainter& painter, const QRectF& inked, const GlowStyle& style,
               const std::function<void(QPainter&)>& draw);

} // namespace orvelle
