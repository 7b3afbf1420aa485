#pragma once

#include "core/battery_monitor.h"
#include "core/cpu_monitor.h"
#include "core/disk_monitor.h"
#include "core/memory_monitor.h"
#include "core/network_monitor.h"
#include "core/process_monitor.h"
#include "core/sensor_monitor.h"
#include "core/sources/machine_sources.h"

#include <QObject>
#include <QTimer>

namespace orvelle {

class SettingsStore;

/// Owns the monitors and is the only clock of the sampling core: it runs one update cycle when started and
/// one per interval after that. Main thread only; a cycle on any other thread stops the process.
class SystemMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(qint64 updateCycleCount READ updateCycleCount NOTIFY changed)

public:
    /// No faster sampling than this, whatever interval the settings ask for: the monitor must stay cheap.
    static constexpr double minimumIntervalSeconds = 3.0;

    SystemMonitor(MachineSources sources, const SettingsStore& settings, QObject* parent = nullptr);

    [[nodiscard]] CPUMonitor& cpu() { return m_cpu; }
    [[nodiscard]] MemoryMonitor& memory() { return m_memory; }
    [[nodiscard]] DiskMonitor& disk() { return m_disk; }
    [[nodiscard]] NetworkMonitor& network() { return m_network; }
    [[nodiscard]] BatteryMonitor& battery() { return m_battery; }
    [[nodiscard]] SensorMonitor& sensor() { return m_sensor; }
    [[nodiscard]] ProcessMonitor& process() { return m_process; }

    /// Update cycles completed since construction; stopping does not reset it.
    [[nodiscard]] qint64 updateCycleCount() const { return m_updateCycleCount; }
    /// The sampling interval in seconds, nothing while stopped.
    [[nodiscard]] std::optional<double> activeInterval() const;

    /// Runs one update cycle at once, then one per effective interval. It leaves an earlier timer running:
    /// a caller that starts again must stop first, as `restart` does.
    void start();
    void stop();
    /// Stops and starts again, so that a changed interval takes effect; this samples once more at once.
    void restart();
    /// Samples every monitor once, in a fixed order, then announces the change. The processes, which cost
    /// most, are sampled in the first cycle and in every third one after it.
    void updateCycle();

Q_SIGNALS:
    /// Every monitor has been sampled once more.
    void changed();

private:
    MachineSources m_sources;
    const SettingsStore& m_settings;
    CPUMonitor m_cpu;
    MemoryMonitor m_memory;
    DiskMonitor m_disk;
    NetworkMonitor m_network;
    BatteryMonitor m_battery;
    SensorMonitor m_sensor;
    ProcessMonitor m_process;
    QTimer* m_timer = nullptr; ///< the latest timer, owned as a child; none while stopped
    qint64 m_updateCycleCount = 0;
};

} // namespace orvelle
