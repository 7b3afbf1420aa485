#include "platform/linux/battery_packs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orvelle::linux_platform {
namespace {

constexpr std::int64_t milli = 1000;
constexpr std::int64_t million = 1000000;

/// A pack as the ACPI driver gives it: 50 Wh full of 57 Wh, 11.55 V, 30 Wh left, giving 10 W.
BatteryPack discharging() {
    return {.status = PackStatus::discharging,
            .capacity = 60,
            .energyNow = 30 * million,
            .energyFull = 50 * million,
            .energyFullDesign = 57 * million,
            .voltageNow = 11550 * milli,
            .voltageMinDesign = 11400 * milli,
            .powerNow = 10 * million,
            .cycleCount = 321};
}

PowerSourceDescription describe(const BatteryPack& pack, bool isOnExternalPower = false) {
    return describePacks({pack}, isOnExternalPower);
}

SmartBatteryProperties properties(const BatteryPack& pack, bool isOnExternalPower = false) {
    return combinePacks({pack}, isOnExternalPower);
}

TEST(BatteryPacks, KnowsTheKernelsStates) {
    EXPECT_EQ(parsePackStatus("Charging\n"), PackStatus::charging);
    EXPECT_EQ(parsePackStatus("Discharging\n"), PackStatus::discharging);
    EXPECT_EQ(parsePackStatus("Not charging\n"), PackStatus::notCharging);
    EXPECT_EQ(parsePackStatus("Full\n"), PackStatus::full);
    for (const char* text : {"Unknown\n", "", "full", "Fully", "\xFF"})
        EXPECT_EQ(parsePackStatus(text), PackStatus::unknown) << text;
}

TEST(BatteryPacks, DescribesADischargingPack) {
    const PowerSourceDescription description = describe(discharging());
    EXPECT_EQ(description.currentCapacity, 60);
    EXPECT_EQ(description.isCharging, false);
    EXPECT_EQ(description.isCharged, false);
    EXPECT_EQ(description.powerSourceState, "Battery Power");
    EXPECT_EQ(description.timeToEmpty, 180) << "30 Wh at 10 W";
    EXPECT_EQ(description.timeToFullCharge, -1);
}

TEST(BatteryPacks, ConvertsThePacksFiguresToTheMonitorsUnits) {
    BatteryPack pack = discharging();
    pack.temperature = 305;
    const SmartBatteryProperties battery = properties(pack);
    EXPECT_EQ(battery.cycleCount, 321);
    EXPECT_EQ(battery.designCapacity, 5000) << "57 Wh at 11.4 V";
    EXPECT_EQ(battery.rawMaxCapacity, 4386) << "50 Wh at 11.4 V";
    EXPECT_EQ(battery.nominalChargeCapacity, std::nullopt);
    EXPECT_EQ(battery.temperature, 3050);
    EXPECT_EQ(battery.voltage, 11550);
    EXPECT_EQ(battery.amperage, -866) << "10 W at 11.55 V";
}

TEST(BatteryPacks, EnergyBecomesChargeByThePresentVoltageWhereNoneWasDesigned) {
    BatteryPack pack = discharging();
    pack.voltageMinDesign.reset();
    EXPECT_EQ(properties(pack).rawMaxCapacity, 4329);
    pack.voltageNow.reset();
    EXPECT_EQ(properties(pack).rawMaxCapacity, std::nullopt);
    pack.voltageNow = 0;
    EXPECT_EQ(properties(pack).rawMaxCapacity, std::nullopt);
}

TEST(BatteryPacks, ChargeFilesAloneAreEnough) {
    const BatteryPack pack{.status = PackStatus::charging,
                           .chargeNow = 2000 * milli,
                           .chargeFull = 4000 * milli,
                           .chargeFullDesign = 5000 * milli,
                           .voltageNow = 8 * million,
                           .currentNow = -1000 * milli};
    const PowerSourceDescription description = describe(pack, true);
    EXPECT_EQ(description.currentCapacity, 50);
    EXPECT_EQ(description.timeToFullCharge, 120) << "2 Ah at 1 A";
    EXPECT_EQ(description.timeToEmpty, -1);
    EXPECT_EQ(properties(pack, true).designCapacity, 5000);
    EXPECT_EQ(properties(pack, true).rawMaxCapacity, 4000);
    EXPECT_EQ(properties(pack, true).amperage, 1000) << "a charging pack takes, whatever the driver's sign";
}

TEST(BatteryPacks, ChargeIsKnownWithoutAnyVoltage) {
    EXPECT_EQ(describe({.chargeNow = 3, .chargeFull = 4}).currentCapacity, 75);
}

/// A pack as a driver that counts in charge gives it: 1.6 of 4 Ah at 0.8 A, its voltage above the designed
/// one.
BatteryPack countedInCharge(PackStatus status) {
    return {.status = status,
            .chargeNow = 1600 * milli,
            .chargeFull = 4000 * milli,
            .voltageNow = 12300 * milli,
            .voltageMinDesign = 11400 * milli,
            .currentNow = 800 * milli};
}

TEST(BatteryPacks, TimesOfAPackThatCountsInChargeFollowFromChargeAndCurrentAlone) {
    BatteryPack pack = countedInCharge(PackStatus::discharging);
    EXPECT_EQ(describe(pack).timeToEmpty, 120) << "1600 mAh at 800 mA";
    pack.status = PackStatus::charging;
    EXPECT_EQ(describe(pack, true).timeToFullCharge, 180) << "2400 mAh at 800 mA";
    pack.voltageNow.reset();
    pack.voltageMinDesign.reset();
    EXPECT_EQ(describe(pack, true).timeToFullCharge, 180) << "no voltage is needed";
    pack.chargeFullDesign = pack.chargeFull;
    pack.chargeFull.reset();
    EXPECT_EQ(describe(pack, true).timeToFullCharge, 180) << "the designed charge stands in";
}

TEST(BatteryPacks, TimesOfAPackThatCountsInChargeAndReportsItsPowerFollowFromEnergy) {
    BatteryPack pack = countedInCharge(PackStatus::discharging);
    pack.currentNow.reset();
    pack.powerNow = 9120 * milli;
    EXPECT_EQ(describe(pack).timeToEmpty, 120) << "1600 mAh of 11.4 V at 9.12 W";
}

TEST(BatteryPacks, TimesOfPacksThatCountInChargeFollowFromTheirSums) {
    BatteryPack idle = countedInCharge(PackStatus::unknown);
    idle.currentNow.reset();
    const std::vector packs{countedInCharge(PackStatus::discharging), idle};
    EXPECT_EQ(describePacks(packs, false).timeToEmpty, 240) << "3200 mAh at 800 mA";
}

TEST(BatteryPacks, TimesOfPacksThatCountDifferentlyFollowFromEnergy) {
    BatteryPack inCharge = countedInCharge(PackStatus::discharging);
    inCharge.voltageNow = inCharge.voltageMinDesign;
    const std::int64_t minutes = std::lround((30 + 18.24) / (10 + 9.12) * 60);
    EXPECT_EQ(describePacks({discharging(), inCharge}, false).timeToEmpty, minutes);
}

TEST(BatteryPacks, ThePercentFileStandsInForMissingEnergy) {
    EXPECT_EQ(describe({.capacity = 42}).currentCapacity, 42);
    EXPECT_EQ(describe({.capacity = 42, .energyNow = 5, .energyFull = 0}).currentCapacity, 42);
    EXPECT_EQ(describe({.status = PackStatus::discharging}).currentCapacity, std::nullopt);
}

TEST(BatteryPacks, ChargeStaysWithinItsRange) {
    EXPECT_EQ(describe({.energyNow = 51, .energyFull = 50}).currentCapacity, 100);
    EXPECT_EQ(describe({.capacity = 255}).currentCapacity, 100);
    EXPECT_EQ(describe({.capacity = -3}).currentCapacity, 0);
    EXPECT_EQ(describe({.capacity = 90, .energyNow = -5, .energyFull = 50}).currentCapacity, 90);
}

TEST(BatteryPacks, CurrentIsNegativeOnlyWhileDischargingWhateverTheDriversSign) {
    for (const std::int64_t sign : {1, -1}) {
        BatteryPack pack = discharging();
        pack.currentNow = sign * 1500 * milli;
        EXPECT_EQ(properties(pack).amperage, -1500);
        EXPECT_EQ(properties(pack, true).amperage, -1500) << "a weak supply does not carry the whole load";
        pack.status = PackStatus::charging;
        EXPECT_EQ(properties(pack, true).amperage, 1500);
        pack.status = PackStatus::unknown;
        EXPECT_EQ(properties(pack, true).amperage, 1500);
        EXPECT_EQ(properties(pack, false).amperage, -1500) << "without a supply it can only give";
    }
}

TEST(BatteryPacks, AChargeLimitIsPluggedInAndNotCharging) {
    BatteryPack pack = discharging();
    pack.status = PackStatus::notCharging;
    pack.powerNow = 0;
    const PowerSourceDescription description = describe(pack, true);
    EXPECT_EQ(description.powerSourceState, "AC Power");
    EXPECT_EQ(description.isCharging, false);
    EXPECT_EQ(description.isCharged, false);
    EXPECT_EQ(description.timeToEmpty, -1);
    EXPECT_EQ(description.timeToFullCharge, -1);
    EXPECT_EQ(properties(pack, true).amperage, 0);
}

TEST(BatteryPacks, AnUnknownStateIsNotCharging) {
    BatteryPack pack = discharging();
    pack.status = PackStatus::unknown;
    EXPECT_EQ(describe(pack, true).isCharging, false);
    EXPECT_EQ(describe(pack, true).isCharged, false);
}

TEST(BatteryPacks, TheDriversTimeIsTakenInMinutes) {
    BatteryPack pack = discharging();
    pack.timeToEmpty = 5400;
    EXPECT_EQ(describe(pack).timeToEmpty, 90);
    pack.status = PackStatus::charging;
    pack.timeToFull = 600;
    EXPECT_EQ(describe(pack, true).timeToFullCharge, 10);
    EXPECT_EQ(describe(pack, true).timeToEmpty, -1);
}

TEST(BatteryPacks, AnUnknownTimeIsMinusOne) {
    BatteryPack pack = discharging();
    pack.powerNow = 0;
    EXPECT_EQ(describe(pack).timeToEmpty, -1);
    pack.powerNow = 1;
    EXPECT_EQ(describe(pack).timeToEmpty, -1) << "years";
    pack.powerNow.reset();
    EXPECT_EQ(describe(pack).timeToEmpty, -1);
    pack.timeToEmpty = 65535 * 60;
    EXPECT_EQ(describe(pack).timeToEmpty, -1) << "what a smart battery says when it does not know";
    pack.timeToEmpty = -1;
    EXPECT_EQ(describe(pack).timeToEmpty, -1);
}

TEST(BatteryPacks, TemperatureOfAMissingSensorIsNothing) {
    for (const std::int64_t tenths : {-2731, 100000, -500}) {
        EXPECT_EQ(properties({.temperature = tenths}).temperature, std::nullopt) << tenths;
    }
    EXPECT_EQ(properties({.temperature = -55}).temperature, -550);
    EXPECT_EQ(properties({.temperature = 0}).temperature, 0);
}

TEST(BatteryPacks, NoFigureComesNearTheLimitsOfItsType) {
    for (const std::int64_t value :
         {std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min(), std::int64_t{0},
          std::int64_t{-1}}) {
        BatteryPack pack;
        for (auto field :
             {&BatteryPack::capacity, &BatteryPack::energyNow, &BatteryPack::energyFull,
              &BatteryPack::energyFullDesign, &BatteryPack::chargeNow, &BatteryPack::chargeFull,
              &BatteryPack::chargeFullDesign, &BatteryPack::voltageNow, &BatteryPack::voltageMinDesign,
              &BatteryPack::currentNow, &BatteryPack::powerNow, &BatteryPack::temperature,
              &BatteryPack::cycleCount, &BatteryPack::timeToEmpty, &BatteryPack::timeToFull})
            pack.*field = value;
        for (const PackStatus status : {PackStatus::charging, PackStatus::discharging}) {
            pack.status = status;
            const PowerSourceDescription description = describePacks({pack, pack}, false);
            EXPECT_GE(description.currentCapacity.value_or(0), 0);
            EXPECT_LE(description.currentCapacity.value_or(0), 100);
            EXPECT_GE(description.timeToEmpty.value_or(0), -1);
            EXPECT_GE(description.timeToFullCharge.value_or(0), -1);
            const SmartBatteryProperties battery = combinePacks({pack, pack}, false);
            for (const auto& figure : {battery.designCapacity, battery.rawMaxCapacity, battery.voltage,
                                       battery.amperage, battery.temperature, battery.cycleCount})
                EXPECT_LE(std::abs(figure.value_or(0)), 1000000000);
        }
    }
}

} // namespace
} // namespace orvelle::linux_platform
