#pragma once

#include "charts/bar_look.h"
#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace orvelle {

struct BarPicture;

/// One bar of a row.
struct AnimatedBar {
    double value = 0;
    double maxValue = 1;     ///< value that fills the bar; when not above 0 the bar stays empty
    double cornerRadius = 0; ///< points; pill and thin-line bars have a radius of their own
    QColor baseColor = {};   ///< colour below half scale
    bool showGlow = true;
    BarChartStyle barStyle = BarChartStyle::rounded;
    GlowIntensity glowIntensity = GlowIntensity::medium;

    /// The look of the present value, towards which a host animates.
    [[nodiscard]] BarLook look() const;

    /// How far the glow reaches beyond the slot on every side, points.
    [[nodiscard]] double overhang() const;

    /// Paints the bar as it looks in the middle of an animation. Without its glow the bar stays within the
    /// slot's width, except that a thin line is never narrower than 1.5 points. `index` numbers the bars that
    /// share one cache.
    void paint(QPainter& painter, const QRectF& slot, const BarLook& shown, PictureCache<BarPicture>* cache,
               std::size_t index = 0) const;

    bool operator==(const AnimatedBar&) const = default;
};

/// What decides how the picture of a bar in a cache looks.
struct BarPicture {
    AnimatedBar bar = {};
    BarLook shown = {};

    bool operator==(const BarPicture&) const = default;
};

} // namespace orvelle
