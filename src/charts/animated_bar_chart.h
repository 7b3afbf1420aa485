#pragma once

#include "charts/animated_bar.h"

#include <QList>

namespace orvelle {

/// A row of bars for a series of values, one per element from left to right.
struct AnimatedBarChart {
    QList<double> values = {};
    double maxValue = 1;   ///< value that fills a bar to the full height
    double barSpacing = 2; ///< points between bars; some styles ask for more
    QColor baseColor = {}; ///< colour of a bar below half scale
    bool showGlow = true;
    double height = 50; ///< of the chart, points
    bool animateChanges = true;
    BarChartStyle barStyle = BarChartStyle::rounded;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    AnimationSpeed animationSpeed = AnimationSpeed::normal;

    /// One bar per value.
    [[nodiscard]] QList<AnimatedBar> bars() const;

    /// The slots of `count` bars. The chart is as wide as `bounds` and `height` points high, centred in it;
    /// `barRow` shares out the width.
    [[nodiscard]] QList<QRectF> barSlots(const QRectF& bounds, qsizetype count) const;

    /// Paints the present values, and the glow beyond the chart as every bar does.
    void paint(QPainter& painter, const QRectF& bounds, PictureCache<BarPicture>* cache = nullptr) const;

    /// Paints the bars as they look in the middle of an animation: one look per value, in order. More bars
    /// than two per pixel are drawn as that many, each as tall as the tallest that it stands for.
    void paint(QPainter& painter, const QRectF& bounds, const QList<BarLook>& shown,
               PictureCache<BarPicture>* cache) const;

    bool operator==(const AnimatedBarChart&) const = default;
};

} // namespace orvelle
