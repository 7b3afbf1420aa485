#include "darwin/scripted_smc_user_client.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle::darwin_platform {
namespace {

using WireBlock = ScriptedSMCUserClient::WireBlock;

class SMCHelperTest : public ::testing::Test {
protected:
    ScriptedSMCUserClient client;

    /// What a key of the given type, size and bytes reads as.
    std::optional<double> decoded(std::string_view type, std::uint32_t size,
                                  const std::vector<std::uint8_t>& bytes) {
        client.set("TEST", type, size, bytes);
        return SMCHelper(client).readKey("TEST");
    }
};

TEST_F(SMCHelperTest, FoldsTheFirstFourBytesOfAKeyMostSignificantFirst) {
    EXPECT_EQ(smcCode("Tp09"), 0x54703039u);
    EXPECT_EQ(smcCode("flt "), 0x666C7420u);
    EXPECT_EQ(smcCode("Tp09x"), 0x54703039u);
    EXPECT_EQ(smcCode("Tp"), 0x5470u);
    EXPECT_EQ(smcCode(""), 0u);
    EXPECT_EQ(smcCode("\xC3\xA9"), 0xC3A9u);
}

TEST_F(SMCHelperTest, SendsTheKeyInfoBlockByteByByte) {
    client.set("Tp09", "flt ", 4, {0x42, 0x48, 0, 0});
    EXPECT_EQ(SMCHelper(client).readKey("Tp09"), 50.0);
    ASSERT_EQ(client.calls.size(), 2u);
    WireBlock expected{};
    expected[0] = 0x39; // the key, least significant byte first
    expected[1] = 0x30;
    expected[2] = 0x70;
    expected[3] = 0x54;
    expected[42] = 9;
    EXPECT_EQ(client.calls[0].input, expected);
    EXPECT_EQ(client.calls[0].outputBefore, WireBlock{});
}

TEST_F(SMCHelperTest, SendsTheReadBlockWithTheSizeThatTheKeyInfoGave) {
    client.set("Tp09", "flt ", 4, {0x42, 0x48, 0, 0});
    EXPECT_EQ(SMCHelper(client).readKey("Tp09"), 50.0);
    ASSERT_EQ(client.calls.size(), 2u);
    WireBlock expected{};
    expected[0] = 0x39;
    expected[1] = 0x30;
    expected[2] = 0x70;
    expected[3] = 0x54;
    expected[28] = 4; // the size goes back, the type does not
    expected[42] = 5;
    EXPECT_EQ(client.calls[1].input, expected);
}

TEST_F(SMCHelperTest, CallsMethodZeroBothTimesWithRoomForEightyBytes) {
    EXPECT_EQ(SMCHelper(client).readKey("Tp09"), std::nullopt);
    ASSERT_EQ(client.calls.size(), 2u);
    for (const auto& call : client.calls) {
        EXPECT_EQ(call.selector, 0u);
        EXPECT_EQ(call.outputSize, 80u);
    }
}

TEST_F(SMCHelperTest, AsksForTheKeyInfoAgainAtEveryReading) {
    client.setFloat("Tp09", 50);
    SMCHelper helper(client);
    EXPECT_EQ(helper.readKey("Tp09"), 50.0);
    client.setFloat("Tp09", 51);
    EXPECT_EQ(helper.readKey("Tp09"), 51.0);
    EXPECT_EQ(client.calls.size(), 4u);
}

TEST_F(SMCHelperTest, DecodesFloatsMostSignificantByteFirst) {
    EXPECT_EQ(decoded("flt ", 4, {0x42, 0x48, 0x00, 0x00}), 50.0);
    EXPECT_EQ(decoded("flt ", 4, {0xC1, 0x20, 0x00, 0x00}), -10.0);
}

TEST_F(SMCHelperTest, DecodesSignedFixedPointInTwoHundredFiftySixths) {
    EXPECT_EQ(decoded("sp78", 2, {0xFF, 0x00}), -1.0);
    EXPECT_EQ(decoded("sp78", 2, {0x2D, 0x80}), 45.5);
    EXPECT_EQ(decoded("sp78", 2, {0x80, 0x00}), -128.0);
    EXPECT_EQ(decoded("sp78", 2, {0x00, 0x01}), 1.0 / 256);
}

TEST_F(SMCHelperTest, DecodesUnsignedIntegersWhateverTheirSizeSays) {
    EXPECT_EQ(decoded("ui8 ", 1, {0xFF, 0xFF}), 255.0);
    EXPECT_EQ(decoded("ui8 ", 7, {0x07}), 7.0);
    EXPECT_EQ(decoded("ui16", 2, {0x12, 0x34, 0x56}), 4660.0);
    EXPECT_EQ(decoded("ui16", 0, {0xFF, 0xFF}), 65535.0);
    EXPECT_EQ(decoded("ui32", 4, {0xFF, 0xFF, 0xFF, 0xFE}), 4294967294.0);
    EXPECT_EQ(decoded("ui32", 32, {0x00, 0x01, 0x00, 0x00}), 65536.0);
}

TEST_F(SMCHelperTest, AFloatOrFixedPointValueOfTheWrongSizeIsNothing) {
    EXPECT_EQ(decoded("flt ", 2, {0x42, 0x48}), std::nullopt);
    EXPECT_EQ(decoded("flt ", 8, {0x42, 0x48, 0, 0}), std::nullopt);
    EXPECT_EQ(decoded("sp78", 4, {0x2D, 0x80, 0, 0}), std::nullopt);
    EXPECT_EQ(decoded("sp78", 0, {0x2D, 0x80}), std::nullopt);
}

TEST_F(SMCHelperTest, AnyOtherTypeIsNothing) {
    for (const char* type : {"si8 ", "si16", "fpe2", "sp87", "flag", "ch8*", "FLT ", "ui64", ""})
        EXPECT_EQ(decoded(type, 4, {1, 2, 3, 4}), std::nullopt) << type;
    EXPECT_EQ(SMCHelper(client).readKey("none"), std::nullopt);
}

TEST_F(SMCHelperTest, DecodesWithTheTypeOfTheFirstAnswer) {
    // The scripted controller repeats neither type nor size when it gives the bytes.
    EXPECT_EQ(decoded("ui8 ", 1, {42}), 42.0);
}

TEST_F(SMCHelperTest, TakesTheAnswerWhateverTheControllersOwnResultSays) {
    client.setFloat("Tp09", 50);
    for (const std::uint8_t byte : {std::uint8_t{0x01}, std::uint8_t{0x84}, std::uint8_t{0xFF}}) {
        client.resultByte = byte;
        client.statusByte = 0;
        EXPECT_EQ(SMCHelper(client).readKey("Tp09"), 50.0) << int{byte};
        client.resultByte = 0;
        client.statusByte = byte;
        EXPECT_EQ(SMCHelper(client).readKey("Tp09"), 50.0) << int{byte};
    }
}

TEST_F(SMCHelperTest, AFailedCallIsNothing) {
    client.setFloat("Tp09", 50);
    client.failingCommand = SMCParameterBlock::readKeyInfoCommand;
    EXPECT_EQ(SMCHelper(client).readKey("Tp09"), std::nullopt);
    EXPECT_EQ(client.calls.size(), 1u) << "the second call needs the first one's answer";
    client.failingCommand = SMCParameterBlock::readBytesCommand;
    EXPECT_EQ(SMCHelper(client).readKey("Tp09"), std::nullopt);
    EXPECT_EQ(client.calls.size(), 3u);
}

TEST_F(SMCHelperTest, WithoutAConnectionEveryReaderIsEmptyAndNothingIsAskedOrTriedAgain) {
    client.acceptsOpen = false;
    client.setFloat("Tp09", 50);
    {
        SMCHelper helper(client);
        client.acceptsOpen = true;
        EXPECT_EQ(helper.readKey("Tp09"), std::nullopt);
        EXPECT_EQ(helper.readCPUTemperature(), std::nullopt);
        EXPECT_EQ(helper.readGPUTemperature(), std::nullopt);
        EXPECT_TRUE(helper.readSensors().empty());
        EXPECT_TRUE(helper.readFanSpeeds().empty());
    }
    EXPECT_EQ(client.openCount, 1);
    EXPECT_TRUE(client.calls.empty());
    EXPECT_EQ(client.closeCount, 0) << "there is nothing to give back";
}

TEST_F(SMCHelperTest, OpensOnceAndGivesTheConnectionBack) {
    {
        SMCHelper helper(client);
        EXPECT_EQ(helper.readCPUTemperature(), std::nullopt);
        EXPECT_EQ(helper.readCPUTemperature(), std::nullopt);
        EXPECT_EQ(client.closeCount, 0);
    }
    EXPECT_EQ(client.openCount, 1);
    EXPECT_EQ(client.closeCount, 1);
}

TEST_F(SMCHelperTest, TheFirstPlausibleProcessorKeyWins) {
    client.setFloat("Tp09", 150);
    client.setFloat("Tp0T", 0);
    client.setFloat("Tp01", std::numeric_limits<float>::quiet_NaN());
    client.set("Tp05", "sp78", 2, {0xFF, 0x00});
    client.setFloat("Tp0D", 61.5);
    client.setFloat("Tp0H", 70);
    EXPECT_EQ(SMCHelper(client).readCPUTemperature(), 61.5);
    EXPECT_EQ(client.askedKeys().size(), 5u) << "keys after the first plausible one are not asked for";
}

TEST_F(SMCHelperTest, AsksForTheProcessorKeysInTheirOrder) {
    EXPECT_EQ(SMCHelper(client).readCPUTemperature(), std::nullopt);
    const std::vector<std::uint32_t> order{smcCode("Tp09"), smcCode("Tp0T"), smcCode("Tp01"), smcCode("Tp05"),
                                           smcCode("Tp0D"), smcCode("Tp0H"), smcCode("Tp0L"), smcCode("Tp0P"),
                                           smcCode("Tp0X"), smcCode("Tp0b")};
    EXPECT_EQ(client.askedKeys(), order);
}

TEST_F(SMCHelperTest, AsksForTheGraphicsKeysInTheirOrder) {
    EXPECT_EQ(SMCHelper(client).readGPUTemperature(), std::nullopt);
    const std::vector<std::uint32_t> order{smcCode("Tg05"), smcCode("Tg0D"), smcCode("Tg0L"),
                                           smcCode("Tg0T")};
    EXPECT_EQ(client.askedKeys(), order);
    client.setFloat("Tg0T", 44);
    EXPECT_EQ(SMCHelper(client).readGPUTemperature(), 44.0);
}

TEST_F(SMCHelperTest, NamesEveryKnownSensorInTheOrderOfTheTable) {
    const std::vector<std::pair<std::string, std::string>> table{
        {"Tp09", "CPU Efficiency Core 1"},
        {"Tp0T", "CPU Performance Core 1"},
        {"Tp01", "CPU Core 2"},
        {"Tp05", "CPU Core 3"},
        {"Tp0D", "CPU Core 4"},
        {"Tp0H", "CPU Core 5"},
        {"Tp0L", "CPU Core 6"},
        {"Tp0P", "CPU Core 7"},
        {"Tp0X", "CPU Core 8"},
        {"Tp0b", "CPU Core 9"},
        {"Tg05", "GPU Core 1"},
        {"Tg0D", "GPU Core 2"},
        {"Tg0L", "GPU Core 3"},
        {"Tg0T", "GPU Core 4"},
        {"TW0P", "Wireless Module"},
        {"Tm0P", "Memory"},
        {"Ts0P", "Palm Rest 1"},
        {"Ts1P", "Palm Rest 2"},
        {"TB0T", "Battery"},
    };
    std::vector<NamedTemperature> expected;
    for (const auto& [key, name] : table) {
        const double value = 30.0 + static_cast<double>(expected.size());
        client.setFloat(key, static_cast<float>(value));
        expected.push_back({key, name, value});
    }
    EXPECT_EQ(SMCHelper(client).readSensors(), expected);
}

TEST_F(SMCHelperTest, LeavesOutSensorsThatReadImplausibly) {
    client.setFloat("Tp09", 0);
    client.setFloat("Tg05", 150);
    client.setFloat("TW0P", 149.75);
    client.set("Tm0P", "si16", 2, {0, 40});
    EXPECT_EQ(SMCHelper(client).readSensors(),
              (std::vector<NamedTemperature>{{"TW0P", "Wireless Module", 149.75}}));
}

TEST_F(SMCHelperTest, OneUpdateAsksForNoMoreThanThirtySixKeys) {
    SMCHelper helper(client);
    EXPECT_EQ(helper.readCPUTemperature(), std::nullopt);
    EXPECT_EQ(helper.readGPUTemperature(), std::nullopt);
    EXPECT_TRUE(helper.readSensors().empty());
    EXPECT_TRUE(helper.readFanSpeeds().empty());
    EXPECT_EQ(client.askedKeys().size(), 36u);
    EXPECT_EQ(client.calls.size(), 72u);
}

TEST_F(SMCHelperTest, TruncatesFanSpeedsAndClosesTheGapOfAStillFan) {
    client.set("F0Ac", "ui16", 2, {0, 0});
    client.setFloat("F1Ac", 1999.9F);
    client.setFloat("F2Ac", 2400);
    EXPECT_EQ(SMCHelper(client).readFanSpeeds(), (std::vector<std::int64_t>{1999, 2400}));
}

TEST_F(SMCHelperTest, FansThatStandStillOrFailGiveAnEmptyListRatherThanZeros) {
    client.setFloat("F0Ac", 0);
    client.setFloat("F1Ac", -1);
    EXPECT_TRUE(SMCHelper(client).readFanSpeeds().empty());
}

TEST_F(SMCHelperTest, AFanSpeedThatNoIntegerCanHoldIsLeftOut) {
    client.setFloat("F1Ac", 2400);
    for (const float speed : {std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN(),
                              1e19F, 9223372036854775808.0F}) {
        client.setFloat("F0Ac", speed);
        EXPECT_EQ(SMCHelper(client).readFanSpeeds(), std::vector<std::int64_t>{2400}) << speed;
    }
}

TEST_F(SMCHelperTest, NoSpeedWrittenTheOtherWayAroundStopsTheProcess) {
    for (std::uint32_t speed = 0; speed < 10'000; ++speed) {
        const auto bits = std::bit_cast<std::uint32_t>(static_cast<float>(speed) + 0.373F);
        std::vector<std::uint8_t> bytes;
        for (unsigned int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(bits >> shift));
        client.set("F0Ac", "flt ", 4, bytes);
        ASSERT_LE(SMCHelper(client).readFanSpeeds().size(), 1u) << speed;
    }
}

} // namespace
} // namespace orvelle::darwin_platform
