#include "confinement/network_need.h"
#include "support/environment.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(NetworkNeed, IsNoneOnThisMachinesDesktop) {
    EXPECT_FALSE(needsNetwork({}));
    EXPECT_FALSE(needsNetwork({.display = ":0",
                               .sessionBus = "unix:path=/run/user/1000/bus",
                               .accessibility = "unix:abstract=/tmp/at-spi,guid=12",
                               .sessionManager = "local/host:@/tmp/.ICE-unix/9,unix/host:/tmp/.ICE-unix/9"}));
    for (const char* display :
         {"", ":", ":12.0", "unix:0", "unix/host:0", "/tmp/launch-x/org.x:0", "nonsense"})
        EXPECT_FALSE(needsNetwork({.display = display})) << display;
    EXPECT_FALSE(needsNetwork({.sessionManager = "tcp/host:7,local/host:@/tmp/.ICE-unix/9"}));
}

TEST(NetworkNeed, IsThereWhenThePartsOfADesktopAreElsewhere) {
    for (const char* display : {"localhost:10.0", "192.168.0.9:0", "tcp/host:0", "host:0.1", "[::1]:0"})
        EXPECT_TRUE(needsNetwork({.display = display})) << display;
    for (const char* bus : {"tcp:host=h,port=1", "nonce-tcp:host=h", "unix:path=/a;tcp:host=h"}) {
        EXPECT_TRUE(needsNetwork({.sessionBus = bus})) << bus;
        EXPECT_TRUE(needsNetwork({.accessibility = bus})) << bus;
    }
    EXPECT_TRUE(needsNetwork({.sessionManager = "tcp/host:7"}));
}

TEST(NetworkNeed, IsReadFromTheEnvironment) {
    const EnvironmentVariable display("DISPLAY", "host:0");
    EXPECT_TRUE(needsNetwork(DesktopAddresses::present()));
    const EnvironmentVariable here("DISPLAY", ":0");
    EXPECT_FALSE(needsNetwork(DesktopAddresses::present()));
}

} // namespace
} // namespace orvelle
