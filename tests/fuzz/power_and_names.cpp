#include "parsers.h"
#include "platform/linux/battery_packs.h"
#include "platform/linux/files.h"
#include "platform/linux/hwmon.h"
#include "platform/linux/linux_sensor_source.h"
#include "platform/linux/text.h"
#include "platform/readable_name.h"
#include "require.h"

#include <cstdlib>

namespace orvelle::fuzz {
namespace {

using namespace linux_platform;

/// One pack: its state on the first line and one attribute on each of those that follow.
BatteryPack takePack(std::string_view& text) {
    BatteryPack pack{.status = parsePackStatus(takeLine(text))};
    for (const auto field :
         {&BatteryPack::capacity, &BatteryPack::energyNow, &BatteryPack::energyFull,
          &BatteryPack::energyFullDesign, &BatteryPack::chargeNow, &BatteryPack::chargeFull,
          &BatteryPack::chargeFullDesign, &BatteryPack::voltageNow, &BatteryPack::voltageMinDesign,
          &BatteryPack::currentNow, &BatteryPack::powerNow, &BatteryPack::temperature,
          &BatteryPack::cycleCount, &BatteryPack::timeToEmpty, &BatteryPack::timeToFull})
        pack.*field = parseAttributeNumber(takeLine(text));
    return pack;
}

void requireModest(const std::optional<std::int64_t>& figure) {
    require(std::abs(figure.value_or(0)) <= 1'000'000'000, "a figure is far from the limits of its type");
}

void checkPacks(const std::vector<BatteryPack>& packs, bool isOnExternalPower) {
    const PowerSourceDescription source = describePacks(packs, isOnExternalPower);
    const std::int64_t percent = source.currentCapacity.value_or(0);
    require(percent >= 0 && percent <= 100, "a charge is a percentage");
    for (const auto& minutes : {source.timeToEmpty, source.timeToFullCharge})
        require(minutes && *minutes >= -1 && *minutes <= 6000, "a time is -1 or some hours");
    const SmartBatteryProperties battery = combinePacks(packs, isOnExternalPower);
    for (const auto& figure : {battery.cycleCount, battery.designCapacity, battery.rawMaxCapacity,
                               battery.temperature, battery.voltage, battery.amperage})
        requireModest(figure);
}

} // namespace

void fuzzNames(std::string_view text) {
    const std::string name = readableName(text);
    require(name.size() <= 3 * text.size(), "a byte becomes three at most");
    requireShowable(name);
}

void fuzzEscapes(std::string_view text) {
    require(withoutOctalEscapes(text).size() <= text.size(), "an escape is longer than its byte");
    require(withoutHexEscapes(text).size() <= text.size(), "an escape is longer than its byte");
}

void fuzzAttribute(std::string_view text) {
    const std::optional<std::int64_t> number = parseAttributeNumber(text);
    require(!number || !trimmed(text).empty(), "nothing is no number");
    if (const auto degrees = temperatureFrom(number))
        require(*degrees > 0 && *degrees < 150, "a temperature is plausible");
}

void fuzzBattery(std::string_view text) {
    std::vector<BatteryPack> packs;
    do {
        packs.push_back(takePack(text));
        checkPacks(packs, true);
        checkPacks(packs, false);
    } while (!text.empty() && packs.size() < 4);
}

/// The first line is the chip's name, the rest the label of one of its channels.
void fuzzHwmonNames(std::string_view text) {
    const std::string_view chip = takeLine(text);
    const std::optional<int> cpuRank = cpuTemperatureRank(chip, text);
    require(!cpuRank || *cpuRank >= 0, "ranks count from 0");
    const int group = chipGroup(chip);
    require(group >= 0 && group <= 2, "there are three groups of chips");
    require(!gpuTemperatureRank(chip) || group < 2, "a graphics processor stands before the other chips");
}

} // namespace orvelle::fuzz
