#include "windows/panels/panel_graphics.h"

#include "charts/temperature_gauge.h"
#include "core/severity.h"
#include "theme/colors.h"

#include <algorithm>

namespace orvelle {
namespace {

QColor severityColor(Severity severity, const QColor& normalColor) {
    switch (severity) {
    case Severity::critical:
        return SystemColors::red;
    case Severity::warning:
        return SystemColors::yellow;
    case Severity::normal:
        break;
    }
    return normalColor;
}

double processPercent(const ProcessInfo& process, bool byMemory) {
    return byMemory ? process.memoryPercent : process.cpuUsage;
}

/// The records of a list that has been a QML property of type `var`: from Qt 6.5 on such a list keeps its
/// type, before it becomes a list of variants.
QList<ProcessInfo> processRecords(const QVariant& processes) {
    if (processes.metaType() == QMetaType::fromType<QList<ProcessInfo>>())
        return processes.value<QList<ProcessInfo>>();
    QList<ProcessInfo> records;
    for (const QVariant& process : processes.toList())
        records.append(process.value<ProcessInfo>());
    return records;
}

} // namespace

double PanelGraphics::usedFraction(const MemoryMonitorInfo& info) {
    return orvelle::usedFraction(info);
}

double PanelGraphics::pressureFraction(const MemoryMonitorInfo& info) {
    return orvelle::pressureFraction(info);
}

QColor PanelGraphics::pressureBadgeColor(double pressure) {
    return severityColor(memorySeverity(pressure), SystemColors::green);
}

QColor PanelGraphics::pressureGraphColor(double pressure, const QColor& moduleColor) {
    return severityColor(memorySeverity(pressure), moduleColor);
}

double PanelGraphics::volumeUsedFraction(const DiskVolumeInfo& volume) {
    return orvelle::usedFraction(volume);
}

QColor PanelGraphics::volumeUsageColor(double usedFraction, const QColor& moduleColor) {
    return severityColor(volumeSeverity(usedFraction), moduleColor);
}

QString PanelGraphics::volumeSymbol(const QString& id) {
    return id == QLatin1String("/") ? QStringLiteral("internaldrive") : QStringLiteral("externaldrive");
}

QString PanelGraphics::interfaceSymbol(const NetworkInterfaceInfo& info) {
    const bool isWiFi = info.kind == InterfaceKind::unknown ? info.name.startsWith(QLatin1String("en0"))
                                                            : info.kind == InterfaceKind::wifi;
    return isWiFi ? QStringLiteral("wifi") : QStringLiteral("cable.connector");
}

double PanelGraphics::sharedGraphScale(const QList<double>& first, const QList<double>& second) {
    double scale = 1024;
    for (const QList<double>* history : {&first, &second}) {
        for (const double sample : *history)
            scale = std::max(scale, sample);
    }
    return scale;
}

QColor PanelGraphics::batteryHealthColor(double health) {
    if (health > 0.8)
        return SystemColors::green;
    return health > 0.6 ? SystemColors::yellow : SystemColors::red;
}

double PanelGraphics::processBarScale(const QVariant& processes, bool byMemory) {
    constexpr double scaleOfEmptyList = 100;
    const QList<ProcessInfo> records = processRecords(processes);
    if (records.isEmpty())
        return scaleOfEmptyList;
    double scale = 1;
    for (const ProcessInfo& process : records)
        scale = std::max(scale, processPercent(process, byMemory));
    return scale;
}

double PanelGraphics::processBarFraction(const ProcessInfo& process, bool byMemory, double scale) {
    return scale > 0 ? std::min(processPercent(process, byMemory) / scale, 1.0) : 0;
}

bool PanelGraphics::isTemperatureKnown(double celsius) {
    return orvelle::isTemperatureKnown(celsius);
}

QColor PanelGraphics::temperatureBandColor(double celsius) {
    return orvelle::temperatureBandColor(celsius);
}

bool PanelGraphics::isFanTurning(qint64 speed) {
    return speed >= 1;
}

double PanelGraphics::fanTurnSeconds(qint64 speed) {
    constexpr double fastestTurn = 0.5;
    return isFanTurning(speed) ? std::max(3000 / static_cast<double>(speed), fastestTurn) : 0;
}

double PanelGraphics::displayedFanAngle(double baseAngle, qint64 speed) {
    return isFanTurning(speed) ? baseAngle + static_cast<double>(speed) / 3000 * 18 : 0;
}

bool PanelGraphics::hasGlow(GlowIntensity intensity) {
    return intensity != GlowIntensity::none;
}

bool PanelGraphics::showsParts(RingChartStyle style) {
    return style == RingChartStyle::fullRing;
}

} // namespace orvelle
