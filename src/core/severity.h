#pragma once

#include <QtGlobal>

namespace orvelle {

/// How urgently a value wants the user's attention.
enum class Severity { normal, warning, critical };

/// Of the processor's usage, 0 to 1: a warning from a half on, critical from three quarters on.
[[nodiscard]] constexpr Severity processorSeverity(double usage) {
    if (usage >= 0.75)
        return Severity::critical;
    return usage >= 0.5 ? Severity::warning : Severity::normal;
}

/// Of the pressure on memory, 0 to 1.
[[nodiscard]] constexpr Severity memorySeverity(double pressure) {
    if (pressure >= 0.8)
        return Severity::critical;
    return pressure >= 0.6 ? Severity::warning : Severity::normal;
}

/// Of the taken share of a volume, 0 to 1.
[[nodiscard]] constexpr Severity volumeSeverity(double usedFraction) {
    if (usedFraction < 0.7)
        return Severity::normal;
    return usedFraction < 0.9 ? Severity::warning : Severity::critical;
}

/// Of a battery's charge in percent. A battery that charges is no worry.
[[nodiscard]] constexpr Severity batterySeverity(qint64 charge, bool isCharging) {
    if (isCharging || charge >= 41)
        return Severity::normal;
    return charge < 21 ? Severity::critical : Severity::warning;
}

/// Of a processor's temperature in degrees Celsius.
[[nodiscard]] constexpr Severity temperatureSeverity(double celsius) {
    if (celsius < 60)
        return Severity::normal;
    return celsius < 80 ? Severity::warning : Severity::critical;
}

} // namespace orvelle
