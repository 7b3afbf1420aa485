#pragma once

#include <QString>
#include <fmt/format.h>

#include <utility>

/// Numbers as the menu bar and the panels write them. The texts are the same under every locale: the decimal
/// mark is a full stop. Halves round as in printf. A value that is not finite is written as "nan" or "inf"
/// with its unit; the monitors publish none.
namespace orvelle {

/// `fmt::format` as a QString. Unlike printf, libfmt never asks the locale for its decimal mark.
template <class... Arguments>
[[nodiscard]] QString formatted(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
    return QString::fromStdString(fmt::format(format, std::forward<Arguments>(arguments)...));
}

/// A fraction as a percentage: "9.9%", "42%", and "100%" for 1 and above.
[[nodiscard]] QString formatPercent(double fraction);

/// A temperature given in Celsius, without decimals: "45°C" or "113°F".
[[nodiscard]] QString formatTemperature(double celsius, bool useFahrenheit);

// Bytes: units are powers of 1024.

/// Bytes per second in as few characters as the menu bar has room for: "1023B", "1.0K", "100K". Units end at
/// "G".
[[nodiscard]] QString formatRateCompact(double bytesPerSecond);

/// Bytes per second in full: "512 B/s", "1.5 KB/s". Units end at "GB/s".
[[nodiscard]] QString formatRate(double bytesPerSecond);

/// A count of bytes: "1023 B", "1.0 KB", "15.9 GB". Units end at "TB".
[[nodiscard]] QString formatByteSize(quint64 bytes);

} // namespace orvelle
