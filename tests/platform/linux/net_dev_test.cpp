#include "platform/linux/net_dev.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace orvelle::linux_platform {
namespace {

constexpr std::string_view heading =
    "Inter-|   Receive                                                |  Transmit\n"
    " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs\n";

TEST(NetDev, ReadsReceivedAndSentBytesOfEachInterface) {
    const std::string text = std::string(heading) +
                             "    lo: 3319 30 0 0 0 0 0 0 3320 30 0 0 0 0 0 0\n"
                             "wlp0s20f3:103652229 2624 1 2 3 4 5 6 100405 1109 0 0 0 0 0 0\n";
    const std::vector<InterfaceCounters> expected{{"lo", 3319, 3320}, {"wlp0s20f3", 103652229, 100405}};
    EXPECT_EQ(parseNetDev(text), expected);
}

TEST(NetDev, ReadsCountersBeyondThirtyTwoBits) {
    const std::string text = "eth0: 123456789012345 1 0 0 0 0 0 0 9876543210987 1 0 0 0 0 0 0";
    const std::vector<InterfaceCounters> expected{{"eth0", 123456789012345, 9876543210987}};
    EXPECT_EQ(parseNetDev(text), expected);
}

TEST(NetDev, LeavesOutLinesThatAreCutOrMakeNoSense) {
    EXPECT_TRUE(parseNetDev("").empty());
    EXPECT_TRUE(parseNetDev(heading).empty());
    EXPECT_TRUE(parseNetDev("eth0").empty());
    EXPECT_TRUE(parseNetDev("eth0:").empty());
    EXPECT_TRUE(parseNetDev("eth0: 1 2 3 4 5 6 7 8").empty());
    EXPECT_TRUE(parseNetDev("eth0: x 0 0 0 0 0 0 0 5").empty());
    EXPECT_TRUE(parseNetDev("eth0: -5 0 0 0 0 0 0 0 5").empty());
    EXPECT_TRUE(parseNetDev(": 1 0 0 0 0 0 0 0 5").empty());
    EXPECT_TRUE(parseNetDev("../../etc: 1 0 0 0 0 0 0 0 5\n..: 1 0 0 0 0 0 0 0 5\n").empty());
}

TEST(NetDev, KeepsSumsWithinSixtyFourBits) {
    constexpr std::string_view line = "eth0: 18446744073709551615 0 0 0 0 0 0 0 99999999999999999999999 0\n";
    std::uint64_t sumIn = 0;
    std::uint64_t sumOut = 0;
    for (const InterfaceCounters& counters : parseNetDev(std::string(line) + std::string(line))) {
        EXPECT_LE(counters.bytesIn, std::numeric_limits<std::uint64_t>::max() - sumIn);
        EXPECT_LE(counters.bytesOut, std::numeric_limits<std::uint64_t>::max() - sumOut);
        sumIn += counters.bytesIn;
        sumOut += counters.bytesOut;
    }
    EXPECT_GT(sumIn, 0u);
    EXPECT_GT(sumOut, 0u);
}

TEST(NetDev, SurvivesAMegabyteOfAnything) {
    EXPECT_TRUE(parseNetDev(std::string(std::size_t{1} << 20, ':')).empty());
    EXPECT_TRUE(parseNetDev(std::string(std::size_t{1} << 20, '9')).empty());
    const std::string longName(std::size_t{1} << 20, 'e');
    EXPECT_EQ(parseNetDev(longName + ": 1 0 0 0 0 0 0 0 5").size(), 1u);
}

} // namespace
} // namespace orvelle::linux_platform
