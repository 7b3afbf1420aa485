#pragma once

#include "charts/temperature_gauge.h"
#include "core/disk_monitor.h"
#include "core/memory_monitor.h"
#include "core/network_monitor.h"
#include "core/process_monitor.h"
#include "formatting/formatters.h"
#include "settings/styles.h"
#include "windows/panels/machine_word.h"
#include "windows/panels/panel_rules.h"
#include "windows/panels/panel_texts.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// The rules and texts of the panels, to QML. Each operation is the function of the same name.
class PanelRules : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static QString formatPercent(double fraction) { return orvelle::formatPercent(fraction); }
    Q_INVOKABLE static QString formatRate(double bytesPerSecond) {
        return orvelle::formatRate(bytesPerSecond);
    }
    Q_INVOKABLE static QString formatTemperature(double celsius, bool useFahrenheit) {
        return orvelle::formatTemperature(celsius, useFahrenheit);
    }
    Q_INVOKABLE static QString formatUptime(double seconds) { return orvelle::formatUptime(seconds); }
    Q_INVOKABLE static QString formatTimeRemaining(qint64 minutes) {
        return orvelle::formatTimeRemaining(minutes);
    }
    Q_INVOKABLE static QString byteSizeText(quint64 bytes) { return orvelle::byteSizeText(bytes); }
    Q_INVOKABLE static QString percentText(double percent) { return orvelle::percentText(percent); }
    Q_INVOKABLE static QString loadAveragesText(double one, double five, double fifteen) {
        return orvelle::loadAveragesText(one, five, fifteen);
    }
    Q_INVOKABLE static QString measureText(double value, int decimals, const QString& unit) {
        return orvelle::measureText(value, decimals, unit);
    }
    Q_INVOKABLE static QString mainsPowerNotice() { return orvelle::mainsPowerNotice(machineWord()); }
    Q_INVOKABLE static QString powerStateText(bool isCharging, bool isFullyCharged) {
        return orvelle::powerStateText(isCharging, isFullyCharged);
    }

    Q_INVOKABLE static double usedFraction(const orvelle::MemoryMonitorInfo& info) {
        return orvelle::usedFraction(info);
    }
    Q_INVOKABLE static double pressureFraction(const orvelle::MemoryMonitorInfo& info) {
        return orvelle::pressureFraction(info);
    }
    Q_INVOKABLE static QString pressureBadgeText(double pressure) {
        return orvelle::pressureBadgeText(pressureLevel(pressure));
    }
    Q_INVOKABLE static QColor pressureBadgeColor(double pressure) {
        return orvelle::pressureBadgeColor(pressureLevel(pressure));
    }
    Q_INVOKABLE static QColor pressureGraphColor(double pressure, const QColor& moduleColor) {
        return orvelle::pressureGraphColor(pressureLevel(pressure), moduleColor);
    }
    Q_INVOKABLE static quint64 volumeUsedBytes(const orvelle::DiskVolumeInfo& volume) {
        return usedBytes(volume);
    }
    Q_INVOKABLE static double volumeUsedFraction(const orvelle::DiskVolumeInfo& volume) {
        return orvelle::usedFraction(volume);
    }
    Q_INVOKABLE static QColor volumeUsageColor(double usedFraction, const QColor& moduleColor) {
        return orvelle::volumeUsageColor(usedFraction, moduleColor);
    }
    Q_INVOKABLE static QString volumeSymbol(const QString& id) { return orvelle::volumeSymbol(id); }
    Q_INVOKABLE static QString interfaceSymbol(const orvelle::NetworkInterfaceInfo& info) {
        return orvelle::interfaceSymbol(info);
    }
    Q_INVOKABLE static QColor batteryHealthColor(double health) {
        return orvelle::batteryHealthColor(health);
    }
    Q_INVOKABLE static bool isTemperatureKnown(double celsius) {
        return orvelle::isTemperatureKnown(celsius);
    }
    Q_INVOKABLE static QColor temperatureBandColor(double celsius) {
        return orvelle::temperatureBandColor(celsius);
    }
    Q_INVOKABLE static double sharedGraphScale(const QList<double>& first, const QList<double>& second) {
        return orvelle::sharedGraphScale(first, second);
    }

    /// `processes` are records of type ProcessInfo; `mode` is a ProcessDisplayMode.
    Q_INVOKABLE static double processBarScale(const QVariant& processes, int mode);
    Q_INVOKABLE static double processBarFraction(const orvelle::ProcessInfo& process, int mode, double scale);
    Q_INVOKABLE static QString processValueText(const orvelle::ProcessInfo& process, int mode);

    Q_INVOKABLE static bool isFanTurning(qint64 speed) { return orvelle::isFanTurning(speed); }
    Q_INVOKABLE static double fanTurnSeconds(qint64 speed) { return orvelle::fanTurnSeconds(speed); }
    Q_INVOKABLE static double displayedFanAngle(double baseAngle, qint64 speed) {
        return orvelle::displayedFanAngle(baseAngle, speed);
    }

    /// Whether charts glow at all.
    Q_INVOKABLE static bool hasGlow(orvelle::GlowIntensity intensity) {
        return intensity != GlowIntensity::none;
    }
    /// Whether the memory panel shows a ring of all parts of the memory, and not of the used share alone.
    Q_INVOKABLE static bool showsParts(orvelle::RingChartStyle style) {
        return style == RingChartStyle::fullRing;
    }
};

} // namespace orvelle
