#pragma once

#include "core/disk_monitor.h"
#include "core/process_monitor.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orvelle {

/// Numbers and states as the panels write them. The texts are the same under every locale.
class PanelTexts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    // As in the menu bar: see formatting/formatters.h.

    Q_INVOKABLE [[nodiscard]] static QString formatPercent(double fraction);
    Q_INVOKABLE [[nodiscard]] static QString formatRate(double bytesPerSecond);
    Q_INVOKABLE [[nodiscard]] static QString formatByteSize(quint64 bytes);
    Q_INVOKABLE [[nodiscard]] static QString formatTemperature(double celsius, bool useFahrenheit);

    /// How long the machine runs: "1d 2h 3m", "1h 0m", "0m". Parts of a minute are dropped. A number of
    /// seconds that is not finite, or larger than a signed 64-bit integer, stops the process.
    Q_INVOKABLE [[nodiscard]] static QString formatUptime(double seconds);

    /// "2:05 remaining" from an hour on, "59 min remaining" below. A negative number is an unknown time:
    /// "Calculating...".
    Q_INVOKABLE [[nodiscard]] static QString formatTimeRemaining(qint64 minutes);

    /// A percentage with one decimal: "12.3%".
    Q_INVOKABLE [[nodiscard]] static QString percentText(double percent);

    /// A number with `decimals` decimals, a space and its unit: "12.50 V".
    Q_INVOKABLE [[nodiscard]] static QString measureText(double value, int decimals, const QString& unit);

    /// The three load averages: "1.50  1.25  1.00".
    Q_INVOKABLE [[nodiscard]] static QString loadAveragesText(double oneMinute, double fiveMinutes,
                                                              double fifteenMinutes);

    /// The percentage of processor time, or the bytes of memory.
    Q_INVOKABLE [[nodiscard]] static QString processValueText(const orvelle::ProcessInfo& process,
                                                              bool byMemory);

    /// "Normal", "Warning" or "Critical".
    Q_INVOKABLE [[nodiscard]] static QString pressureBadgeText(double pressure);

    /// The bytes of the volume that are taken: "700 B used".
    Q_INVOKABLE [[nodiscard]] static QString volumeUsedText(const orvelle::DiskVolumeInfo& volume);

    /// "Charging", "Full" or "On Battery".
    Q_INVOKABLE [[nodiscard]] static QString powerStateText(bool isCharging, bool isFullyCharged);

    /// Stands in place of a battery: "This computer is running on AC power". The build says what people call
    /// a machine under this operating system.
    Q_INVOKABLE [[nodiscard]] static QString mainsPowerNotice();
};

} // namespace orvelle
