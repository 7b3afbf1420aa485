#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <optional>

namespace orvelle {

/// One fraction as a ring, a gauge or a pie, with labels in its middle.
struct AnimatedRingChart {
    double value = 0;                    ///< fraction 0 to 1; what lies outside is drawn as empty or full
    double lineWidth = 10;               ///< of track and progress, points
    double size = 90;                    ///< width and height of the chart, points
    QColor baseColor = {};               ///< colour while the value is below 0.6
    QColor trackColor = Qt::transparent; ///< colour of what is not filled
    bool showGlow = true;
    bool pulseCritical = false; ///< whether the ring pulses from `criticalThreshold` up
    double criticalThreshold = 0.9;
    std::optional<QString> label = {};    ///< large text in the middle
    std::optional<QString> sublabel = {}; ///< small text under it
    RingChartStyle ringStyle = RingChartStyle::fullRing;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    AnimationSpeed animationSpeed = AnimationSpeed::normal;
    double animatedValue = 0; ///< the fraction that is drawn; a host moves it towards `target()`
    double pulseScale = 1;    ///< scale while pulsing; a host moves it between 1 and 1.03

    /// The fraction that `value` asks for.
    [[nodiscard]] double target() const;

    /// The scale that is drawn: `pulseScale` while the value is critical, else 1.
    [[nodiscard]] double shownScale() const;

    /// How far stroke, glow and pulse reach beyond the chart's square on every side, points.
    [[nodiscard]] double overhang() const;

    /// Paints in the middle of `bounds`.
    void paint(QPainter& painter, const QRectF& bounds,
               PictureCache<AnimatedRingChart>* cache = nullptr) const;

    bool operator==(const AnimatedRingChart&) const = default;
};

} // namespace orvelle
