#pragma once

#include "core/sources/battery_source.h"

namespace orvelle::darwin_platform {

/// Answers from the power-source list and from the registry properties of "AppleSmartBattery".
class DarwinBatterySource final : public BatterySource {
public:
    [[nodiscard]] std::optional<std::vector<std::optional<PowerSourceDescription>>>
    readPowerSources() override;

    /// The capacities are taken from any number, cut toward zero; the other figures only from whole ones.
    [[nodiscard]] std::optional<SmartBatteryProperties> readSmartBattery() override;
};

} // namespace orvelle::darwin_platform
