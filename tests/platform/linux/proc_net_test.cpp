#include "platform/linux/proc_net.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace orvelle::linux_platform {
namespace {

constexpr std::string_view netDevHeading =
    "Inter-|   Receive                                                |  Transmit\n"
    " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs\n";

TEST(NetDev, ReadsReceivedAndSentBytesOfEachInterface) {
    const std::string text = std::string(netDevHeading) +
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

TEST(NetDev, LeavesOutTruncatedAndMalformedLines) {
    EXPECT_TRUE(parseNetDev("").empty());
    EXPECT_TRUE(parseNetDev(netDevHeading).empty());
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

TEST(NetDev, SurvivesAMegabyteOfArbitraryBytes) {
    EXPECT_TRUE(parseNetDev(std::string(std::size_t{1} << 20, ':')).empty());
    EXPECT_TRUE(parseNetDev(std::string(std::size_t{1} << 20, '9')).empty());
    const std::string longName(std::size_t{1} << 20, 'e');
    EXPECT_EQ(parseNetDev(longName + ": 1 0 0 0 0 0 0 0 5").size(), 1u);
}

constexpr std::string_view routeHeading =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT          \n";

DefaultRoutes routesIn(const std::string& lines) {
    return parseDefaultRoutes(std::string(routeHeading) + lines);
}

TEST(DefaultRoutes, AreReadWithTheirMetrics) {
    EXPECT_EQ(routesIn("enp3s0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0         \n"
                       "wlp2s0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0         \n"
                       "docker0\t000011AC\t00000000\t0001\t0\t0\t0\t0000FFFF\t0\t0\t0          \n"
                       "enp3s0\t0001A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0         \n"),
              (DefaultRoutes{{"enp3s0", 100}, {"wlp2s0", 600}}));
}

TEST(DefaultRoutes, KeepTheLowestMetricOfAnInterface) {
    EXPECT_EQ(routesIn("a\t00000000\t1\t0003\t0\t0\t20\t00000000\n"
                       "a\t00000000\t2\t0003\t0\t0\t10\t00000000\n"
                       "a\t00000000\t3\t0003\t0\t0\t30\t00000000\n"),
              (DefaultRoutes{{"a", 10}}));
}

TEST(DefaultRoutes, MayHaveTheLargestMetric) {
    EXPECT_EQ(routesIn("a\t00000000\t1\t0003\t0\t0\t-1\t00000000\n"), (DefaultRoutes{{"a", 0xFFFFFFFF}}));
}

TEST(DefaultRoutes, LeaveOutRoutesToAPartOfTheNetwork) {
    EXPECT_TRUE(routesIn("tun0\t00000000\t1\t0003\t0\t0\t0\t00000080\n").empty()) << "half of all addresses";
    EXPECT_TRUE(routesIn("a\t0001A8C0\t1\t0003\t0\t0\t0\t00000000\n").empty());
}

TEST(DefaultRoutes, LeaveOutRoutesThatAreDownOrReject) {
    EXPECT_TRUE(routesIn("a\t00000000\t1\t0002\t0\t0\t0\t00000000\n").empty());
    EXPECT_TRUE(routesIn("*\t00000000\t0\t0201\t0\t0\t0\t00000000\n").empty());
}

TEST(DefaultRoutes, IgnoreMalformedText) {
    EXPECT_TRUE(parseDefaultRoutes("").empty());
    EXPECT_TRUE(parseDefaultRoutes(routeHeading).empty());
    EXPECT_TRUE(routesIn("a\n\n\t\t\na\t00000000\na\t00000000\t1\t0003\t0\t0\t0\n").empty()) << "cut lines";
    EXPECT_TRUE(routesIn("a\tzz\t1\t0003\t0\t0\t0\t00000000\n").empty());
    EXPECT_TRUE(routesIn("a\t00000000\t1\t0003\t0\t0\tx\t00000000\n").empty());
    EXPECT_TRUE(routesIn("a\t00000000\t1\tFFFFFFFFF\t0\t0\t0\t00000000\n").empty()) << "too large";
    EXPECT_TRUE(parseDefaultRoutes(std::string(std::size_t{1} << 20, '0')).empty());
    EXPECT_TRUE(parseDefaultRoutes(std::string(std::size_t{1} << 20, '\n')).empty());
}

} // namespace
} // namespace orvelle::linux_platform
