#include "core/disk_monitor.h"

#include "core/checked.h"
#include "core/published.h"

#include <algorithm>

namespace orvelle {
namespace {

/// What follows the last slash; "/" itself for the root.
QString lastPathComponent(const QString& path) {
    const QString component = path.section(u'/', -1, -1, QString::SectionSkipEmpty);
    return component.isEmpty() ? path : component;
}

std::optional<DiskVolumeInfo> volumeInfo(const MountedVolume& volume) {
    if (!volume.isLocal)
        return std::nullopt;
    DiskVolumeInfo info;
    info.id = QString::fromStdString(volume.path);
    info.name = volume.name ? QString::fromStdString(*volume.name) : lastPathComponent(info.id);
    info.totalSpace = checkedConvert<quint64>(volume.totalBytes);
    info.freeSpace = checkedConvert<quint64>(volume.freeBytes);
    if (info.totalSpace == 0)
        return std::nullopt;
    return info;
}

DiskCounters sumOf(const std::vector<DiskCounters>& disks) {
    DiskCounters sum;
    for (const DiskCounters& disk : disks) {
        sum.bytesRead = checkedAdd(sum.bytesRead, disk.bytesRead);
        sum.bytesWritten = checkedAdd(sum.bytesWritten, disk.bytesWritten);
    }
    return sum;
}

} // namespace

quint64 usedBytes(const DiskVolumeInfo& volume) {
    return volume.totalSpace - std::min(volume.freeSpace, volume.totalSpace);
}

double usedFraction(const DiskVolumeInfo& volume) {
    if (volume.totalSpace == 0)
        return 0;
    return static_cast<double>(usedBytes(volume)) / static_cast<double>(volume.totalSpace);
}

DiskMonitor::DiskMonitor(DiskSource& source, WallClock now, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_now(std::move(now)) {}

void DiskMonitor::updateVolumes() {
    QList<VolumeInfo> volumes;
    for (const MountedVolume& volume : m_source.readVolumes().value_or(std::vector<MountedVolume>{})) {
        if (std::optional<VolumeInfo> info = volumeInfo(volume))
            volumes.append(*std::move(info));
    }
    publish(this, m_volumes, std::move(volumes), &DiskMonitor::volumesChanged);
}

void DiskMonitor::updateIO() {
    const std::optional<std::vector<DiskCounters>> disks = m_source.readCounters();
    if (!disks)
        return;
    const DiskCounters counters = sumOf(*disks);
    const WallTime now = m_now();
    // Nothing read so far is no baseline: the disks' drivers were not there yet, or do not count.
    const bool hasBaseline = m_lastUpdateTime && m_previousCounters.bytesRead != 0;
    const double elapsedSeconds = hasBaseline ? secondsBetween(*m_lastUpdateTime, now) : 0;
    if (elapsedSeconds > 0)
        publishThroughput(counters, elapsedSeconds);
    m_previousCounters = counters;
    m_lastUpdateTime = now;
}

void DiskMonitor::publishThroughput(const DiskCounters& counters, double elapsedSeconds) {
    const auto speed = [elapsedSeconds](std::uint64_t current, std::uint64_t previous) {
        return static_cast<double>(counterDelta(current, previous)) / elapsedSeconds;
    };
    const auto assign = [this](auto DiskIO::* field, auto value) {
        m_diskIO.*field = value;
        Q_EMIT diskIOChanged();
    };
    assign(&DiskIO::readSpeed, speed(counters.bytesRead, m_previousCounters.bytesRead));
    assign(&DiskIO::writeSpeed, speed(counters.bytesWritten, m_previousCounters.bytesWritten));
    assign(&DiskIO::bytesRead, counters.bytesRead);
    assign(&DiskIO::bytesWritten, counters.bytesWritten);

    MetricHistory::append(m_readHistory, m_diskIO.readSpeed, maxHistoryCount);
    Q_EMIT readHistoryChanged();
    MetricHistory::append(m_writeHistory, m_diskIO.writeSpeed, maxHistoryCount);
    Q_EMIT writeHistoryChanged();
}

} // namespace orvelle
