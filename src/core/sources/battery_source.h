#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {

/// What the system says of one power source. A field that it does not say, or says with a value of another
/// type, is nothing.
struct PowerSourceDescription {
    /// The `powerSourceState` of a machine that runs on external power. Any other state is battery power.
    static constexpr const char* externalPower = "AC Power";
    static constexpr const char* batteryPower = "Battery Power";

    std::optional<std::int64_t> currentCapacity{}; ///< charge in percent
    std::optional<bool> isCharging{};
    std::optional<std::string> powerSourceState{};
    std::optional<bool> isCharged{};
    std::optional<std::int64_t> timeToEmpty{};      ///< minutes, -1 when the system does not know it
    std::optional<std::int64_t> timeToFullCharge{}; ///< minutes, -1 when the system does not know it

    bool operator==(const PowerSourceDescription&) const = default;
};

/// What the battery says of itself. A source takes each figure in any form in which the system gives it as a
/// whole number; one that is missing or in another form is nothing.
struct SmartBatteryProperties {
    std::optional<std::int64_t> cycleCount{};
    std::optional<std::int64_t> designCapacity{};        ///< mAh
    std::optional<std::int64_t> rawMaxCapacity{};        ///< mAh, as measured
    std::optional<std::int64_t> nominalChargeCapacity{}; ///< mAh, used where no measured capacity is known
    std::optional<std::int64_t> temperature{};           ///< hundredths of a degree Celsius
    std::optional<std::int64_t> voltage{};               ///< mV
    std::optional<std::int64_t> amperage{};              ///< mA, negative while discharging

    bool operator==(const SmartBatteryProperties&) const = default;
};

/// What `BatteryMonitor` asks of an operating system. The two questions are asked in this order, so a source
/// may answer the second from what it read for the first.
class BatterySource {
public:
    virtual ~BatterySource() = default;

    /// The machine's batteries in the system's order; an entry is nothing when the system lists a source
    /// without describing it. Nothing when the list cannot be read; empty when the machine has no battery.
    [[nodiscard]] virtual std::optional<std::vector<std::optional<PowerSourceDescription>>>
    readPowerSources() = 0;

    /// Nothing when no battery of the machine can be asked.
    [[nodiscard]] virtual std::optional<SmartBatteryProperties> readSmartBattery() = 0;
};

} // namespace orvelle
