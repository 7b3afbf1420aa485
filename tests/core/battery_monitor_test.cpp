#include "core/battery_monitor.h"
#include "platform/replay/fake_sources.h"

#include <QMetaProperty>
#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

using Sources = std::vector<std::optional<PowerSourceDescription>>;

class BatteryMonitorTest : public ::testing::Test {
protected:
    FakeBatterySource source;
    BatteryMonitor monitor{source};

    /// The battery after an update in which the list holds one source.
    const BatteryInfo& updatedWith(const PowerSourceDescription& description) {
        source.powerSources = Sources{description};
        monitor.update();
        return monitor.battery();
    }

    /// The battery after an update in which it says `properties` of itself.
    const BatteryInfo& updatedWith(const SmartBatteryProperties& properties) {
        source.powerSources = Sources{PowerSourceDescription{}};
        source.smartBattery = properties;
        monitor.update();
        return monitor.battery();
    }
};

TEST_F(BatteryMonitorTest, StartsWithoutABatteryAndWithUnknownTimes) {
    const BatteryInfo& battery = monitor.battery();
    EXPECT_FALSE(battery.isPresent);
    EXPECT_EQ(battery.currentCapacity, 0);
    EXPECT_FALSE(battery.isCharging || battery.isPluggedIn || battery.isFullyCharged);
    EXPECT_EQ(battery.timeToEmpty, -1);
    EXPECT_EQ(battery.timeToFull, -1);
    EXPECT_EQ(battery.cycleCount + battery.designCapacity + battery.maxCapacity, 0);
    EXPECT_EQ(battery.health, 1.0);
    EXPECT_EQ(battery.temperature + battery.voltage + battery.amperage + battery.wattage, 0);
    EXPECT_EQ(battery.powerSource, QStringLiteral("Unknown"));
    EXPECT_TRUE(monitor.chargeHistory().isEmpty());
}

TEST_F(BatteryMonitorTest, PublishesADescriptionAndItsCharge) {
    const BatteryInfo& battery = updatedWith({.currentCapacity = 80,
                                              .isCharging = true,
                                              .powerSourceState = "AC Power",
                                              .isCharged = false,
                                              .timeToEmpty = 0,
                                              .timeToFullCharge = 42});
    EXPECT_TRUE(battery.isPresent);
    EXPECT_EQ(battery.currentCapacity, 80);
    EXPECT_TRUE(battery.isCharging);
    EXPECT_TRUE(battery.isPluggedIn);
    EXPECT_EQ(battery.powerSource, QStringLiteral("AC Power"));
    EXPECT_FALSE(battery.isFullyCharged);
    EXPECT_EQ(battery.timeToEmpty, 0);
    EXPECT_EQ(battery.timeToFull, 42);
    EXPECT_EQ(monitor.chargeHistory(), QList<double>{0.8});
}

TEST_F(BatteryMonitorTest, WithoutPowerSourcesOnlyThePresenceIsCleared) {
    updatedWith({.currentCapacity = 55, .isCharging = true});
    for (const auto& nothing : {std::optional<Sources>{}, std::optional<Sources>{Sources{}}}) {
        BatteryInfo expected = monitor.battery();
        expected.isPresent = false;
        source.powerSources = nothing;
        source.smartBattery = SmartBatteryProperties{.cycleCount = 99};
        monitor.update();
        EXPECT_EQ(monitor.battery(), expected);
        EXPECT_EQ(monitor.chargeHistory(), QList<double>{0.55});
    }
}

TEST_F(BatteryMonitorTest, SourcesWithoutADescriptionLeaveThePresenceButTheUpdateGoesOn) {
    source.powerSources = Sources{std::nullopt};
    source.smartBattery = SmartBatteryProperties{.cycleCount = 7};
    monitor.update();
    EXPECT_FALSE(monitor.battery().isPresent);
    EXPECT_EQ(monitor.battery().cycleCount, 7);
    EXPECT_EQ(monitor.chargeHistory(), QList<double>{0.0});

    updatedWith(PowerSourceDescription{.currentCapacity = 40});
    source.powerSources = Sources{std::nullopt};
    monitor.update();
    EXPECT_TRUE(monitor.battery().isPresent);
    EXPECT_EQ(monitor.chargeHistory(), (QList<double>{0.0, 0.4, 0.4}));
}

TEST_F(BatteryMonitorTest, AnyStateButExternalPowerIsBattery) {
    EXPECT_TRUE(updatedWith({.powerSourceState = "AC Power"}).isPluggedIn);
    for (const char* state : {"Battery Power", "Off Line", "ac power", ""}) {
        updatedWith({.powerSourceState = "AC Power"});
        const BatteryInfo& battery = updatedWith({.powerSourceState = state});
        EXPECT_FALSE(battery.isPluggedIn) << state;
        EXPECT_EQ(battery.powerSource, QStringLiteral("Battery")) << state;
    }
}

TEST_F(BatteryMonitorTest, AMissingFieldKeepsItsValue) {
    const PowerSourceDescription full{.currentCapacity = 80,
                                      .isCharging = true,
                                      .powerSourceState = "AC Power",
                                      .isCharged = true,
                                      .timeToEmpty = 10,
                                      .timeToFullCharge = 20};
    const BatteryInfo before = updatedWith(full);
    EXPECT_EQ(updatedWith(PowerSourceDescription{}), before);
}

TEST_F(BatteryMonitorTest, LaterSourcesOverwriteEarlierOnesFieldByField) {
    source.powerSources = Sources{PowerSourceDescription{.currentCapacity = 80, .isCharging = true},
                                  std::nullopt, PowerSourceDescription{.currentCapacity = 30}};
    monitor.update();
    EXPECT_EQ(monitor.battery().currentCapacity, 30);
    EXPECT_TRUE(monitor.battery().isCharging);
    EXPECT_EQ(monitor.chargeHistory(), QList<double>{0.3});
}

TEST_F(BatteryMonitorTest, TheNominalCapacityStandsInForAMissingMeasuredOne) {
    EXPECT_EQ(updatedWith({.rawMaxCapacity = 0, .nominalChargeCapacity = 4500}).maxCapacity, 4500);
    EXPECT_EQ(updatedWith({.rawMaxCapacity = 4300, .nominalChargeCapacity = 4500}).maxCapacity, 4300);
    EXPECT_EQ(updatedWith({.nominalChargeCapacity = 4400}).maxCapacity, 4400);
    EXPECT_EQ(updatedWith({.rawMaxCapacity = -1, .nominalChargeCapacity = 0}).maxCapacity, 4400);
}

TEST_F(BatteryMonitorTest, HealthNeedsBothCapacitiesAndIsNotCut) {
    EXPECT_EQ(updatedWith({.designCapacity = 0, .rawMaxCapacity = 4500}).health, 1.0);
    EXPECT_EQ(updatedWith({.designCapacity = 5000}).health, 0.9);
    EXPECT_EQ(updatedWith({.designCapacity = -5}).health, 0.9);
    EXPECT_EQ(updatedWith({.rawMaxCapacity = 5500}).health, 1.1);
}

TEST_F(BatteryMonitorTest, ConvertsTemperatureAndVoltage) {
    const BatteryInfo& battery = updatedWith({.cycleCount = 0, .temperature = 3050, .voltage = 12345});
    EXPECT_EQ(battery.temperature, 30.5);
    EXPECT_EQ(battery.voltage, 12.345);
    EXPECT_EQ(updatedWith({.temperature = -500}).temperature, -5.0);
}

TEST_F(BatteryMonitorTest, PowerIsNeverNegative) {
    const BatteryInfo& battery = updatedWith({.voltage = 12000, .amperage = -1500});
    EXPECT_EQ(battery.amperage, -1500);
    EXPECT_EQ(battery.wattage, 18.0);
}

TEST_F(BatteryMonitorTest, WithoutAnAmperagePowerIsNotRecomputed) {
    updatedWith({.voltage = 12000, .amperage = 1000});
    const BatteryInfo& battery = updatedWith({.voltage = 6000});
    EXPECT_EQ(battery.voltage, 6.0);
    EXPECT_EQ(battery.amperage, 1000);
    EXPECT_EQ(battery.wattage, 12.0);
}

TEST_F(BatteryMonitorTest, NoFigureCanStopTheProcess) {
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    for (const std::int64_t value : {least, most}) {
        updatedWith({.currentCapacity = value, .timeToEmpty = value, .timeToFullCharge = value});
        updatedWith({.cycleCount = value,
                     .designCapacity = value,
                     .rawMaxCapacity = value,
                     .nominalChargeCapacity = value,
                     .temperature = value,
                     .voltage = value,
                     .amperage = value});
    }
    EXPECT_EQ(monitor.battery().cycleCount, most);
}

TEST_F(BatteryMonitorTest, TheSixtyFirstUpdateDropsTheOldestCharge) {
    for (int sample = 0; sample < 61; ++sample)
        updatedWith(PowerSourceDescription{.currentCapacity = sample});
    EXPECT_EQ(monitor.chargeHistory().size(), 60);
    EXPECT_EQ(monitor.chargeHistory().first(), 0.01);
    EXPECT_EQ(monitor.chargeHistory().last(), 0.6);
}

TEST_F(BatteryMonitorTest, AssignsTheFieldsOneAfterAnother) {
    QStringList order;
    BatteryInfo previous = monitor.battery();
    const QMetaObject& fields = BatteryInfo::staticMetaObject;
    QObject::connect(&monitor, &BatteryMonitor::batteryChanged, [&] {
        for (int field = 0; field < fields.propertyCount(); ++field) {
            const QMetaProperty property = fields.property(field);
            if (property.readOnGadget(&previous) != property.readOnGadget(&monitor.battery()))
                order << QLatin1String(property.name());
        }
        previous = monitor.battery();
    });
    QObject::connect(&monitor, &BatteryMonitor::chargeHistoryChanged,
                     [&] { order << QStringLiteral("history"); });
    source.powerSources = Sources{PowerSourceDescription{.currentCapacity = 80,
                                                         .isCharging = true,
                                                         .powerSourceState = "AC Power",
                                                         .isCharged = true,
                                                         .timeToEmpty = 1,
                                                         .timeToFullCharge = 2}};
    source.smartBattery = SmartBatteryProperties{.cycleCount = 3,
                                                 .designCapacity = 5000,
                                                 .rawMaxCapacity = 4500,
                                                 .nominalChargeCapacity = 4600,
                                                 .temperature = 3000,
                                                 .voltage = 12000,
                                                 .amperage = 500};
    monitor.update();
    EXPECT_EQ(order.join(QLatin1Char(',')),
              QStringLiteral("isPresent,currentCapacity,isCharging,isPluggedIn,powerSource,isFullyCharged,"
                             "timeToEmpty,timeToFull,cycleCount,designCapacity,maxCapacity,health,"
                             "temperature,voltage,amperage,wattage,history"));
}

TEST_F(BatteryMonitorTest, NotifiesObserversOfEveryAssignmentEvenOfAnEqualValue) {
    int notificationCount = 0;
    const PowerSourceDescription same{.currentCapacity = 80};
    updatedWith(same);
    QObject::connect(&monitor, &BatteryMonitor::batteryChanged, [&] { ++notificationCount; });
    updatedWith(same);
    EXPECT_EQ(notificationCount, 2) << "presence and charge";
}

} // namespace
} // namespace orvelle
