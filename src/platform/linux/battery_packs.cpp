#include "platform/linux/battery_packs.h"

#include "platform/linux/text.h"

#include <algorithm>
#include <cmath>

namespace orvelle::linux_platform {
namespace {

/// A figure in base units; nothing when unknown, as is whatever is computed from it.
using Figure = std::optional<double>;

/// `value` when it is above 0.
Figure positive(const Figure& value) {
    return value && *value > 0 ? value : std::nullopt;
}

/// `first` when known, else `second`.
Figure firstOf(const Figure& first, const Figure& second) {
    return first ? first : second;
}

Figure product(const Figure& left, const Figure& right) {
    return left && right ? Figure(*left * *right) : std::nullopt;
}

/// Nothing also when `divisor` is not above 0.
Figure quotient(const Figure& dividend, const Figure& divisor) {
    const Figure parts = positive(divisor);
    return dividend && parts ? Figure(*dividend / *parts) : std::nullopt;
}

using Reading = std::optional<std::int64_t>;

/// In the base unit: sysfs counts in millionths. Nothing when the driver gives nothing or less than 0.
Figure fromMillionths(const Reading& value) {
    return value && *value >= 0 ? Figure(static_cast<double>(*value) / 1e6) : std::nullopt;
}

/// Volts now.
Figure presentVoltage(const BatteryPack& pack) {
    return positive(fromMillionths(pack.voltageNow));
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

/// Watt-hours that the pack holds now, from energy or charge files.
Figure energyNow(const BatteryPack& pack) {
    return wattHours(pack, pack.energyNow, pack.chargeNow);
}

/// Watt-hours that the full pack holds, else those that it was designed for.
Figure energyFull(const BatteryPack& pack) {
    return firstOf(wattHours(pack, pack.energyFull, pack.chargeFull),
                   wattHours(pack, pack.energyFullDesign, pack.chargeFullDesign));
}

/// Ampere-hours that the pack holds now; nothing when it counts in energy.
Figure chargeNow(const BatteryPack& pack) {
    return countsInEnergy(pack) ? std::nullopt : fromMillionths(pack.chargeNow);
}

/// Ampere-hours that the full pack holds, else those that it was designed for; nothing when it counts in
/// energy.
Figure chargeFull(const BatteryPack& pack) {
    if (countsInEnergy(pack))
        return std::nullopt;
    return firstOf(fromMillionths(pack.chargeFull), fromMillionths(pack.chargeFullDesign));
}

/// Milliampere-hours that the pack was designed to hold, from charge or energy files.
Figure designCapacity(const BatteryPack& pack) {
    return milliampereHours(pack, pack.chargeFullDesign, pack.energyFullDesign);
}

/// Milliampere-hours that the full pack holds, from charge or energy files.
Figure fullCapacity(const BatteryPack& pack) {
    return milliampereHours(pack, pack.chargeFull, pack.energyFull);
}

/// Charge as a fraction, by energy, by charge or by the pack's own percentage; not cut to 0..1.
Figure chargeLevel(const BatteryPack& pack) {
    const Figure byEnergy = quotient(energyNow(pack), energyFull(pack));
    const Figure byCharge =
        quotient(fromMillionths(pack.chargeNow),
                 firstOf(fromMillionths(pack.chargeFull), fromMillionths(pack.chargeFullDesign)));
    const Figure byItself =
        pack.capacity ? Figure(static_cast<double>(*pack.capacity) / 100.0) : std::nullopt;
    return firstOf(byEnergy, firstOf(byCharge, byItself));
}

/// Amperes that flow into the pack; negative while it gives.
Figure currentInto(const BatteryPack& pack, bool isOnExternalPower) {
    return withDirection(pack.currentNow, pack, isOnExternalPower);
}

/// Watts that flow into the pack; negative while it gives.
Figure powerInto(const BatteryPack& pack, bool isOnExternalPower) {
    return firstOf(withDirection(pack.powerNow, pack, isOnExternalPower),
                   product(currentInto(pack, isOnExternalPower), presentVoltage(pack)));
}

/// No battery of a machine reaches this in any unit; it keeps nonsense away from the limits of the types.
constexpr double largestFigure = 1e9;
/// A machine that draws next to nothing would run for years by the numbers; that says nothing to its user.
constexpr double longestMinutes = 100 * 60;
/// What a driver gives as temperature when its sensor is missing lies outside (absolute zero, for one).
constexpr std::int64_t lowestTemperature = -500; // tenths of a degree
constexpr std::int64_t highestTemperature = 1500;

std::int64_t rounded(double value) {
    return std::llround(std::clamp(value, -largestFigure, largestFigure));
}

std::optional<std::int64_t> rounded(const Figure& value) {
    return value ? std::optional(rounded(*value)) : std::nullopt;
}

/// The sum over all packs; nothing when one of them gives nothing.
Figure sumOverAll(const std::vector<BatteryPack>& packs, Figure (*figure)(const BatteryPack&)) {
    double sum = 0;
    for (const BatteryPack& pack : packs) {
        const Figure part = figure(pack);
        if (!part)
            return std::nullopt;
        sum += *part;
    }
    return sum;
}

std::optional<std::int64_t> chargePercent(const std::vector<BatteryPack>& packs) {
    const auto packCount = static_cast<double>(packs.size());
    const Figure byEnergy = quotient(sumOverAll(packs, energyNow), sumOverAll(packs, energyFull));
    const Figure fraction = firstOf(byEnergy, quotient(sumOverAll(packs, chargeLevel), packCount));
    return rounded(fraction ? Figure(std::clamp(*fraction * 100.0, 0.0, 100.0)) : std::nullopt);
}

bool isAny(const std::vector<BatteryPack>& packs, PackStatus status) {
    return std::ranges::find(packs, status, &BatteryPack::status) != packs.end();
}

/// What flows into all packs together. Of packs of which one gives nothing, as an idle one may, the others
/// count; nothing when none gives anything.
struct Flow {
    Figure amperes; ///< nothing when one pack gives only its power
    Figure watts;
};

Flow flowInto(const std::vector<BatteryPack>& packs, bool isOnExternalPower) {
    Flow flow;
    bool isCurrentComplete = true;
    for (const BatteryPack& pack : packs) {
        const Figure amperes = currentInto(pack, isOnExternalPower);
        const Figure watts = powerInto(pack, isOnExternalPower);
        if (amperes)
            flow.amperes = flow.amperes.value_or(0) + *amperes;
        if (watts)
            flow.watts = flow.watts.value_or(0) + *watts;
        isCurrentComplete = isCurrentComplete && (amperes || !watts);
    }
    if (!isCurrentComplete)
        flow.amperes.reset();
    return flow;
}

Figure meanVoltage(const std::vector<BatteryPack>& packs) {
    const Figure weighted = quotient(
        sumOverAll(packs,
                   [](const BatteryPack& pack) { return product(presentVoltage(pack), energyNow(pack)); }),
        sumOverAll(packs, energyNow));
    double sum = 0;
    double count = 0;
    for (const BatteryPack& pack : packs) {
        sum += presentVoltage(pack).value_or(0);
        count += presentVoltage(pack) ? 1 : 0;
    }
    return firstOf(weighted, quotient(sum, count));
}

/// The content and flow of all packs together. Packs that all count in charge use ampere-hours and amperes:
/// converted to energy by one voltage and to power by another, their times would be wrong.
struct Store {
    Figure held;
    Figure full;
    Figure flow; ///< negative while they give
};

Store storeOf(const std::vector<BatteryPack>& packs, const Flow& flow) {
    const Figure charge = sumOverAll(packs, chargeNow);
    if (charge && flow.amperes)
        return {.held = charge, .full = sumOverAll(packs, chargeFull), .flow = flow.amperes};
    return {.held = sumOverAll(packs, energyNow), .full = sumOverAll(packs, energyFull), .flow = flow.watts};
}

/// Minutes until `amount` has flowed; -1 when unknown.
std::int64_t minutesUntil(const Figure& amount, const Figure& flow) {
    const Figure minutes = product(quotient(amount, flow ? Figure(std::abs(*flow)) : flow), 60.0);
    return minutes && *minutes >= 0 && *minutes <= longestMinutes ? rounded(*minutes) : -1;
}

/// The time that a driver gives counts where there is no other pack to be emptied or filled as well.
std::int64_t minutesGivenOr(const std::vector<BatteryPack>& packs,
                            std::optional<std::int64_t> BatteryPack::* seconds, std::int64_t otherwise) {
    const std::optional<std::int64_t> given = packs.size() == 1 ? packs.front().*seconds : std::nullopt;
    const Figure minutes = given ? Figure(static_cast<double>(*given) / 60.0) : std::nullopt;
    return minutes && *minutes > 0 && *minutes <= longestMinutes ? rounded(*minutes) : otherwise;
}

} // namespace

PackStatus parsePackStatus(std::string_view text) {
    const std::string_view word = trimmed(text);
    if (word == "Charging")
        return PackStatus::charging;
    if (word == "Discharging")
        return PackStatus::discharging;
    if (word == "Not charging")
        return PackStatus::notCharging;
    return word == "Full" ? PackStatus::full : PackStatus::unknown;
}

PowerSourceDescription describePacks(const std::vector<BatteryPack>& packs, bool isOnExternalPower) {
    const bool isCharging = isAny(packs, PackStatus::charging);
    const bool isDischarging = !isCharging && (!isOnExternalPower || isAny(packs, PackStatus::discharging));
    const Store store = storeOf(packs, flowInto(packs, isOnExternalPower));
    const Figure missing = store.held && store.full ? Figure(*store.full - *store.held) : std::nullopt;

    PowerSourceDescription description;
    description.currentCapacity = chargePercent(packs);
    description.isCharging = isCharging;
    description.powerSourceState =
        isOnExternalPower ? PowerSourceDescription::externalPower : PowerSourceDescription::batteryPower;
    description.isCharged =
        std::ranges::all_of(packs, [](const BatteryPack& pack) { return pack.status == PackStatus::full; });
    description.timeToEmpty =
        isDischarging ? minutesGivenOr(packs, &BatteryPack::timeToEmpty, minutesUntil(store.held, store.flow))
                      : -1;
    description.timeToFullCharge =
        isCharging ? minutesGivenOr(packs, &BatteryPack::timeToFull, minutesUntil(missing, store.flow)) : -1;
    return description;
}

SmartBatteryProperties combinePacks(const std::vector<BatteryPack>& packs, bool isOnExternalPower) {
    SmartBatteryProperties battery;
    for (const BatteryPack& pack : packs) {
        if (pack.cycleCount && *pack.cycleCount >= 0)
            battery.cycleCount =
                std::max(battery.cycleCount.value_or(0), rounded(static_cast<double>(*pack.cycleCount)));
        if (pack.temperature && *pack.temperature > lowestTemperature &&
            *pack.temperature < highestTemperature)
            battery.temperature =
                std::max(battery.temperature.value_or(lowestTemperature * 10), *pack.temperature * 10);
    }
    battery.designCapacity = rounded(sumOverAll(packs, designCapacity));
    battery.rawMaxCapacity = rounded(sumOverAll(packs, fullCapacity));
    const Figure volts = meanVoltage(packs);
    battery.voltage = rounded(product(volts, 1000.0));
    const Flow flow = flowInto(packs, isOnExternalPower);
    battery.amperage = rounded(product(firstOf(flow.amperes, quotient(flow.watts, volts)), 1000.0));
    return battery;
}

} // namespace orvelle::linux_platform
