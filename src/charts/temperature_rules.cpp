#include "charts/temperature_rules.h"

#include "charts/ring_rules.h"
#include "theme/system_colors.h"

#include <fmt/format.h>

#include <cmath>

namespace orvelle {

double temperatureFraction(double temperature, double maxTemp) {
    return maxTemp > 0 ? clampedFraction(temperature / maxTemp) : 0;
}

QColor temperatureBandColor(double temperature) {
    if (temperature < 50)
        return SystemColors::green;
    if (temperature < 70)
        return SystemColors::yellow;
    if (temperature < 90)
        return SystemColors::orange;
    return SystemColors::red;
}

bool isTemperatureKnown(double temperature) {
    return std::isfinite(temperature) && temperature > 0;
}

QString temperatureReading(double temperature, bool useFahrenheit) {
    if (!isTemperatureKnown(temperature))
        return QStringLiteral("--°");
    const double shown = useFahrenheit ? temperature * 9 / 5 + 32 : temperature;
    return QString::fromStdString(fmt::format("{:.0f}", shown)) +
           (useFahrenheit ? QStringLiteral("°F") : QStringLiteral("°C"));
}

} // namespace orvelle
