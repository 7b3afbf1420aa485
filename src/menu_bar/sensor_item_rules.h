#pragma once

#include <QColor>
#include <QList>
#include <QString>

/// Texts and colours of the sensor item. Temperatures are in degrees Celsius whatever unit the panels show;
/// one that is not above 0 is not known.
namespace orvelle {

/// "45°", or "--°" for a temperature that is not known.
[[nodiscard]] QString temperatureText(double celsius);

/// `color` at opacity 0.7 below 60, yellow from 60 and red from 80.
[[nodiscard]] QColor temperatureColor(double celsius, const QColor& color);

/// Five dots from green to red, one lit for each full 20 degrees.
[[nodiscard]] QList<QColor> temperatureDotColors(double celsius);

} // namespace orvelle
