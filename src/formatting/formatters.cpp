#include "formatting/formatters.h"

#include <array>
#include <span>

namespace orvelle {
namespace {

using Units = std::span<const char* const>;

struct ScaledBytes {
    double value = 0;
    const char* unit = "";
    bool isWhole = true; ///< not divided: a number of bytes
};

/// Divides the bytes by 1024 until they are below that, or in the last unit.
ScaledBytes scaleBytes(double bytes, Units units) {
    size_t index = 0;
    while (bytes >= 1024 && index + 1 < units.size()) {
        bytes /= 1024;
        ++index;
    }
    return {.value = bytes, .unit = units[index], .isWhole = index == 0};
}

/// "512 B", "1.5 KB".
QString inFull(double bytes, Units units) {
    const auto [value, unit, isWhole] = scaleBytes(bytes, units);
    return isWhole ? formatted("{:.0f} {}", value, unit) : formatted("{:.1f} {}", value, unit);
}

} // namespace

QString formatPercent(double fraction) {
    const double percent = fraction * 100;
    if (percent >= 100)
        return QStringLiteral("100%");
    return percent >= 10 ? formatted("{:.0f}%", percent) : formatted("{:.1f}%", percent);
}

QString formatTemperature(double celsius, bool useFahrenheit) {
    return useFahrenheit ? formatted("{:.0f}°F", celsius * 9 / 5 + 32) : formatted("{:.0f}°C", celsius);
}

QString formatRateCompact(double bytesPerSecond) {
    constexpr std::array units = {"B", "K", "M", "G"};
    const auto [value, unit, isWhole] = scaleBytes(bytesPerSecond, units);
    return value < 100 ? formatted("{:.1f}{}", value, unit) : formatted("{:.0f}{}", value, unit);
}

QString formatRate(double bytesPerSecond) {
    constexpr std::array units = {"B/s", "KB/s", "MB/s", "GB/s"};
    return inFull(bytesPerSecond, units);
}

QString formatByteSize(quint64 bytes) {
    constexpr std::array units = {"B", "KB", "MB", "GB", "TB"};
    return inFull(static_cast<double>(bytes), units);
}

} // namespace orvelle
