#include "platform/linux/pack_figures.h"

#include <cmath>

namespace orvelle::linux_platform {
namespace {

using Reading = std::optional<std::int64_t>;

/// In the base unit: sysfs counts in millionths. Nothing when the driver gives nothing or less than 0.
Figure fromMillionths(const Reading& value) {
    return value && *value >= 0 ? Figure(static_cast<double>(*value) / 1e6) : std::nullopt;
}

bool countsInEnergy(const BatteryPack& pack) {
    return fromMillionths(pack.energyNow).has_value();
}

/// Volts that turn energy into charge and back: those that the pack was designed for, as its maker counts,
/// else the present ones.
Figure countingVoltage(const BatteryPack& pack) {
    return firstOf(positive(fromMillionths(pack.voltageMinDesign)), presentVoltage(pack));
}

Figure wattHours(const BatteryPack& pack, const Reading& energy, const Reading& charge) {
    return firstOf(fromMillionths(energy), product(fromMillionths(charge), countingVoltage(pack)));
}

Figure milliampereHours(const BatteryPack& pack, const Reading& charge, const Reading& energy) {
    const Figure ampereHours =
        firstOf(fromMillionths(charge), quotient(fromMillionths(energy), countingVoltage(pack)));
    return product(ampereHours, 1000.0);
}

/// Drivers differ in the sign that they give a current, so the direction comes from the status. Without
/// external power a pack that is not being charged (by another pack) can only give.
Figure withDirection(const Reading& millionths, const BatteryPack& pack, bool isOnExternalPower) {
    if (!millionths)
        return std::nullopt;
    const bool gives =
        pack.status == PackStatus::discharging || (!isOnExternalPower && pack.status != PackStatus::charging);
    return std::abs(static_cast<double>(*millionths)) / (gives ? -1e6 : 1e6);
}

} // namespace

Figure positive(const Figure& value) {
    return value && *value > 0 ? value : std::nullopt;
}

Figure firstOf(const Figure& first, const Figure& second) {
    return first ? first : second;
}

Figure product(const Figure& left, const Figure& right) {
    return left && right ? Figure(*left * *right) : std::nullopt;
}

Figure quotient(const Figure& dividend, const Figure& divisor) {
    const Figure parts = positive(divisor);
    return dividend && parts ? Figure(*dividend / *parts) : std::nullopt;
}

Figure presentVoltage(const BatteryPack& pack) {
    return positive(fromMillionths(pack.voltageNow));
}

Figure energyNow(const BatteryPack& pack) {
    return wattHours(pack, pack.energyNow, pack.chargeNow);
}

Figure energyFull(const BatteryPack& pack) {
    return firstOf(wattHours(pack, pack.energyFull, pack.chargeFull),
                   wattHours(pack, pack.energyFullDesign, pack.chargeFullDesign));
}

Figure chargeNow(const BatteryPack& pack) {
    return countsInEnergy(pack) ? std::nullopt : fromMillionths(pack.chargeNow);
}

Figure chargeFull(const BatteryPack& pack) {
    if (countsInEnergy(pack))
        return std::nullopt;
    return firstOf(fromMillionths(pack.chargeFull), fromMillionths(pack.chargeFullDesign));
}

Figure designCapacity(const BatteryPack& pack) {
    return milliampereHours(pack, pack.chargeFullDesign, pack.energyFullDesign);
}

Figure fullCapacity(const BatteryPack& pack) {
    return milliampereHours(pack, pack.chargeFull, pack.energyFull);
}

Figure chargeLevel(const BatteryPack& pack) {
    const Figure byEnergy = quotient(energyNow(pack), energyFull(pack));
    const Figure byCharge =
        quotient(fromMillionths(pack.chargeNow),
                 firstOf(fromMillionths(pack.chargeFull), fromMillionths(pack.chargeFullDesign)));
    const Figure byItself =
        pack.capacity ? Figure(static_cast<double>(*pack.capacity) / 100.0) : std::nullopt;
    return firstOf(byEnergy, firstOf(byCharge, byItself));
}

Figure currentInto(const BatteryPack& pack, bool isOnExternalPower) {
    return withDirection(pack.currentNow, pack, isOnExternalPower);
}

Figure powerInto(const BatteryPack& pack, bool isOnExternalPower) {
    return firstOf(withDirection(pack.powerNow, pack, isOnExternalPower),
                   product(currentInto(pack, isOnExternalPower), presentVoltage(pack)));
}

} // namespace orvelle::linux_platform
