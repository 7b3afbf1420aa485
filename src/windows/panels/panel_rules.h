#pragma once

#include <QColor>
#include <QList>
#include <QString>

/// What the panels decide from the monitors' values: levels, colours, scales and motion.
namespace orvelle {

struct NetworkInterfaceInfo;
struct ProcessInfo;

/// How short of memory the machine is.
enum class PressureLevel { normal, warning, critical };

/// Critical from a pressure of 0.8 on, warning from 0.6.
[[nodiscard]] PressureLevel pressureLevel(double pressure);

/// "Normal", "Warning" or "Critical".
[[nodiscard]] QString pressureBadgeText(PressureLevel level);

/// Green, yellow or red.
[[nodiscard]] QColor pressureBadgeColor(PressureLevel level);

/// Like the badge, but `moduleColor` while the pressure is normal.
[[nodiscard]] QColor pressureGraphColor(PressureLevel level, const QColor& moduleColor);

/// `moduleColor` below 0.7, yellow below 0.9, else red.
[[nodiscard]] QColor volumeUsageColor(double usedFraction, const QColor& moduleColor);

/// Green above 0.8, yellow above 0.6, else red.
[[nodiscard]] QColor batteryHealthColor(double health);

/// The scale that two graphs of bytes per second share: the largest sample of both, but at least 1024, so
/// that a quiet machine shows a flat line and not its noise.
[[nodiscard]] double sharedGraphScale(const QList<double>& first, const QList<double>& second);

/// What a process list compares: processor time or resident memory.
enum class ProcessDisplayMode { cpu, memory };

/// The percentage that a process's bar stands for.
[[nodiscard]] double processPercent(const ProcessInfo& process, ProcessDisplayMode mode);

/// The percentage of a full bar: the largest of the list, but at least 1; 100 for an empty list.
[[nodiscard]] double processBarScale(const QList<ProcessInfo>& processes, ProcessDisplayMode mode);

/// How much of a bar is filled, at most 1; 0 when the scale is not above 0.
[[nodiscard]] double processBarFraction(double percent, double scale);

/// The percentage of processor time, or the bytes of memory.
[[nodiscard]] QString processValueText(const ProcessInfo& process, ProcessDisplayMode mode);

/// Whether a fan of this many revolutions per minute turns at all.
[[nodiscard]] bool isFanTurning(qint64 speed);

/// Seconds in which the fan's icon turns once; a faster fan's icon turns no faster than in half a second. 0
/// for a fan that stands still.
[[nodiscard]] double fanTurnSeconds(qint64 speed);

/// The angle in degrees at which the fan's icon is shown; 0 for a fan that stands still.
[[nodiscard]] double displayedFanAngle(double baseAngle, qint64 speed);

/// The symbol of a network interface, by its kind; where that is unknown, by the system's name of it.
[[nodiscard]] QString interfaceSymbol(const NetworkInterfaceInfo& info);

/// The symbol of a volume, by the path where it is mounted.
[[nodiscard]] QString volumeSymbol(const QString& id);

} // namespace orvelle
