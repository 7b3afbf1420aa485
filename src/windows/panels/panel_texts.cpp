#include "windows/panels/panel_texts.h"

#include "core/checked.h"
#include "core/severity.h"
#include "formatting/formatters.h"
#include "windows/panels/panel_graphics.h"

namespace orvelle {

QString PanelTexts::formatPercent(double fraction) {
    return orvelle::formatPercent(fraction);
}

QString PanelTexts::formatRate(double bytesPerSecond) {
    return orvelle::formatRate(bytesPerSecond);
}

QString PanelTexts::formatByteSize(quint64 bytes) {
    return orvelle::formatByteSize(bytes);
}

QString PanelTexts::formatTemperature(double celsius, bool useFahrenheit) {
    return orvelle::formatTemperature(celsius, useFahrenheit);
}

QString PanelTexts::formatUptime(double seconds) {
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

QString PanelTexts::formatTimeRemaining(qint64 minutes) {
    if (minutes < 0)
        return QStringLiteral("Calculating...");
    return minutes >= 60 ? formatted("{}:{:02} remaining", minutes / 60, minutes % 60)
                         : formatted("{} min remaining", minutes);
}

QString PanelTexts::percentText(double percent) {
    return formatted("{:.1f}%", percent);
}

QString PanelTexts::measureText(double value, int decimals, const QString& unit) {
    return formatted("{:.{}f} ", value, decimals) + unit;
}

QString PanelTexts::loadAveragesText(double oneMinute, double fiveMinutes, double fifteenMinutes) {
    return formatted("{:.2f}  {:.2f}  {:.2f}", oneMinute, fiveMinutes, fifteenMinutes);
}

QString PanelTexts::processValueText(const ProcessInfo& process, bool byMemory) {
    return byMemory ? formatByteSize(process.memoryBytes) : percentText(process.cpuUsage);
}

QString PanelTexts::pressureBadgeText(double pressure) {
    switch (memorySeverity(pressure)) {
    case Severity::critical:
        return QStringLiteral("Critical");
    case Severity::warning:
        return QStringLiteral("Warning");
    case Severity::normal:
        break;
    }
    return QStringLiteral("Normal");
}

QString PanelTexts::volumeUsedText(const DiskVolumeInfo& volume) {
    return formatByteSize(usedBytes(volume)) + QStringLiteral(" used");
}

QString PanelTexts::powerStateText(bool isCharging, bool isFullyCharged) {
    if (isCharging)
        return QStringLiteral("Charging");
    return isFullyCharged ? QStringLiteral("Full") : QStringLiteral("On Battery");
}

QString PanelTexts::mainsPowerNotice() {
    return QStringLiteral("This " ORVELLE_MACHINE_WORD " is running on AC power");
}

} // namespace orvelle
