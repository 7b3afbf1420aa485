#pragma once

#include "platform/darwin/smc_helper.h"

#include <memory>

namespace orvelle::darwin_platform {

/// Answers from the System Management Controller, which it connects to at the first question and never again:
/// without a connection every answer is nothing.
class DarwinSensorSource final : public SensorSource {
public:
    explicit DarwinSensorSource(std::unique_ptr<SMCUserClient> client);

    [[nodiscard]] std::optional<double> readCPUTemperature() override;
    [[nodiscard]] std::optional<double> readGPUTemperature() override;
    [[nodiscard]] std::vector<NamedTemperature> readSensors() override;
    [[nodiscard]] std::vector<std::int64_t> readFanSpeeds() override;

private:
    [[nodiscard]] SMCHelper& helper();

    std::unique_ptr<SMCUserClient> m_client;
    std::optional<SMCHelper> m_helper; ///< closes the connection before the client goes
};

} // namespace orvelle::darwin_platform
