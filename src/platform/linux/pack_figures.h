#pragma once

#include "platform/linux/battery_packs.h"

/// What one battery pack's files come to, in whole units. Nothing stands for what cannot be told, and
/// whatever is reckoned from it is nothing as well.
namespace orvelle::linux_platform {

using Figure = std::optional<double>;

/// `value` when it is above 0.
[[nodiscard]] Figure positive(const Figure& value);
/// `first` when it can be told, else `second`.
[[nodiscard]] Figure firstOf(const Figure& first, const Figure& second);
[[nodiscard]] Figure product(const Figure& left, const Figure& right);
/// Nothing also when `divisor` is not above 0.
[[nodiscard]] Figure quotient(const Figure& dividend, const Figure& divisor);

/// Volts now.
[[nodiscard]] Figure presentVoltage(const BatteryPack& pack);
/// Watt-hours that the pack holds now, from energy or charge files.
[[nodiscard]] Figure energyNow(const BatteryPack& pack);
/// Watt-hours that the full pack holds, those that it was designed for when it tells no others.
[[nodiscard]] Figure energyFull(const BatteryPack& pack);
/// Ampere-hours that the pack holds now; nothing when it counts in energy.
[[nodiscard]] Figure chargeNow(const BatteryPack& pack);
/// Ampere-hours that the full pack holds, those that it was designed for when it tells no others; nothing
/// when it counts in energy.
[[nodiscard]] Figure chargeFull(const BatteryPack& pack);
/// Milliampere-hours that the pack was designed to hold, from charge or energy files.
[[nodiscard]] Figure designCapacity(const BatteryPack& pack);
/// Milliampere-hours that the full pack holds, from charge or energy files.
[[nodiscard]] Figure fullCapacity(const BatteryPack& pack);
/// Charge as a fraction, by energy, by charge or by the percentage that the pack tells; not cut to 0..1.
[[nodiscard]] Figure chargeLevel(const BatteryPack& pack);
/// Amperes that flow into the pack; negative while it gives.
[[nodiscard]] Figure currentInto(const BatteryPack& pack, bool isOnExternalPower);
/// Watts that flow into the pack; negative while it gives.
[[nodiscard]] Figure powerInto(const BatteryPack& pack, bool isOnExternalPower);

} // namespace orvelle::linux_platform
