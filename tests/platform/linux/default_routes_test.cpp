#include "platform/linux/default_routes.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

constexpr std::string_view heading =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT          \n";

DefaultRoutes routesIn(const std::string& lines) {
    return parseDefaultRoutes(std::string(heading) + lines);
}

TEST(DefaultRoutes, AreToldWithTheirMetrics) {
    EXPECT_EQ(routesIn("enp3s0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0         \n"
                       "wlp2s0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0         \n"
                       "docker0\t000011AC\t00000000\t0001\t0\t0\t0\t0000FFFF\t0\t0\t0          \n"
                       "enp3s0\t0001A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0         \n"),
              (DefaultRoutes{{"enp3s0", 100}, {"wlp2s0", 600}}));
}

TEST(DefaultRoutes, OfOneInterfaceCountByTheLowestMetric) {
    EXPECT_EQ(routesIn("a\t00000000\t1\t0003\t0\t0\t20\t00000000\n"
                       "a\t00000000\t2\t0003\t0\t0\t10\t00000000\n"
                       "a\t00000000\t3\t0003\t0\t0\t30\t00000000\n"),
              (DefaultRoutes{{"a", 10}}));
}

TEST(DefaultRoutes, MayHaveTheLargestMetric) {
    EXPECT_EQ(routesIn("a\t00000000\t1\t0003\t0\t0\t-1\t00000000\n"), (DefaultRoutes{{"a", 0xFFFFFFFF}}));
}

TEST(DefaultRoutes, AreNotThoseThatLeadToAPartOfTheNetwork) {
    EXPECT_TRUE(routesIn("tun0\t00000000\t1\t0003\t0\t0\t0\t00000080\n").empty()) << "half of all addresses";
    EXPECT_TRUE(routesIn("a\t0001A8C0\t1\t0003\t0\t0\t0\t00000000\n").empty());
}

TEST(DefaultRoutes, AreNotThoseThatAreDownOrReject) {
    EXPECT_TRUE(routesIn("a\t00000000\t1\t0002\t0\t0\t0\t00000000\n").empty());
    EXPECT_TRUE(routesIn("*\t00000000\t0\t0201\t0\t0\t0\t00000000\n").empty());
}

TEST(DefaultRoutes, AreNoneInATextThatMakesNoSense) {
    EXPECT_TRUE(parseDefaultRoutes("").empty());
    EXPECT_TRUE(parseDefaultRoutes(heading).empty());
    EXPECT_TRUE(routesIn("a\n\n\t\t\na\t00000000\na\t00000000\t1\t0003\t0\t0\t0\n").empty()) << "cut lines";
    EXPECT_TRUE(routesIn("a\tzz\t1\t0003\t0\t0\t0\t00000000\n").empty());
    EXPECT_TRUE(routesIn("a\t00000000\t1\t0003\t0\t0\tx\t00000000\n").empty());
    EXPECT_TRUE(routesIn("a\t00000000\t1\tFFFFFFFFF\t0\t0\t0\t00000000\n").empty()) << "too large";
    EXPECT_TRUE(parseDefaultRoutes(std::string(std::size_t{1} << 20, '0')).empty());
    EXPECT_TRUE(parseDefaultRoutes(std::string(std::size_t{1} << 20, '\n')).empty());
}

} // namespace
} // namespace orvelle::linux_platform
