#pragma once

#include <QString>

/// Numbers and states as the panels write them, beside those that the menu bar writes too. The texts are the
/// same under every locale.
namespace orvelle {

/// How long the machine runs: "1d 2h 3m", "1h 0m", "0m". Parts of a minute are dropped. A number of seconds
/// that is not finite, or larger than a signed 64-bit integer, stops the process.
[[nodiscard]] QString formatUptime(double seconds);

/// "2:05 remaining" from an hour on, "59 min remaining" below, and "Calculating..." for a negative number,
/// which stands for a time that is not known.
[[nodiscard]] QString formatTimeRemaining(qint64 minutes);

/// A count of bytes, in powers of 1024 up to terabytes: "1023 B", "1.0 KB", "15.9 GB".
[[nodiscard]] QString byteSizeText(quint64 bytes);

/// A percentage with one decimal: "12.3%".
[[nodiscard]] QString percentText(double percent);

/// The three load averages: "1.50  1.25  1.00".
[[nodiscard]] QString loadAveragesText(double oneMinute, double fiveMinutes, double fifteenMinutes);

/// A number with `decimals` decimals, a space and its unit: "12.50 V".
[[nodiscard]] QString measureText(double value, int decimals, const QString& unit);

/// What stands in place of a battery: "This computer is running on AC power", with this word for the machine.
[[nodiscard]] QString mainsPowerNotice(const QString& machineWord);

/// "Charging", "Full" or "On Battery".
[[nodiscard]] QString powerStateText(bool isCharging, bool isFullyCharged);

} // namespace orvelle
