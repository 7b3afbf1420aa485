#pragma once

#include <QColor>
#include <QString>

/// What a temperature gauge shows. Temperatures are degrees Celsius.
namespace orvelle {

/// How full the dial is, at most 1; 0 when `maxTemp` is not above 0 or the temperature is not a number.
[[nodiscard]] double temperatureFraction(double temperature, double maxTemp);

/// Green below 50, yellow below 70, orange below 90, else red.
[[nodiscard]] QColor temperatureBandColor(double temperature);

/// Whether the temperature is a reading at all: above 0.
[[nodiscard]] bool isTemperatureKnown(double temperature);

/// The text in the middle of the dial, for example "64°C"; "--°" when there is no reading.
[[nodiscard]] QString temperatureReading(double temperature, bool useFahrenheit);

} // namespace orvelle
