#pragma once

#include "core/process_ranking.h"
#include "core/sources/clock.h"
#include "core/sources/process_source.h"

#include <QList>
#include <QObject>
#include <QString>

namespace orvelle {

/// One process of a list of heaviest processes; the pid identifies it.
struct ProcessInfo {
    Q_GADGET
    Q_PROPERTY(qint32 pid MEMBER pid)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double cpuUsage MEMBER cpuUsage)
    Q_PROPERTY(quint64 memoryBytes MEMBER memoryBytes)
    Q_PROPERTY(double memoryPercent MEMBER memoryPercent)
public:
    qint32 pid = 0;
    QString name;             ///< name of the executable
    double cpuUsage = 0;      ///< percent of one core since the previous sample, 0 to 800; 0 when first seen
    quint64 memoryBytes = 0;  ///< resident size
    double memoryPercent = 0; ///< resident size as percent of physical memory, 0 when that is not known

    bool operator==(const ProcessInfo&) const = default;
};

/// Percent of one core that a process used between two samples of its times, 0 to 800: a process of many
/// threads may use several cores, and anything beyond eight shows as eight. A time that went backwards counts
/// as no time; 0 when the wall clock did not move on.
[[nodiscard]] double cpuUsageBetween(const ProcessTimes& previous, const ProcessTimes& current);

/// Publishes the processes that use most processor time and those that hold most memory. Main thread only;
/// `SystemMonitor` calls `update` every third cycle, since this is the most expensive of all samples.
class ProcessMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<orvelle::ProcessInfo> topCPUProcesses READ topCPUProcesses NOTIFY topCPUProcessesChanged)
    Q_PROPERTY(QList<orvelle::ProcessInfo> topMemoryProcesses READ topMemoryProcesses NOTIFY
                   topMemoryProcessesChanged)
    Q_PROPERTY(quint64 totalMemory READ totalMemory CONSTANT)

public:
    using ProcessInfo = orvelle::ProcessInfo;
    /// Processes in each list at most.
    static constexpr std::size_t maximumListed = 5;

    /// Reads the size of physical memory, once.
    ProcessMonitor(ProcessSource& source, WallClock now, QObject* parent = nullptr);

    /// By `cpuUsage` descending; equal ones in the order the system lists them.
    [[nodiscard]] const QList<ProcessInfo>& topCPUProcesses() const { return m_topCPUProcesses; }
    /// By `memoryBytes` descending; equal ones in the order the system lists them.
    [[nodiscard]] const QList<ProcessInfo>& topMemoryProcesses() const { return m_topMemoryProcesses; }
    /// Bytes of physical memory, 0 when unknown.
    [[nodiscard]] quint64 totalMemory() const { return m_totalMemory; }

    /// Publishes both lists anew, empty when the processes cannot be listed.
    void update();

Q_SIGNALS:
    void topCPUProcessesChanged();
    void topMemoryProcessesChanged();

private:
    /// Replaces the earlier times of the process by the present ones and returns its usage in between.
    [[nodiscard]] double updateTimes(const ProcessRecord& process, WallTime now);
    [[nodiscard]] ProcessInfo infoFrom(const ProcessRecord& process, double cpuUsage) const;

    ProcessSource& m_source;
    WallClock m_now;
    QList<ProcessInfo> m_topCPUProcesses;
    QList<ProcessInfo> m_topMemoryProcesses;
    ProcessTimesByPid m_previousCPUTimes;
    quint64 m_totalMemory;
};

} // namespace orvelle
