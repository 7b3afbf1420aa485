#include "platform/linux/linux_battery_source.h"
#include "support/opening_watch.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

#include <map>

namespace orvelle::linux_platform {
namespace {

class LinuxBatterySourceTest : public ::testing::Test {
protected:
    using Attributes = std::map<std::string, std::string>;

    TemporaryTree tree;

    static std::string folderOf(const std::string& name) { return "sys/class/power_supply/" + name; }

    void supply(const std::string& name, const Attributes& attributes) const {
        for (const auto& [file, text] : attributes)
            tree.write(folderOf(name) + "/" + file, text + "\n");
    }
    void set(const std::string& name, const std::string& file, const std::string& text) const {
        tree.write(folderOf(name) + "/" + file, text + "\n");
    }

    void mains(bool isOnline) const { supply("AC", {{"type", "Mains"}, {"online", isOnline ? "1" : "0"}}); }

    /// A laptop with an inner and an outer pack.
    void buildTwoPacks() const {
        mains(false);
        supply("BAT0", {{"type", "Battery"},
                        {"present", "1"},
                        {"status", "Unknown"},
                        {"energy_now", "24000000"},
                        {"energy_full", "24000000"},
                        {"energy_full_design", "24000000"},
                        {"voltage_now", "12000000"},
                        {"voltage_min_design", "12000000"},
                        {"power_now", "0"},
                        {"cycle_count", "40"}});
        supply("BAT1", {{"type", "Battery"},
                        {"present", "1"},
                        {"status", "Discharging"},
                        {"energy_now", "12000000"},
                        {"energy_full", "66000000"},
                        {"energy_full_design", "72000000"},
                        {"voltage_now", "10000000"},
                        {"voltage_min_design", "12000000"},
                        {"power_now", "18000000"},
                        {"cycle_count", "450"}});
    }

    /// The only source of a sample; nothing when there is no battery.
    static std::optional<PowerSourceDescription> sampleOf(LinuxBatterySource& source) {
        const auto sources = source.readPowerSources();
        EXPECT_TRUE(sources) << "a machine without batteries has an empty list, not none";
        if (!sources || sources->empty())
            return std::nullopt;
        EXPECT_EQ(sources->size(), 1u) << "all packs are one source";
        return sources->front();
    }
    [[nodiscard]] std::optional<PowerSourceDescription> firstSample() const {
        LinuxBatterySource source(tree.root());
        return sampleOf(source);
    }
};

TEST_F(LinuxBatterySourceTest, TwoPacksAreOneSource) {
    buildTwoPacks();
    LinuxBatterySource source(tree.root());
    const auto description = sampleOf(source);
    ASSERT_TRUE(description);
    EXPECT_EQ(description->currentCapacity, 40);
    EXPECT_EQ(description->powerSourceState, "Battery Power");
    EXPECT_EQ(description->timeToEmpty, 120);
    const auto battery = source.readSmartBattery();
    ASSERT_TRUE(battery);
    EXPECT_EQ(battery->designCapacity, 8000);
    EXPECT_EQ(battery->cycleCount, 450);
    EXPECT_EQ(battery->amperage, -1588);
}

TEST_F(LinuxBatterySourceTest, AMachineWithSuppliesButNoBatteryHasNonePresent) {
    mains(true);
    LinuxBatterySource source(tree.root());
    EXPECT_EQ(sampleOf(source), std::nullopt);
    EXPECT_EQ(source.readSmartBattery(), std::nullopt);
}

TEST_F(LinuxBatterySourceTest, AMachineWithNothingHasNonePresent) {
    EXPECT_EQ(firstSample(), std::nullopt);
}

TEST_F(LinuxBatterySourceTest, BatteriesOfDevicesAreNotTheMachinesAndAreNeverAsked) {
    supply("hidpp_battery_0", {{"type", "Battery"},
                               {"scope", "Device"},
                               {"status", "Discharging"},
                               {"capacity", "80"},
                               {"online", "1"}});
    OpeningWatch watch(tree.root() / folderOf("hidpp_battery_0"));
    LinuxBatterySource source(tree.root());
    for (int sample = 0; sample < 12; ++sample)
        EXPECT_EQ(sampleOf(source), std::nullopt);
    EXPECT_EQ(watch.openedFiles(), std::set<std::string>{"scope"});
}

TEST_F(LinuxBatterySourceTest, ABatteryOfTheSystemScopeIsTheMachines) {
    supply("BAT0", {{"type", "Battery"}, {"scope", "System"}, {"status", "Full"}, {"capacity", "100"}});
    EXPECT_TRUE(firstSample());
}

TEST_F(LinuxBatterySourceTest, AnEmptyBayIsNoBattery) {
    supply("BAT0", {{"type", "Battery"}, {"present", "0"}});
    EXPECT_EQ(firstSample(), std::nullopt);
}

TEST_F(LinuxBatterySourceTest, APackThatIsPutInIsReadWithItsOwnFigures) {
    buildTwoPacks();
    LinuxBatterySource source(tree.root());
    EXPECT_EQ(sampleOf(source)->currentCapacity, 40);
    set("BAT1", "present", "0");
    EXPECT_EQ(sampleOf(source)->currentCapacity, 100) << "only the inner pack is left";
    set("BAT1", "energy_now", "24000000");
    set("BAT1", "energy_full", "24000000");
    set("BAT0", "energy_now", "0");
    set("BAT1", "present", "1");
    EXPECT_EQ(sampleOf(source)->currentCapacity, 50);
}

TEST_F(LinuxBatterySourceTest, AnyOnlineSupplyThatIsNoBatteryIsExternalPower) {
    supply("BAT0", {{"type", "Battery"}, {"status", "Not charging"}, {"capacity", "80"}, {"online", "1"}});
    mains(false);
    EXPECT_EQ(firstSample()->powerSourceState, "Battery Power");
    for (const char* type : {"USB", "Wireless", "Mains"}) {
        supply("other", {{"type", type}, {"online", "1"}});
        EXPECT_EQ(firstSample()->powerSourceState, "AC Power") << type;
        EXPECT_EQ(firstSample()->isCharging, false) << type;
    }
    set("other", "online", "2");
    EXPECT_EQ(firstSample()->powerSourceState, "AC Power") << "a supply of programmable voltage";
    set("other", "scope", "Device");
    EXPECT_EQ(firstSample()->powerSourceState, "Battery Power") << "a pad that charges a mouse";
}

TEST_F(LinuxBatterySourceTest, WithoutSuppliesThePacksStatusImpliesExternalPower) {
    supply("BAT0", {{"type", "Battery"}, {"status", "Charging"}, {"capacity", "80"}});
    EXPECT_EQ(firstSample()->powerSourceState, "AC Power");
    EXPECT_EQ(firstSample()->isCharging, true);
    set("BAT0", "status", "Discharging");
    EXPECT_EQ(firstSample()->powerSourceState, "Battery Power");
}

TEST_F(LinuxBatterySourceTest, FollowsTheValuesFromSampleToSample) {
    buildTwoPacks();
    LinuxBatterySource source(tree.root());
    EXPECT_EQ(sampleOf(source)->currentCapacity, 40);
    set("BAT1", "energy_now", "57000000");
    set("BAT1", "status", "Charging");
    set("AC", "online", "1");
    const auto description = sampleOf(source);
    EXPECT_EQ(description->currentCapacity, 90);
    EXPECT_EQ(description->isCharging, true);
    EXPECT_EQ(description->powerSourceState, "AC Power");
}

TEST_F(LinuxBatterySourceTest, AValueThatVanishesIsUnknownRatherThanOld) {
    buildTwoPacks();
    LinuxBatterySource source(tree.root());
    EXPECT_EQ(sampleOf(source)->timeToEmpty, 120);
    set("BAT1", "power_now", "");
    EXPECT_EQ(sampleOf(source)->timeToEmpty, -1);
}

TEST_F(LinuxBatterySourceTest, WhatChangesRarelyIsReadAgainWithinTenSamples) {
    buildTwoPacks();
    LinuxBatterySource source(tree.root());
    static_cast<void>(sampleOf(source));
    set("BAT1", "cycle_count", "451");
    for (int sample = 2; sample <= 11; ++sample)
        static_cast<void>(sampleOf(source));
    EXPECT_EQ(source.readSmartBattery()->cycleCount, 451);
}

TEST_F(LinuxBatterySourceTest, MalformedFilesDoNoHarm) {
    for (const char* text :
         {"", "x", "-9223372036854775808", "99999999999999999999999", "\xFF\xFE", "0", "1\n2"}) {
        mains(true);
        for (const char* file :
             {"present", "status", "capacity", "energy_now", "energy_full", "energy_full_design",
              "charge_now", "voltage_now", "current_now", "power_now", "temp", "cycle_count"})
            set("BAT0", file, text);
        set("BAT0", "type", "Battery");
        LinuxBatterySource source(tree.root());
        const auto description = sampleOf(source);
        if (description) {
            EXPECT_GE(description->currentCapacity.value_or(0), 0) << text;
            EXPECT_LE(description->currentCapacity.value_or(0), 100) << text;
        }
        static_cast<void>(source.readSmartBattery());
    }
}

} // namespace
} // namespace orvelle::linux_platform
