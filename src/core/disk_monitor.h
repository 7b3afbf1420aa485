#pragma once

#include "core/published.h"
#include "core/sources/clock.h"
#include "core/sources/disk_source.h"

#include <QList>
#include <QObject>

namespace orvelle {

/// One mounted local volume.
struct DiskVolumeInfo {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(quint64 totalSpace MEMBER totalSpace)
    Q_PROPERTY(quint64 freeSpace MEMBER freeSpace)
public:
    QString id;             ///< the path where it is mounted
    QString name;           ///< its label, else the last component of the path
    quint64 totalSpace = 0; ///< capacity in bytes, never 0 in a published list
    quint64 freeSpace = 0;  ///< bytes that a user's files can still take

    bool operator==(const DiskVolumeInfo&) const = default;
};

/// Bytes of the volume that are taken; 0 when it reports more free space than space.
[[nodiscard]] quint64 usedBytes(const DiskVolumeInfo& volume);

/// The taken share of the volume, 0 to 1; 0 when its size is not known.
[[nodiscard]] double usedFraction(const DiskVolumeInfo& volume);

/// Throughput of all disks together.
struct DiskIOInfo {
    Q_GADGET
    Q_PROPERTY(quint64 bytesRead MEMBER bytesRead)
    Q_PROPERTY(quint64 bytesWritten MEMBER bytesWritten)
    Q_PROPERTY(double readSpeed MEMBER readSpeed)
    Q_PROPERTY(double writeSpeed MEMBER writeSpeed)
public:
    quint64 bytesRead = 0;    ///< cumulative as the system reports it
    quint64 bytesWritten = 0; ///< likewise
    double readSpeed = 0;     ///< bytes per second since the previous sample
    double writeSpeed = 0;    ///< likewise

    bool operator==(const DiskIOInfo&) const = default;
};

/// Lists the mounted local volumes and measures the throughput of all disks. Main thread only.
class DiskMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<orvelle::DiskVolumeInfo> volumes READ volumes NOTIFY volumesChanged)
    Q_PROPERTY(orvelle::DiskIOInfo diskIO READ diskIO NOTIFY diskIOChanged)
    Q_PROPERTY(QList<double> readHistory READ readHistory NOTIFY readHistoryChanged)
    Q_PROPERTY(QList<double> writeHistory READ writeHistory NOTIFY writeHistoryChanged)

public:
    using VolumeInfo = DiskVolumeInfo;
    using DiskIO = DiskIOInfo;
    static constexpr qsizetype maxHistoryCount = MetricHistory::maxHistoryCount;

    DiskMonitor(DiskSource& source, WallClock now, QObject* parent = nullptr);

    /// In mount order.
    [[nodiscard]] const QList<VolumeInfo>& volumes() const { return m_volumes; }
    /// All zero until two samples of the counters were taken.
    [[nodiscard]] const DiskIO& diskIO() const { return m_diskIO; }
    /// The speeds of the last samples that had one, oldest first, at most `maxHistoryCount`.
    [[nodiscard]] const QList<double>& readHistory() const { return m_readHistory; }
    [[nodiscard]] const QList<double>& writeHistory() const { return m_writeHistory; }

    /// Publishes the volumes that are mounted now, none when the system does not answer.
    void updateVolumes();
    /// Publishes the throughput since the previous call. When the counters cannot be read nothing changes.
    void updateIO();

Q_SIGNALS:
    void volumesChanged();
    /// Told once for each field of the record that is assigned.
    void diskIOChanged();
    void readHistoryChanged();
    void writeHistoryChanged();

private:
    void publishThroughput(const DiskCounters& counters, double elapsedSeconds);

    DiskSource& m_source;
    WallClock m_now;
    QList<VolumeInfo> m_volumes;
    DiskIO m_diskIO;
    QList<double> m_readHistory;
    QList<double> m_writeHistory;
    DiskCounters m_previousCounters;
    std::optional<WallTime> m_lastUpdateTime;
};

} // namespace orvelle
