#include "probe/module_lines.h"

#include "core/system_monitor.h"
#include "formatting/formatters.h"

#include <algorithm>

namespace orvelle {
namespace {

/// Names are cut, so that a tooltip keeps its width.
constexpr qsizetype longestName = 40;
constexpr qsizetype mostListed = 3;

/// Whether some of it is written from the right.
bool hasRightToLeft(const QString& name) {
    return std::ranges::any_of(name.toUcs4(), [](char32_t character) {
        const QChar::Direction direction = QChar::direction(character);
        return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN;
    });
}

/// A name from the right keeps its place: the figures beside it would otherwise join it.
QString inItsPlace(const QString& name) {
    constexpr QChar begin(0x2068);
    constexpr QChar end(0x2069);
    return hasRightToLeft(name) ? begin + name + end : name;
}

QString shownName(const QString& name) {
    return inItsPlace(
        pangoEscaped(name.size() > longestName ? name.left(longestName - 1) + QChar(0x2026) : name));
}

QString ratesText(double down, double up) {
    return QStringLiteral("\u2193 %1  \u2191 %2").arg(formatRate(down), formatRate(up));
}

/// "firefox 65%, Xorg 4.0%": the processes with the most of something, as far as they have any.
template <class Value>
QString topText(const QList<ProcessInfo>& processes, Value valueText) {
    QStringList texts;
    for (const ProcessInfo& process : processes.first(std::min(processes.size(), mostListed))) {
        if (const QString value = valueText(process); !value.isEmpty())
            texts.append(shownName(process.name) + QLatin1Char(' ') + value);
    }
    return texts.isEmpty() ? QString() : QStringLiteral("  ") + texts.join(QStringLiteral(", "));
}

void appendUnlessEmpty(QStringList& lines, const QString& line) {
    if (!line.isEmpty())
        lines.append(line);
}

ModuleReport reportOf(CPUMonitor& cpu, SystemMonitor& monitor) {
    ModuleReport report{.text = QStringLiteral("CPU ") + formatPercent(cpu.totalUsage()),
                        .fraction = cpu.totalUsage(),
                        .severity = processorSeverity(cpu.totalUsage())};
    report.details = {QStringLiteral("CPU %1 (user %2, system %3)")
                          .arg(formatPercent(cpu.totalUsage()), formatPercent(cpu.userUsage()),
                               formatPercent(cpu.systemUsage())),
                      formatted("  load {:.2f}  {:.2f}  {:.2f}", cpu.loadAverage1(), cpu.loadAverage5(),
                                cpu.loadAverage15())};
    appendUnlessEmpty(
        report.details, topText(monitor.process().topCPUProcesses(), [](const ProcessInfo& process) {
            constexpr double leastShown = 0.05; // percent, below which it reads as 0.0
            return process.cpuUsage < leastShown ? QString() : formatted("{:.1f}%", process.cpuUsage);
        }));
    return report;
}

ModuleReport reportOf(MemoryMonitor& memory, SystemMonitor& monitor) {
    const MemoryMonitorInfo& info = memory.info();
    const double used = usedFraction(info);
    ModuleReport report{.text = QStringLiteral("MEM ") + formatPercent(used),
                        .fraction = std::clamp(used, 0.0, 1.0),
                        .severity = memorySeverity(pressureFraction(info))};
    report.details = {QStringLiteral("Memory %1 of %2, pressure %3")
                          .arg(formatByteSize(info.used), formatByteSize(info.total),
                               formatPercent(pressureFraction(info)))};
    if (info.swapTotal > 0)
        report.details.append(QStringLiteral("  swap %1 of %2")
                                  .arg(formatByteSize(info.swapUsed), formatByteSize(info.swapTotal)));
    appendUnlessEmpty(report.details,
                      topText(monitor.process().topMemoryProcesses(), [](const ProcessInfo& process) {
                          return formatByteSize(process.memoryBytes);
                      }));
    return report;
}

ModuleReport reportOf(NetworkMonitor& network, SystemMonitor& /*monitor*/) {
    ModuleReport report{.text = QStringLiteral("\u2193%1 \u2191%2")
                                    .arg(formatRateCompact(network.totalDownloadSpeed()),
                                         formatRateCompact(network.totalUploadSpeed()))};
    report.details = {QStringLiteral("Network ") +
                      ratesText(network.totalDownloadSpeed(), network.totalUploadSpeed())};
    const QList<NetworkInterfaceInfo>& interfaces = network.interfaces();
    for (const NetworkInterfaceInfo& info : interfaces.first(std::min(interfaces.size(), mostListed)))
        report.details.append(
            QStringLiteral("  %1  %2")
                .arg(shownName(info.displayName), ratesText(info.downloadSpeed, info.uploadSpeed)));
    return report;
}

ModuleReport reportOf(DiskMonitor& disk, SystemMonitor& /*monitor*/) {
    const QList<DiskVolumeInfo>& volumes = disk.volumes();
    ModuleReport report{.text = QStringLiteral("DISK")};
    if (!volumes.isEmpty()) {
        report.fraction = usedFraction(volumes.first());
        report.severity = volumeSeverity(*report.fraction);
        report.text += QLatin1Char(' ') + formatPercent(*report.fraction);
    }
    report.details = {QStringLiteral("Disk read %1, write %2")
                          .arg(formatRate(disk.diskIO().readSpeed), formatRate(disk.diskIO().writeSpeed))};
    for (const DiskVolumeInfo& volume : volumes.first(std::min(volumes.size(), mostListed)))
        report.details.append(QStringLiteral("  %1  %2, %3 free of %4")
                                  .arg(shownName(volume.name), formatPercent(usedFraction(volume)),
                                       formatByteSize(volume.freeSpace), formatByteSize(volume.totalSpace)));
    return report;
}

QString stateText(const BatteryInfo& battery) {
    if (battery.isCharging)
        return QStringLiteral("charging");
    if (battery.isFullyCharged)
        return QStringLiteral("full");
    return battery.isPluggedIn ? QStringLiteral("on AC power") : QStringLiteral("on battery");
}

/// "2:05 left", "full in 0:40"; empty while the time is not known.
QString timeText(const BatteryInfo& battery) {
    const qint64 minutes = battery.isCharging ? battery.timeToFull : battery.timeToEmpty;
    if (minutes < 0 || battery.isFullyCharged)
        return {};
    const QString time = formatted("{}:{:02}", minutes / 60, minutes % 60);
    return battery.isCharging ? QStringLiteral(", full in ") + time : QStringLiteral(", %1 left").arg(time);
}

ModuleReport reportOf(BatteryMonitor& monitor, SystemMonitor& /*monitor*/) {
    const BatteryInfo& battery = monitor.battery();
    if (!battery.isPresent)
        return {.text = QStringLiteral("AC"), .details = {QStringLiteral("No battery, on AC power")}};
    const QString charge = QString::number(battery.currentCapacity) + QLatin1Char('%');
    return {.text = QStringLiteral("BAT ") + charge + (battery.isCharging ? QStringLiteral("+") : QString()),
            .details = {QStringLiteral("Battery %1, %2").arg(charge, stateText(battery)) + timeText(battery)},
            .fraction = std::clamp(static_cast<double>(battery.currentCapacity) / 100, 0.0, 1.0),
            .severity = batterySeverity(battery.currentCapacity, battery.isCharging)};
}

ModuleReport reportOf(SensorMonitor& sensors, SystemMonitor& /*monitor*/) {
    const double celsius = sensors.cpuTemperature();
    const bool isKnown = celsius > 0;
    ModuleReport report{.text = isKnown ? formatTemperature(celsius, false) : QStringLiteral("--\u00b0C"),
                        .severity = isKnown ? temperatureSeverity(celsius) : Severity::normal};
    report.details = {QStringLiteral("Sensors CPU ") + report.text};
    if (sensors.gpuTemperature() > 0)
        report.details.last() +=
            QStringLiteral(", GPU ") + formatTemperature(sensors.gpuTemperature(), false);
    for (const FanInfo& fan : sensors.fans())
        report.details.append(QStringLiteral("  fan %1  %2 rpm").arg(fan.index + 1).arg(fan.speed));
    return report;
}

} // namespace

QString pangoEscaped(const QString& text) {
    QString showable;
    for (const char32_t character : text.toUcs4()) {
        const bool isControl = QChar::category(character) == QChar::Other_Control;
        const bool isShowable = !isControl && !QChar::isNonCharacter(character);
        showable += QChar::fromUcs4(isShowable ? character : char32_t{QChar::ReplacementCharacter});
    }
    return showable.toHtmlEscaped().replace(QLatin1Char('\''), QLatin1String("&#39;"));
}

ModuleReport moduleReport(ModuleId module, SystemMonitor& monitor) {
    switch (module) {
#define ORVELLE_MODULE(id, ...)                                                                              \
    case ModuleId::id:                                                                                       \
        return reportOf(monitor.id(), monitor);
        ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    }
    Q_UNREACHABLE();
}

} // namespace orvelle
