#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainter>
#include <QRectF>
#include <QString>

#include <optional>

/// The ring charts. Lengths are in points.
namespace orvelle {

/// One fraction as a ring, a gauge or a pie, with labels in its middle.
struct AnimatedRingChart {
    double value = 0;                    ///< fraction 0 to 1, clamped when drawn
    double lineWidth = 10;               ///< of track and progress
    double size = 90;                    ///< width and height of the chart
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

    /// How far stroke, glow and pulse reach beyond the chart's square on every side.
    [[nodiscard]] double overhang() const;

    /// Paints in the middle of `bounds`.
    void paint(QPainter& painter, const QRectF& bounds,
               PictureCache<AnimatedRingChart>* cache = nullptr) const;

    bool operator==(const AnimatedRingChart&) const = default;
};

/// A ring divided into coloured segments by their share of the whole.
struct MultiSegmentRing {
    struct Segment {
        double value = 0; ///< share of the sum of all segments
        QColor color = {};
    };

    QList<Segment> segments = {}; ///< drawn in order, clockwise from twelve o'clock
    double lineWidth = 10;
    double size = 90; ///< width and height
    QColor trackColor = Qt::transparent;
    double animatedProgress = 0; ///< 0 shows only the track, 1 all segments; a host moves it once from 0 to 1

    /// Paints in the middle of `bounds`. The stroke reaches beyond the ring's square by half its width.
    void paint(QPainter& painter, const QRectF& bounds) const;
};

} // namespace orvelle
