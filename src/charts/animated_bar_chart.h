#pragma once

#include "charts/bar_look.h"
#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>

/// A row of bars in one of the styles. Lengths are in points.
namespace orvelle {

struct BarPicture;

/// One bar of a row.
struct AnimatedBar {
    double value = 0;
    double maxValue = 1;     ///< value that fills the bar; when not above 0 the bar stays empty
    double cornerRadius = 0; ///< of rounded and square bars
    QColor baseColor = {};   ///< colour below half scale
    bool showGlow = true;
    BarChartStyle barStyle = BarChartStyle::rounded;
    GlowIntensity glowIntensity = GlowIntensity::medium;

    /// The look of the present value, towards which a host animates.
    [[nodiscard]] BarLook look() const;

    /// How far the glow reaches beyond the slot on every side.
    [[nodiscard]] double overhang() const;

    /// Paints the bar in the middle of an animation, at the bottom of `slot`. Without its glow it stays
    /// within the slot's width, except that a thin line is at least 1.5 wide. `index` numbers the bars that
    /// share a cache.
    void paint(QPainter& painter, const QRectF& slot, const BarLook& shown, PictureCache<BarPicture>* cache,
               std::size_t index) const;

    bool operator==(const AnimatedBar&) const = default;
};

/// What the picture of a bar in a cache depends on.
struct BarPicture {
    AnimatedBar bar = {};
    BarLook shown = {};

    bool operator==(const BarPicture&) const = default;
};

/// One bar for each of a series of values, from left to right.
struct AnimatedBarChart {
    QList<double> values = {};
    double maxValue = 1;   ///< value that fills a bar to the full height
    double barSpacing = 2; ///< between bars; see `barSpacingFor`
    QColor baseColor = {}; ///< colour of a bar below half scale
    bool showGlow = true;
    double height = 50; ///< of the chart
    bool animateChanges = true;
    BarChartStyle barStyle = BarChartStyle::rounded;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    AnimationSpeed animationSpeed = AnimationSpeed::normal;

    [[nodiscard]] QList<AnimatedBar> bars() const;

    /// The slots of `count` bars. The chart is as wide as `bounds` and `height` high, centred in it.
    [[nodiscard]] QList<QRectF> barSlots(const QRectF& bounds, qsizetype count) const;

    /// Paints the present values.
    void paint(QPainter& painter, const QRectF& bounds, PictureCache<BarPicture>* cache = nullptr) const;

    /// Paints the bars in the middle of an animation, one look per value, in order. At most two bars per
    /// pixel are drawn; each then stands for several and is as tall as the tallest of them.
    void paint(QPainter& painter, const QRectF& bounds, const QList<BarLook>& shown,
               PictureCache<BarPicture>* cache) const;

    bool operator==(const AnimatedBarChart&) const = default;
};

// Geometry of the styles.

/// Corner radius that a chart of this style passes to its bars.
[[nodiscard]] double barCornerRadius(BarChartStyle style);

/// Gap between the bars of a chart: `spacing`, but at least 3 for pills and thin lines.
[[nodiscard]] double barSpacingFor(BarChartStyle style, double spacing);

/// How the bars of a row share its width.
struct BarRow {
    double slotWidth = 0;
    double gap = 0;
};

/// `count` slots of equal width with gaps of `spacing` that together fill `width`. Where the gaps leave the
/// slots less than 1, a hairline that cannot be seen, the gaps shrink until slots and gaps are equally wide.
[[nodiscard]] BarRow barRow(qsizetype count, double width, double spacing);

/// Width of the bar that a style draws in a slot of `slotWidth`.
[[nodiscard]] double barWidth(BarChartStyle style, double slotWidth);

/// The outline of a bar at the bottom of `slot`, centred; `height` may pass the slot's top.
[[nodiscard]] QPainterPath barShape(BarChartStyle style, const QRectF& slot, double height,
                                    double cornerRadius);

/// Radius of a bar's glow; half as large around thin lines.
[[nodiscard]] double barGlowRadius(BarChartStyle style, GlowIntensity intensity);

} // namespace orvelle
