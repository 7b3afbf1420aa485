#include "platform/linux/battery_packs.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

constexpr std::int64_t milli = 1000;
constexpr std::int64_t million = 1000000;

class TwoPacksTest : public ::testing::Test {
protected:
    /// An inner pack of 24 Wh that rests and an outer one of 72 Wh in use, as older business laptops have.
    std::vector<BatteryPack> packs{{.status = PackStatus::unknown,
                                    .energyNow = 24 * million,
                                    .energyFull = 24 * million,
                                    .energyFullDesign = 24 * million,
                                    .voltageNow = 12 * million,
                                    .voltageMinDesign = 12 * million,
                                    .powerNow = 0,
                                    .temperature = 280,
                                    .cycleCount = 40},
                                   {.status = PackStatus::discharging,
                                    .energyNow = 12 * million,
                                    .energyFull = 66 * million,
                                    .energyFullDesign = 72 * million,
                                    .voltageNow = 10 * million,
                                    .voltageMinDesign = 12 * million,
                                    .powerNow = 18 * million,
                                    .temperature = 310,
                                    .cycleCount = 450}};
};

TEST_F(TwoPacksTest, ChargeIsEnergyOverFullEnergy) {
    EXPECT_EQ(describePacks(packs, false).currentCapacity, 40) << "36 of 90 Wh";
}

TEST_F(TwoPacksTest, AreEmptyWhenBothAre) {
    EXPECT_EQ(describePacks(packs, false).timeToEmpty, 120) << "36 Wh at 18 W";
    packs[1].timeToEmpty = 40 * 60;
    EXPECT_EQ(describePacks(packs, false).timeToEmpty, 120) << "one pack's time is not the machine's";
}

TEST_F(TwoPacksTest, AreFullWhenBothAre) {
    packs[1].status = PackStatus::charging;
    const PowerSourceDescription description = describePacks(packs, true);
    EXPECT_EQ(description.isCharging, true);
    EXPECT_EQ(description.timeToFullCharge, 180) << "54 Wh at 18 W";
}

TEST_F(TwoPacksTest, AreChargedOnlyTogether) {
    packs[0].status = PackStatus::full;
    EXPECT_EQ(describePacks(packs, true).isCharged, false);
    packs[1].status = PackStatus::full;
    EXPECT_EQ(describePacks(packs, true).isCharged, true);
}

TEST_F(TwoPacksTest, CapacitiesAreSummedAndTheLargerCycleCountIsReported) {
    const SmartBatteryProperties battery = combinePacks(packs, false);
    EXPECT_EQ(battery.designCapacity, 8000) << "96 Wh at 12 V";
    EXPECT_EQ(battery.rawMaxCapacity, 7500) << "90 Wh at 12 V";
    EXPECT_EQ(battery.cycleCount, 450);
    EXPECT_EQ(battery.temperature, 3100);
}

TEST_F(TwoPacksTest, VoltageIsWeightedByEnergyAndPowerSummed) {
    SmartBatteryProperties battery = combinePacks(packs, false);
    EXPECT_EQ(battery.voltage, 11333) << "(12 V x 24 Wh + 10 V x 12 Wh) / 36 Wh";
    EXPECT_EQ(battery.amperage, -1588) << "18 W at that voltage";
    packs[0].status = packs[1].status = PackStatus::discharging;
    packs[0].powerNow = -6 * million;
    battery = combinePacks(packs, false);
    EXPECT_EQ(battery.amperage, -2118) << "24 W";
}

TEST_F(TwoPacksTest, CurrentsAreSummedWhereEveryPackGivesOne) {
    packs[0].currentNow = 0;
    packs[1].currentNow = 1800 * milli;
    EXPECT_EQ(combinePacks(packs, false).amperage, -1800);
    packs[0].currentNow.reset();
    packs[0].powerNow.reset();
    EXPECT_EQ(combinePacks(packs, false).amperage, -1800) << "an idle pack may give nothing";
}

TEST_F(TwoPacksTest, EmptyPacksHaveTheirPlainMeanVoltage) {
    packs[0].energyNow = packs[1].energyNow = 0;
    EXPECT_EQ(combinePacks(packs, false).voltage, 11000);
}

TEST_F(TwoPacksTest, ASumIsUnknownWhenOnePacksShareIsUnknown) {
    packs[0].energyFullDesign.reset();
    EXPECT_EQ(combinePacks(packs, false).designCapacity, std::nullopt);
    EXPECT_EQ(combinePacks(packs, false).rawMaxCapacity, 7500);
}

TEST_F(TwoPacksTest, EnergyAndChargeFilesCanStandSideBySide) {
    packs[1] = {.status = PackStatus::discharging,
                .chargeNow = 1 * million,
                .chargeFull = 5500 * milli,
                .chargeFullDesign = 6 * million,
                .voltageNow = 10 * million,
                .voltageMinDesign = 12 * million};
    EXPECT_EQ(describePacks(packs, false).currentCapacity, 40);
    EXPECT_EQ(combinePacks(packs, false).rawMaxCapacity, 7500);
}

TEST_F(TwoPacksTest, ThePlainMeanStandsInWhereOnePackHasOnlyAPercentage) {
    packs[0] = {.status = PackStatus::full, .capacity = 100};
    EXPECT_EQ(describePacks(packs, false).currentCapacity, 59) << "100 % and 18.2 %";
}

TEST_F(TwoPacksTest, AWornOutPackThatHoldsNothingDoesNotCount) {
    packs[1].energyNow = packs[1].energyFull = 0;
    EXPECT_EQ(describePacks(packs, false).currentCapacity, 100) << "24 of 24 Wh";
}

} // namespace
} // namespace orvelle::linux_platform
