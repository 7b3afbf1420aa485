#pragma once

#include <QString>

/// Numbers as the menu bar and the panels write them. The texts are the same under every locale: the decimal
/// mark is a full stop. Halves round as in printf. A value that is not finite is written as "nan" or "inf"
/// with its unit; the monitors publish none.
namespace orvelle {

/// A fraction as a percentage: "9.9%", "42%", and "100%" for 1 and above.
[[nodiscard]] QString formatPercent(double fraction);

/// Bytes per second in as few characters as the menu bar has room for: "1023B", "1.0K", "100K".
/// Units are powers of 1024 up to "G".
[[nodiscard]] QString formatRateCompact(double bytesPerSecond);

/// Bytes per second in full: "512 B/s", "1.5 KB/s"; powers of 1024 up to "GB/s".
[[nodiscard]] QString formatRate(double bytesPerSecond);

/// A temperature given in Celsius, without decimals: "45°C" or "113°F".
[[nodiscard]] QString formatTemperature(double celsius, bool useFahrenheit);

} // namespace orvelle
