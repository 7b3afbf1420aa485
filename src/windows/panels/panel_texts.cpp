#include "windows/panels/panel_texts.h"

#include "core/checked.h"
#include "formatting/formatters.h"

#include <array>

namespace orvelle {

QString formatUptime(double seconds) {
    constexpr std::int64_t minute = 60;
    constexpr std::int64_t hour = 60 * minute;
    constexpr std::int64_t day = 24 * hour;
    const std::int64_t whole = checkedTruncate(seconds);
    const std::int64_t hours = whole % day / hour;
    const std::int64_t minutes = whole % hour / minute;
    if (whole >= day)
        return formatted("{}d {}h {}m", whole / day, hours, minutes);
    return whole < hour ? formatted("{}m", minutes) : formatted("{}h {}m", hours, minutes);
}

QString formatTimeRemaining(qint64 minutes) {
    if (minutes < 0)
        return QStringLiteral("Calculating...");
    return minutes >= 60 ? formatted("{}:{:02} remaining", minutes / 60, minutes % 60)
                         : formatted("{} min remaining", minutes);
}

QString byteSizeText(quint64 bytes) {
    constexpr std::array units = {"B", "KB", "MB", "GB", "TB"};
    if (bytes < 1024)
        return formatted("{} {}", bytes, units.front());
    double value = static_cast<double>(bytes);
    size_t divisions = 0;
    while (value >= 1024 && divisions + 1 < units.size()) {
        value /= 1024;
        ++divisions;
    }
    return formatted("{:.1f} {}", value, units.at(divisions));
}

QString percentText(double percent) {
    return formatted("{:.1f}%", percent);
}

QString loadAveragesText(double oneMinute, double fiveMinutes, double fifteenMinutes) {
    return formatted("{:.2f}  {:.2f}  {:.2f}", oneMinute, fiveMinutes, fifteenMinutes);
}

QString measureText(double value, int decimals, const QString& unit) {
    return formatted("{:.{}f} ", value, decimals) + unit;
}

QString mainsPowerNotice(const QString& machineWord) {
    return QStringLiteral("This %1 is running on AC power").arg(machineWord);
}

QString powerStateText(bool isCharging, bool isFullyCharged) {
    if (isCharging)
        return QStringLiteral("Charging");
    return isFullyCharged ? QStringLiteral("Full") : QStringLiteral("On Battery");
}

} // namespace orvelle
