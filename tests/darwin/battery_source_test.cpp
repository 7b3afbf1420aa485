#include "core/battery_monitor.h"
#include "darwin/typical_machine.h"

#include <limits>

namespace orvelle {
namespace {

using namespace simulated;
using Descriptions = std::vector<std::optional<PowerSourceDescription>>;

class DarwinBatterySourceTest : public DarwinTest {
protected:
    std::optional<Descriptions> readPowerSources() { return host().battery->readPowerSources(); }
    /// The answer to one power source with these properties.
    PowerSourceDescription readOnly(const Properties& properties) {
        machine().powerSources = PropertyList{properties};
        return readPowerSources().value().at(0).value();
    }
    /// The answer to a battery with these properties.
    std::optional<SmartBatteryProperties> readSmart(const Property& properties) {
        machine().services["AppleSmartBattery"] = {{.properties = properties}};
        return host().battery->readSmartBattery();
    }
};

TEST_F(DarwinBatterySourceTest, DescribesThePowerSources) {
    EXPECT_EQ(readPowerSources(), Descriptions{(PowerSourceDescription{.currentCapacity = 80,
                                                                       .isCharging = false,
                                                                       .powerSourceState = "Battery Power",
                                                                       .isCharged = false,
                                                                       .timeToEmpty = 240,
                                                                       .timeToFullCharge = -1})});
    EXPECT_EQ(takeSystemCalls(), std::vector<std::string>{"IOPSCopyPowerSourcesInfo"});
}

TEST_F(DarwinBatterySourceTest, ASourceWithoutADescriptionKeepsItsPlaceInTheList) {
    machine().powerSources = PropertyList{"undescribed", Properties{{"Is Charging", true}}, 5};
    EXPECT_EQ(readPowerSources(),
              (Descriptions{std::nullopt, PowerSourceDescription{.isCharging = true}, std::nullopt}));
}

TEST_F(DarwinBatterySourceTest, AListThatIsMissingOrNoArrayIsNothingAndAnEmptyOneIsEmpty) {
    machine().powerSources.reset();
    EXPECT_EQ(readPowerSources(), std::nullopt);
    machine().powerSources = Properties{};
    EXPECT_EQ(readPowerSources(), std::nullopt);
    machine().powerSources = PropertyList{};
    EXPECT_EQ(readPowerSources(), Descriptions{});
}

TEST_F(DarwinBatterySourceTest, AValueOfAnotherTypeIsNothing) {
    EXPECT_EQ(readOnly({{"Current Capacity", "80"},
                        {"Is Charging", 1},
                        {"Power Source State", true},
                        {"Is Charged", "yes"},
                        {"Time to Empty", 1.5},
                        {"Time to Full Charge", PropertyList{}}}),
              PowerSourceDescription{});
}

TEST_F(DarwinBatterySourceTest, AWholeNumberIsAnIntegerInWhicheverFormItIsStored) {
    EXPECT_EQ(readOnly({{"Current Capacity", 80.0}}).currentCapacity, 80);
}

TEST_F(DarwinBatterySourceTest, TheStateIsPassedOnWhateverItSays) {
    EXPECT_EQ(readOnly({{"Power Source State", "AC Power"}}).powerSourceState, "AC Power");
    EXPECT_EQ(readOnly({{"Power Source State", ""}}).powerSourceState, "");
    const std::string longState(1000, 'x');
    EXPECT_EQ(readOnly({{"Power Source State", longState}}).powerSourceState, longState);
    EXPECT_EQ(readOnly({{"Power Source State", "\xf0\x9f\x94\x8b \xe2\x82\xac"}}).powerSourceState,
              "\xf0\x9f\x94\x8b \xe2\x82\xac");
}

TEST_F(DarwinBatterySourceTest, ReadsTheBatterysOwnFigures) {
    EXPECT_EQ(host().battery->readSmartBattery(), (SmartBatteryProperties{.cycleCount = 120,
                                                                          .designCapacity = 5000,
                                                                          .rawMaxCapacity = 4700,
                                                                          .nominalChargeCapacity = 4800,
                                                                          .temperature = 3050,
                                                                          .voltage = 12000,
                                                                          .amperage = -1500}));
    EXPECT_EQ(takeSystemCalls(), (std::vector<std::string>{"IOServiceGetMatchingService AppleSmartBattery",
                                                           "IORegistryEntryCreateCFProperties"}));
}

TEST_F(DarwinBatterySourceTest, AMachineWithoutABatteryOrItsPropertiesAnswersNothing) {
    machine().services.clear();
    EXPECT_EQ(host().battery->readSmartBattery(), std::nullopt);
    machine().services["AppleSmartBattery"] = {{}};
    EXPECT_EQ(host().battery->readSmartBattery(), std::nullopt);
    EXPECT_EQ(readSmart("not a dictionary"), std::nullopt);
    EXPECT_EQ(readSmart(Properties{}), SmartBatteryProperties{});
}

TEST_F(DarwinBatterySourceTest, OnlyCapacitiesAreTakenFromNumbersThatAreNotWhole) {
    EXPECT_EQ(readSmart(Properties{{"CycleCount", 1.5},
                                   {"DesignCapacity", 5000.9},
                                   {"AppleRawMaxCapacity", -4700.9},
                                   {"NominalChargeCapacity", 4800.5},
                                   {"Temperature", 3050.5},
                                   {"Voltage", 12000.5},
                                   {"Amperage", -1500.5}}),
              (SmartBatteryProperties{
                  .designCapacity = 5000, .rawMaxCapacity = -4700, .nominalChargeCapacity = 4800}));
}

TEST_F(DarwinBatterySourceTest, ACapacityThatNoIntegerHoldsIsNothing) {
    EXPECT_EQ(readSmart(Properties{{"DesignCapacity", std::numeric_limits<double>::quiet_NaN()},
                                   {"AppleRawMaxCapacity", 9.3e18},
                                   {"NominalChargeCapacity", -std::numeric_limits<double>::infinity()}}),
              SmartBatteryProperties{});
}

TEST_F(DarwinBatterySourceTest, PropertiesOfAnotherTypeAreNothing) {
    EXPECT_EQ(readSmart(Properties{{"CycleCount", "120"},
                                   {"DesignCapacity", "5000"},
                                   {"AppleRawMaxCapacity", PropertyList{4700}},
                                   {"NominalChargeCapacity", Properties{}},
                                   {"Temperature", true},
                                   {"Voltage", "12000"},
                                   {"Amperage", false}}),
              SmartBatteryProperties{});
}

TEST_F(DarwinBatterySourceTest, TheMonitorPublishesTheTypicalBattery) {
    BatteryMonitor monitor(*host().battery);
    monitor.update();
    EXPECT_TRUE(monitor.battery().isPresent);
    EXPECT_EQ(monitor.battery().maxCapacity, 4700);
    EXPECT_DOUBLE_EQ(monitor.battery().wattage, 18.0);
    EXPECT_DOUBLE_EQ(monitor.battery().temperature, 30.5);
}

} // namespace
} // namespace orvelle
