#include "core/sensor_monitor.h"
#include "darwin/scripted_smc_user_client.h"
#include "platform/darwin/darwin_sensor_source.h"

#include <gtest/gtest.h>

namespace orvelle::darwin_platform {
namespace {

class SensorMonitorOnSMCTest : public ::testing::Test {
protected:
    std::unique_ptr<ScriptedSMCUserClient> ownedClient = std::make_unique<ScriptedSMCUserClient>();
    ScriptedSMCUserClient& client = *ownedClient;
    DarwinSensorSource source{std::move(ownedClient)};
    SensorMonitor monitor{source};
};

TEST_F(SensorMonitorOnSMCTest, ConnectsAtTheFirstUpdateAndOnlyThen) {
    EXPECT_EQ(client.openCount, 0);
    monitor.update();
    EXPECT_EQ(client.openCount, 1);
    monitor.update();
    EXPECT_EQ(client.openCount, 1);
}

TEST_F(SensorMonitorOnSMCTest, AMachineWithoutTheServiceStaysEmpty) {
    client.acceptsOpen = false;
    monitor.update();
    client.acceptsOpen = true;
    monitor.update();
    EXPECT_EQ(client.openCount, 1) << "it is not tried again";
    EXPECT_EQ(monitor.cpuTemperature(), 0);
    EXPECT_EQ(monitor.gpuTemperature(), 0);
    EXPECT_TRUE(monitor.cpuTempHistory().isEmpty());
    EXPECT_TRUE(monitor.gpuTempHistory().isEmpty());
    EXPECT_TRUE(monitor.sensors().isEmpty());
    EXPECT_TRUE(monitor.fans().isEmpty());
}

TEST_F(SensorMonitorOnSMCTest, TheOnlyFanThatAnswersHasIndexZero) {
    client.setFloat("F1Ac", 1500);
    monitor.update();
    EXPECT_EQ(monitor.fans(), (QList<FanInfo>{{0, 1500}}));
}

TEST_F(SensorMonitorOnSMCTest, ASensorAtTheEdgeOfPlausibilityIsAbsent) {
    client.setFloat("Tm0P", 0);
    client.setFloat("TW0P", 150);
    client.setFloat("TB0T", 31);
    monitor.update();
    ASSERT_EQ(monitor.sensors().size(), 1);
    EXPECT_EQ(monitor.sensors().first().key, QStringLiteral("TB0T"));
    EXPECT_EQ(monitor.sensors().first().name, QStringLiteral("Battery"));
}

} // namespace
} // namespace orvelle::darwin_platform
