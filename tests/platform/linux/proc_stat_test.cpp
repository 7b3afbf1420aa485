#include "platform/linux/proc_stat.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

TEST(ProcStat, CountsInterruptsAsSystemAndWaitingAndStolenTimeAsIdle) {
    const auto stat = parseProcStat("cpu  1 2 3 4 5 6 7 8 9 10\n"
                                    "cpu0 1 2 3 4 5 6 7 8 9 10\n"
                                    "btime 1700000000\n");
    ASSERT_TRUE(stat);
    ASSERT_EQ(stat->cores.size(), 1u);
    EXPECT_EQ(stat->cores[0], (CoreTicks{.user = 1, .system = 3 + 6 + 7, .idle = 4 + 5 + 8, .nice = 2}));
    EXPECT_EQ(stat->bootTime, 1700000000);
}

} // namespace
} // namespace orvelle::linux_platform
