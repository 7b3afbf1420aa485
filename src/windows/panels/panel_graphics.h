#pragma once

#include "core/disk_monitor.h"
#include "core/memory_monitor.h"
#include "core/network_monitor.h"
#include "core/process_monitor.h"
#include "settings/styles.h"

#include <QColor>
#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// How the panels draw values: colours, symbols, fractions, scales and angles.
class PanelGraphics : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    // Memory

    Q_INVOKABLE [[nodiscard]] static double usedFraction(const orvelle::MemoryMonitorInfo& info);
    Q_INVOKABLE [[nodiscard]] static double pressureFraction(const orvelle::MemoryMonitorInfo& info);
    /// Green, yellow or red.
    Q_INVOKABLE [[nodiscard]] static QColor pressureBadgeColor(double pressure);
    /// Like the badge, but `moduleColor` while the pressure is normal.
    Q_INVOKABLE [[nodiscard]] static QColor pressureGraphColor(double pressure, const QColor& moduleColor);

    // Volumes

    Q_INVOKABLE [[nodiscard]] static double volumeUsedFraction(const orvelle::DiskVolumeInfo& volume);
    /// `moduleColor` below 0.7, yellow below 0.9, else red.
    Q_INVOKABLE [[nodiscard]] static QColor volumeUsageColor(double usedFraction, const QColor& moduleColor);
    /// The symbol of a volume, by the path where it is mounted.
    Q_INVOKABLE [[nodiscard]] static QString volumeSymbol(const QString& id);

    // Network

    /// The symbol of a network interface: by its kind, or by its system name when the kind is unknown.
    Q_INVOKABLE [[nodiscard]] static QString interfaceSymbol(const orvelle::NetworkInterfaceInfo& info);
    /// The scale that two graphs of bytes per second share: the largest sample of both, but at least 1024, so
    /// that the noise of a quiet machine stays flat.
    Q_INVOKABLE [[nodiscard]] static double sharedGraphScale(const QList<double>& first,
                                                             const QList<double>& second);

    // Battery

    /// Green above 0.8, yellow above 0.6, else red.
    Q_INVOKABLE [[nodiscard]] static QColor batteryHealthColor(double health);

    // Processes, compared by resident memory or else by processor time

    /// The percentage of a full bar: the largest in `processes`, a list of ProcessInfo, but at least 1. 100
    /// for an empty list.
    Q_INVOKABLE [[nodiscard]] static double processBarScale(const QVariant& processes, bool byMemory);
    /// How much of the process's bar is filled, at most 1; 0 when the scale is not above 0.
    Q_INVOKABLE [[nodiscard]] static double processBarFraction(const orvelle::ProcessInfo& process,
                                                               bool byMemory, double scale);

    // Sensors. A speed is in revolutions per minute.

    Q_INVOKABLE [[nodiscard]] static bool isTemperatureKnown(double celsius);
    Q_INVOKABLE [[nodiscard]] static QColor temperatureBandColor(double celsius);
    Q_INVOKABLE [[nodiscard]] static bool isFanTurning(qint64 speed);
    /// Seconds in which the fan's icon turns once, at least 0.5; 0 for a fan that stands still.
    Q_INVOKABLE [[nodiscard]] static double fanTurnSeconds(qint64 speed);
    /// The angle in degrees at which the fan's icon is shown; 0 for a fan that stands still.
    Q_INVOKABLE [[nodiscard]] static double displayedFanAngle(double baseAngle, qint64 speed);

    // Settings

    /// Whether charts glow at all.
    Q_INVOKABLE [[nodiscard]] static bool hasGlow(orvelle::GlowIntensity intensity);
    /// Whether the memory ring shows every kind of memory instead of the used share alone.
    Q_INVOKABLE [[nodiscard]] static bool showsParts(orvelle::RingChartStyle style);
};

} // namespace orvelle
