#include "darwin/typical_machine.h"
#include "platform/darwin/smc_helper.h"

namespace orvelle {
namespace {

using namespace simulated;
using namespace darwin_platform;
using WireBlock = Kernel::WireBlock;

class DarwinSMCUserClientTest : public DarwinTest {
protected:
    SMCUserClient& client() { return *m_client; }

    void TearDown() override {
        m_client.reset();
        DarwinTest::TearDown();
    }

private:
    std::unique_ptr<SMCUserClient> m_client = makeSMCUserClient();
};

TEST_F(DarwinSMCUserClientTest, TheBlocksOfOneReadingAreTheseBytes) {
    SMCHelper helper(client());
    EXPECT_EQ(helper.readKey("Tp09"), 50.0);

    WireBlock keyInfo{};
    keyInfo[0] = 0x39; // "Tp09" with its last letter first
    keyInfo[1] = 0x30;
    keyInfo[2] = 0x70;
    keyInfo[3] = 0x54;
    keyInfo[42] = 9;
    WireBlock bytes = keyInfo;
    bytes[28] = 4; // the size of the first answer
    bytes[42] = 5;
    EXPECT_EQ(kernel().wireBlocks(), (std::vector<WireBlock>{keyInfo, bytes}));
}

TEST_F(DarwinSMCUserClientTest, OpensOnceAndTakesTwoCallsAKey) {
    SMCHelper helper(client());
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"IOServiceGetMatchingService AppleSMC", "IOServiceOpen"}));
    EXPECT_TRUE(helper.readKey("Tp09"));
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"IOConnectCallStructMethod 0", "IOConnectCallStructMethod 0"}));
}

TEST_F(DarwinSMCUserClientTest, TheServiceIsReleasedAsSoonAsTheConnectionIsOpen) {
    EXPECT_TRUE(client().open());
    EXPECT_EQ(kernel().live().registryObjects, 0u);
    EXPECT_EQ(kernel().live().connections, 1u);
    client().close();
    EXPECT_EQ(kernel().live().connections, 0u);
}

TEST_F(DarwinSMCUserClientTest, AConnectionThatNobodyClosedEndsWithItsClient) {
    EXPECT_TRUE(client().open());
}

TEST_F(DarwinSMCUserClientTest, AMachineWithoutTheServiceAnswersNothing) {
    machine().services.erase("AppleSMC");
    SMCHelper helper(client());
    EXPECT_EQ(helper.readCPUTemperature(), std::nullopt);
    EXPECT_TRUE(helper.readSensors().empty());
    EXPECT_TRUE(helper.readFanSpeeds().empty());
    EXPECT_EQ(takeSystemCalls(), std::vector<std::string>{"IOServiceGetMatchingService AppleSMC"});
}

TEST_F(DarwinSMCUserClientTest, ARefusedConnectionAnswersNothingAndIsNotTriedAgain) {
    kernel().failCallsTo("IOServiceOpen");
    SMCHelper helper(client());
    EXPECT_EQ(helper.readKey("Tp09"), std::nullopt);
    EXPECT_EQ(takeSystemCalls(),
              (std::vector<std::string>{"IOServiceGetMatchingService AppleSMC", "IOServiceOpen"}));
}

TEST_F(DarwinSMCUserClientTest, AnUnknownKeyIsNothing) {
    SMCHelper helper(client());
    EXPECT_EQ(helper.readKey("Tp0T"), std::nullopt);
}

TEST_F(DarwinSMCUserClientTest, ATypicalMachineReportsItsTemperatureAndItsFan) {
    SMCHelper helper(client());
    EXPECT_EQ(helper.readCPUTemperature(), 50.0);
    EXPECT_EQ(helper.readGPUTemperature(), std::nullopt);
    ASSERT_EQ(helper.readSensors().size(), 1u);
    EXPECT_EQ(helper.readSensors()[0].name, "CPU Efficiency Core 1");
    EXPECT_EQ(helper.readFanSpeeds(), std::vector<std::int64_t>{2000});
}

TEST_F(DarwinSMCUserClientTest, ACycleWithoutAnyKeyTakesTwoCallsForEachOfTheThirtySix) {
    machine().controllerKeys.clear();
    SMCHelper helper(client());
    static_cast<void>(takeSystemCalls());
    static_cast<void>(helper.readCPUTemperature());
    static_cast<void>(helper.readGPUTemperature());
    static_cast<void>(helper.readSensors());
    static_cast<void>(helper.readFanSpeeds());
    EXPECT_EQ(takeSystemCalls(), std::vector<std::string>(72, "IOConnectCallStructMethod 0"));
}

} // namespace
} // namespace orvelle
