#include "windows/panels/panel_rules.h"

#include "core/network_monitor.h"
#include "core/process_monitor.h"
#include "theme/colors.h"
#include "windows/panels/panel_texts.h"

#include <algorithm>

namespace orvelle {

PressureLevel pressureLevel(double pressure) {
    if (pressure >= 0.8)
        return PressureLevel::critical;
    return pressure >= 0.6 ? PressureLevel::warning : PressureLevel::normal;
}

QString pressureBadgeText(PressureLevel level) {
    switch (level) {
    case PressureLevel::critical:
        return QStringLiteral("Critical");
    case PressureLevel::warning:
        return QStringLiteral("Warning");
    case PressureLevel::normal:
        break;
    }
    return QStringLiteral("Normal");
}

QColor pressureBadgeColor(PressureLevel level) {
    return pressureGraphColor(level, SystemColors::green);
}

QColor pressureGraphColor(PressureLevel level, const QColor& moduleColor) {
    switch (level) {
    case PressureLevel::critical:
        return SystemColors::red;
    case PressureLevel::warning:
        return SystemColors::yellow;
    case PressureLevel::normal:
        break;
    }
    return moduleColor;
}

QColor volumeUsageColor(double usedFraction, const QColor& moduleColor) {
    if (usedFraction < 0.7)
        return moduleColor;
    return usedFraction < 0.9 ? SystemColors::yellow : SystemColors::red;
}

QColor batteryHealthColor(double health) {
    if (health > 0.8)
        return SystemColors::green;
    return health > 0.6 ? SystemColors::yellow : SystemColors::red;
}

double sharedGraphScale(const QList<double>& first, const QList<double>& second) {
    double scale = 1024;
    for (const QList<double>* history : {&first, &second}) {
        for (const double sample : *history)
            scale = std::max(scale, sample);
    }
    return scale;
}

double processPercent(const ProcessInfo& process, ProcessDisplayMode mode) {
    return mode == ProcessDisplayMode::cpu ? process.cpuUsage : process.memoryPercent;
}

double processBarScale(const QList<ProcessInfo>& processes, ProcessDisplayMode mode) {
    constexpr double scaleOfEmptyList = 100;
    if (processes.isEmpty())
        return scaleOfEmptyList;
    double scale = 1;
    for (const ProcessInfo& process : processes)
        scale = std::max(scale, processPercent(process, mode));
    return scale;
}

double processBarFraction(double percent, double scale) {
    return scale > 0 ? std::min(percent / scale, 1.0) : 0;
}

QString processValueText(const ProcessInfo& process, ProcessDisplayMode mode) {
    return mode == ProcessDisplayMode::cpu ? percentText(process.cpuUsage)
                                           : byteSizeText(process.memoryBytes);
}

bool isFanTurning(qint64 speed) {
    return speed >= 1;
}

double fanTurnSeconds(qint64 speed) {
    constexpr double fastestTurn = 0.5;
    return isFanTurning(speed) ? std::max(3000 / static_cast<double>(speed), fastestTurn) : 0;
}

double displayedFanAngle(double baseAngle, qint64 speed) {
    return isFanTurning(speed) ? baseAngle + static_cast<double>(speed) / 3000 * 18 : 0;
}

QString interfaceSymbol(const NetworkInterfaceInfo& info) {
    const bool isWiFi = info.kind == InterfaceKind::unknown ? info.name.startsWith(QLatin1String("en0"))
                                                            : info.kind == InterfaceKind::wifi;
    return isWiFi ? QStringLiteral("wifi") : QStringLiteral("cable.connector");
}

QString volumeSymbol(const QString& id) {
    return id == QLatin1String("/") ? QStringLiteral("internaldrive") : QStringLiteral("externaldrive");
}

} // namespace orvelle
