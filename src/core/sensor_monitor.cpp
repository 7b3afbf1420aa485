#include "core/sensor_monitor.h"

#include "core/published.h"

namespace orvelle {
namespace {

QList<TemperatureSensor> sensorsFrom(const std::vector<NamedTemperature>& readings) {
    QList<TemperatureSensor> sensors;
    sensors.reserve(static_cast<qsizetype>(readings.size()));
    for (const NamedTemperature& reading : readings)
        sensors.append({.key = QString::fromStdString(reading.key),
                        .name = QString::fromStdString(reading.name),
                        .value = reading.value});
    return sensors;
}

QList<FanInfo> fansFrom(const std::vector<std::int64_t>& speeds) {
    QList<FanInfo> fans;
    fans.reserve(static_cast<qsizetype>(speeds.size()));
    for (const std::int64_t speed : speeds)
        fans.append({.index = fans.size(), .speed = speed});
    return fans;
}

} // namespace

SensorMonitor::SensorMonitor(SensorSource& source, QObject* parent)
    : QObject(parent)
    , m_source(source) {}

void SensorMonitor::update() {
    if (const std::optional<double> temperature = m_source.readCPUTemperature()) {
        publish(this, m_cpuTemperature, *temperature, &SensorMonitor::cpuTemperatureChanged);
        MetricHistory::append(m_cpuTempHistory, *temperature, maxHistoryCount);
        Q_EMIT cpuTempHistoryChanged();
    }
    if (const std::optional<double> temperature = m_source.readGPUTemperature()) {
        publish(this, m_gpuTemperature, *temperature, &SensorMonitor::gpuTemperatureChanged);
        MetricHistory::append(m_gpuTempHistory, *temperature, maxHistoryCount);
        Q_EMIT gpuTempHistoryChanged();
    }
    publish(this, m_sensors, sensorsFrom(m_source.readSensors()), &SensorMonitor::sensorsChanged);
    publish(this, m_fans, fansFrom(m_source.readFanSpeeds()), &SensorMonitor::fansChanged);
}

} // namespace orvelle
