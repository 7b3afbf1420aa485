#include "platform/darwin/darwin_sensor_source.h"

#include <algorithm>

namespace orvelle::darwin_platform {

DarwinSensorSource::DarwinSensorSource(std::unique_ptr<SMCUserClient> client)
    : m_client(std::move(client)) {}

SMCHelper& DarwinSensorSource::helper() {
    return m_helper ? *m_helper : m_helper.emplace(*m_client);
}

std::optional<double> DarwinSensorSource::readCPUTemperature() {
    return helper().readCPUTemperature();
}

std::optional<double> DarwinSensorSource::readGPUTemperature() {
    return helper().readGPUTemperature();
}

std::vector<NamedTemperature> DarwinSensorSource::readSensors() {
    return helper().readSensors();
}

std::vector<std::int64_t> DarwinSensorSource::readFanSpeeds() {
    std::vector<std::int64_t> speeds = helper().readFanSpeeds();
    for (std::int64_t& speed : speeds)
        speed = std::min(speed, maximumFanSpeed);
    return speeds;
}

} // namespace orvelle::darwin_platform
