#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

/// The temperature gauge and its rules. Temperatures are degrees Celsius, lengths are in points.
namespace orvelle {

/// How full the dial is, 0 to 1; 0 when `maxTemp` is not above 0 or the temperature is not a number.
[[nodiscard]] double temperatureFraction(double temperature, double maxTemp);

/// Green below 50, yellow below 70, orange below 90, else red.
[[nodiscard]] QColor temperatureBandColor(double temperature);

/// Whether there is a reading: finite and above 0.
[[nodiscard]] bool isTemperatureKnown(double temperature);

/// The text in the middle of the dial, for example "64°C"; "--°" without a reading.
[[nodiscard]] QString temperatureReading(double temperature, bool useFahrenheit);

/// A dial at one moment. Both fields move together when the temperature changes.
struct DialLook {
    double fraction = 0;   ///< filled, 0 to 1
    QColor glowColor = {}; ///< of the temperature's band

    bool operator==(const DialLook&) const = default;
};

[[nodiscard]] DialLook interpolate(const DialLook& from, const DialLook& to, double progress);

/// What the picture of a dial in a cache depends on.
struct TemperatureDial {
    DialLook look = {};
    GlowIntensity glowIntensity = GlowIntensity::none;

    bool operator==(const TemperatureDial&) const = default;
};

/// A temperature as a half ring from green to red, with the reading in its middle and a caption below.
struct TemperatureGauge {
    static constexpr double dialSize = 70; ///< width and height of the dial

    QString label = {};
    double temperature = 0; ///< 0 or below means that there is no reading
    double maxTemp = 110;   ///< temperature at which the dial is full
    bool useFahrenheit = false;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    bool showGlow = true;

    /// The look of the present temperature, towards which a host animates.
    [[nodiscard]] DialLook look() const;

    /// Height of dial and caption together. Needs a QGuiApplication, as painting does.
    [[nodiscard]] double height() const;

    /// How far stroke and glow reach beyond the dial on every side.
    [[nodiscard]] double overhang() const;

    /// Paints the present temperature from the top of `bounds`, centred across its width.
    void paint(QPainter& painter, const QRectF& bounds) const;

    /// Paints the dial in the middle of an animation.
    void paint(QPainter& painter, const QRectF& bounds, const DialLook& shown,
               PictureCache<TemperatureDial>* cache) const;

    bool operator==(const TemperatureGauge&) const = default;
};

} // namespace orvelle
