#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace orvelle {

/// How full a dial is and the colour in which it glows. Both move together when the temperature changes.
struct DialLook {
    double fraction = 0;   ///< 0 to 1
    QColor glowColor = {}; ///< of the temperature's band

    bool operator==(const DialLook&) const = default;
};

/// What lies between two looks: the first at `progress` 0, the second at 1.
[[nodiscard]] DialLook interpolate(const DialLook& from, const DialLook& to, double progress);

/// What decides how the picture of a dial in a cache looks.
struct TemperatureDial {
    DialLook look = {};
    GlowIntensity glowIntensity = GlowIntensity::none;

    bool operator==(const TemperatureDial&) const = default;
};

/// A temperature as a half ring from green to red, with the reading in its middle and a caption below.
struct TemperatureGauge {
    static constexpr double dialSize = 70; ///< width and height of the dial, points

    QString label = {};
    double temperature = 0; ///< degrees Celsius; 0 or below means that there is no reading
    double maxTemp = 110;   ///< degrees Celsius at which the dial is full
    bool useFahrenheit = false;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    bool showGlow = true;

    /// The look of the present temperature, towards which a host animates.
    [[nodiscard]] DialLook look() const;

    /// Height of dial and caption together, points. Needs a QGuiApplication, as painting does.
    [[nodiscard]] double height() const;

    /// How far stroke and glow reach beyond the dial on every side, points.
    [[nodiscard]] double overhang() const;

    /// Paints the present temperature from the top of `bounds`, centred across its width.
    void paint(QPainter& painter, const QRectF& bounds) const;

    /// Paints the dial as it looks in the middle of an animation.
    void paint(QPainter& painter, const QRectF& bounds, const DialLook& shown,
               PictureCache<TemperatureDial>* cache) const;

    bool operator==(const TemperatureGauge&) const = default;
};

} // namespace orvelle
