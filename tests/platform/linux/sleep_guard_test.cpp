#include "platform/linux/sleep_guard.h"
#include "support/temporary_tree.h"

#include <gtest/gtest.h>

namespace orvelle::linux_platform {
namespace {

using Advice = SleepGuard::Advice;
using namespace std::chrono_literals;

class SleepGuardTest : public ::testing::Test {
protected:
    TemporaryTree tree;
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::time_point(1h);

    [[nodiscard]] SleepGuard guard() const { return SleepGuard({tree.root() / "power"}); }
};

TEST_F(SleepGuardTest, OnlyASuspendedDeviceOrOneOnItsWayThereIsAvoided) {
    for (const char* status : {"suspended\n", "suspending\n"}) {
        tree.write("power/runtime_status", status);
        EXPECT_EQ(guard().adviceAt(start), Advice::avoid) << status;
    }
    for (const char* status : {"active\n", "resuming\n", "unsupported\n", "error\n", "", "\xFF"}) {
        tree.write("power/runtime_status", status);
        EXPECT_EQ(guard().adviceAt(start), Advice::read) << status;
    }
}

TEST_F(SleepGuardTest, ADeviceWithoutPowerManagementIsReadEveryTime) {
    SleepGuard unmanaged = guard();
    EXPECT_EQ(unmanaged.adviceAt(start), Advice::read);
    EXPECT_EQ(unmanaged.adviceAt(start), Advice::read);
}

TEST_F(SleepGuardTest, ADeviceThatSleepsWhenIdleIsReadOnceInTwiceThatTime) {
    tree.write("power/runtime_status", "active\n");
    tree.write("power/control", "auto\n");
    tree.write("power/autosuspend_delay_ms", "5000\n");
    SleepGuard idling = guard();
    EXPECT_EQ(idling.adviceAt(start), Advice::read);
    for (const auto elapsed : {3s, 6s, 9s})
        EXPECT_EQ(idling.adviceAt(start + elapsed), Advice::wait);
    EXPECT_EQ(idling.adviceAt(start + 12s), Advice::read) << "still awake, so others use it";
    EXPECT_EQ(idling.adviceAt(start + 15s), Advice::wait);
    tree.write("power/runtime_status", "suspended\n");
    EXPECT_EQ(idling.adviceAt(start + 18s), Advice::avoid);
}

TEST_F(SleepGuardTest, ADeviceConfiguredToStayAwakeIsReadEveryTime) {
    tree.write("power/runtime_status", "active\n");
    tree.write("power/control", "on\n");
    tree.write("power/autosuspend_delay_ms", "5000\n");
    SleepGuard awake = guard();
    EXPECT_EQ(awake.adviceAt(start), Advice::read);
    EXPECT_EQ(awake.adviceAt(start + 1s), Advice::read);
    tree.write("power/control", "auto\n");
    awake.lookAgain();
    EXPECT_EQ(awake.adviceAt(start + 2s), Advice::wait);
}

TEST_F(SleepGuardTest, PowerManagementThatComesLaterIsFoundByLookingAgain) {
    for (const char* before : {"", "unsupported\n"}) {
        tree.remove("power");
        if (*before != 0)
            tree.write("power/runtime_status", before);
        SleepGuard late = guard();
        tree.write("power/runtime_status", "suspended\n");
        EXPECT_EQ(late.adviceAt(start), Advice::read)
            << "a device is not asked whether it can sleep each time";
        late.lookAgain();
        EXPECT_EQ(late.adviceAt(start), Advice::avoid) << before;
    }
}

TEST_F(SleepGuardTest, AMalformedIdleTimeCountsAsNone) {
    tree.write("power/runtime_status", "active\n");
    tree.write("power/control", "auto\n");
    for (const char* delay : {"-1", "", "x", "0"}) {
        tree.write("power/autosuspend_delay_ms", delay);
        SleepGuard atOnce = guard();
        EXPECT_EQ(atOnce.adviceAt(start), Advice::read);
        EXPECT_EQ(atOnce.adviceAt(start), Advice::read) << delay;
    }
    tree.write("power/autosuspend_delay_ms", "9223372036854775807");
    SleepGuard never = guard();
    EXPECT_EQ(never.adviceAt(start), Advice::read);
    EXPECT_EQ(never.adviceAt(start + 1h), Advice::wait);
}

} // namespace
} // namespace orvelle::linux_platform
