#pragma once

#include "core/sources/battery_source.h"

#include <string_view>

namespace orvelle::linux_platform {

/// The `status` of a battery.
enum class PackStatus { unknown, charging, discharging, notCharging, full };

/// What sysfs says of one battery pack, in sysfs's units; a value that the driver does not give is nothing
/// (Documentation/ABI/testing/sysfs-class-power).
struct BatteryPack {
    PackStatus status = PackStatus::unknown;
    std::optional<std::int64_t> capacity{};         ///< percent
    std::optional<std::int64_t> energyNow{};        ///< microwatt-hours
    std::optional<std::int64_t> energyFull{};       ///< microwatt-hours
    std::optional<std::int64_t> energyFullDesign{}; ///< microwatt-hours
    std::optional<std::int64_t> chargeNow{};        ///< microampere-hours
    std::optional<std::int64_t> chargeFull{};       ///< microampere-hours
    std::optional<std::int64_t> chargeFullDesign{}; ///< microampere-hours
    std::optional<std::int64_t> voltageNow{};       ///< microvolts
    std::optional<std::int64_t> voltageMinDesign{}; ///< microvolts
    std::optional<std::int64_t> currentNow{};       ///< microamperes, of either sign
    std::optional<std::int64_t> powerNow{};         ///< microwatts, of either sign
    std::optional<std::int64_t> temperature{};      ///< tenths of a degree Celsius
    std::optional<std::int64_t> cycleCount{};
    std::optional<std::int64_t> timeToEmpty{}; ///< seconds
    std::optional<std::int64_t> timeToFull{};  ///< seconds
};

[[nodiscard]] PackStatus parsePackStatus(std::string_view text);

/// All packs as one power source. Charge is energy over full energy, whatever the packs' sizes; charging when
/// one pack is, charged when all are. Times that the drivers do not give follow from energy and power, those
/// of packs that all count in charge from charge and current. `packs` is not empty.
[[nodiscard]] PowerSourceDescription describePacks(const std::vector<BatteryPack>& packs,
                                                   bool isOnExternalPower);

/// All packs as one battery: capacities and currents summed, voltage weighted by energy, the larger cycle
/// count, the higher temperature. A sum to which one pack gives nothing is nothing. Every figure stays far
/// from the limits of its type.
[[nodiscard]] SmartBatteryProperties combinePacks(const std::vector<BatteryPack>& packs,
                                                  bool isOnExternalPower);

} // namespace orvelle::linux_platform
