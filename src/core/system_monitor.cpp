#include "core/system_monitor.h"

#include "core/checked.h"
#include "settings/settings_store.h"

#include <QThread>

#include <algorithm>
#include <chrono>

namespace orvelle {
namespace {

constexpr qint64 cyclesPerProcessUpdate = 3;

/// The clock for the time between two samples.
const WallClock& clockOfSpeeds(const MachineSources& sources) {
    return sources.steadyNow ? sources.steadyNow : sources.now;
}

} // namespace

SystemMonitor::SystemMonitor(MachineSources sources, const SettingsStore& settings, QObject* parent)
    : QObject(parent)
    , m_sources(std::move(sources))
    , m_settings(settings)
    , m_cpu(*m_sources.processor, m_sources.now)
    , m_memory(*m_sources.memory)
    , m_disk(*m_sources.disk, clockOfSpeeds(m_sources))
    , m_network(*m_sources.network, clockOfSpeeds(m_sources))
    , m_battery(*m_sources.battery)
    , m_sensor(*m_sources.sensor)
    , m_process(*m_sources.process, clockOfSpeeds(m_sources)) {}

std::optional<double> SystemMonitor::activeInterval() const {
    if (m_timer == nullptr)
        return std::nullopt;
    return std::chrono::duration<double>(m_timer->intervalAsDuration()).count();
}

void SystemMonitor::start() {
    updateCycle();
    const double seconds = std::max(m_settings.updateInterval(), minimumIntervalSeconds);
    m_timer = new QTimer(this);
    m_timer->setTimerType(Qt::PreciseTimer); // a coarse one may end early, below the minimum
    m_timer->callOnTimeout(this, &SystemMonitor::updateCycle);
    m_timer->start(
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::duration<double>(seconds)));
}

void SystemMonitor::stop() {
    if (m_timer == nullptr)
        return;
    m_timer->stop();
    m_timer->deleteLater(); // the call may come from within the timer's own cycle
    m_timer = nullptr;
}

void SystemMonitor::restart() {
    stop();
    start();
}

void SystemMonitor::updateCycle() {
    if (QThread::currentThread() != thread())
        qFatal("An update cycle must run on the main thread");

    m_cpu.updateUsage();
    m_cpu.updateLoadAverages();
    m_cpu.updateUptime();
    m_memory.update();
    m_disk.updateVolumes();
    m_disk.updateIO();
    m_network.update();
    m_battery.update();
    m_sensor.update();
    m_updateCycleCount = checkedAdd(m_updateCycleCount, qint64{1});
    if (m_updateCycleCount % cyclesPerProcessUpdate == 1)
        m_process.update();
    Q_EMIT changed();
}

} // namespace orvelle
