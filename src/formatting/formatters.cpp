#include "formatting/formatters.h"

#include "formatting/formatted.h"

#include <array>

namespace orvelle {
namespace {

struct ScaledRate {
    double value = 0;
    size_t divisions = 0; ///< how many times the rate was divided by 1024, at most three
};

ScaledRate scaleRate(double bytesPerSecond) {
    constexpr double oneOver1024 = 0.0009765625;
    ScaledRate rate{.value = bytesPerSecond};
    while (rate.value >= 1024 && rate.divisions < 3) {
        rate.value *= oneOver1024;
        ++rate.divisions;
    }
    return rate;
}

} // namespace

QString formatPercent(double fraction) {
    const double percent = fraction * 100;
    if (percent >= 100)
        return QStringLiteral("100%");
    return percent >= 10 ? formatted("{:.0f}%", percent) : formatted("{:.1f}%", percent);
}

QString formatRateCompact(double bytesPerSecond) {
    constexpr std::array units = {"B", "K", "M", "G"};
    const auto [value, divisions] = scaleRate(bytesPerSecond);
    const char* unit = units.at(divisions);
    return value < 100 ? formatted("{:.1f}{}", value, unit) : formatted("{:.0f}{}", value, unit);
}

QString formatRate(double bytesPerSecond) {
    constexpr std::array units = {"B/s", "KB/s", "MB/s", "GB/s"};
    const auto [value, divisions] = scaleRate(bytesPerSecond);
    const char* unit = units.at(divisions);
    return bytesPerSecond < 1024 ? formatted("{:.0f} {}", value, unit) : formatted("{:.1f} {}", value, unit);
}

QString formatTemperature(double celsius, bool useFahrenheit) {
    return useFahrenheit ? formatted("{:.0f}°F", celsius * 9 / 5 + 32) : formatted("{:.0f}°C", celsius);
}

} // namespace orvelle
