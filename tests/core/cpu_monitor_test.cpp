#include "core/cpu_monitor.h"
#include "platform/fixed/fixed_sources.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

class CPUMonitorTest : public ::testing::Test {
protected:
    FixedProcessorSource source;
    FixedClock clock;
};

TEST_F(CPUMonitorTest, EightHalfBusyCoresAreHalfBusyInAll) {
    source.ticks = std::vector<CoreTicks>(8);
    CPUMonitor monitor(source, clock.reader());
    source.ticks = std::vector<CoreTicks>(8, CoreTicks{.user = 50, .idle = 50});
    monitor.updateUsage();
    EXPECT_DOUBLE_EQ(monitor.totalUsage(), 0.5);
}

} // namespace
} // namespace orvelle
