#include "platform/linux/linux_processor_source.h"

#include <gtest/gtest.h>

#include <string>

namespace orvelle::linux_platform {
namespace {

TEST(ProcStat, CountsInterruptsAsSystemAndWaitingAndStolenTimeAsIdle) {
    const auto stat = parseProcStat("cpu  1 2 3 4 5 6 7 8 9 10\n"
                                    "cpu0 1 2 3 4 5 6 7 8 9 10\n"
                                    "intr 5 0 0\n"
                                    "btime 1700000000\n");
    ASSERT_TRUE(stat);
    ASSERT_EQ(stat->cores.size(), 1u);
    EXPECT_EQ(stat->cores[0], (CoreTicks{.user = 1, .system = 3 + 6 + 7, .idle = 4 + 5 + 8, .nice = 2}));
    EXPECT_EQ(stat->bootTime, 1700000000);
}

TEST(ProcStat, ListsTheCoresThatAreOnlineNowInTheKernelsOrder) {
    const auto stat = parseProcStat("cpu 9 0 0 0\ncpu0 1 0 0 0\ncpu2 2 0 0 0\ncpu17 3 0 0 0\n");
    ASSERT_TRUE(stat);
    ASSERT_EQ(stat->cores.size(), 3u);
    EXPECT_EQ(stat->cores[2].user, 3u);
    EXPECT_EQ(stat->bootTime, std::nullopt);
}

TEST(ProcStat, ReadsAMachineOf512Cores) {
    std::string text = "cpu 1 1 1 1\n";
    for (int core = 0; core < 512; ++core)
        text += "cpu" + std::to_string(core) + " 1 2 3 " + std::to_string(core) + " 0 0 0 0 0 0\n";
    const auto stat = parseProcStat(text);
    ASSERT_TRUE(stat);
    ASSERT_EQ(stat->cores.size(), 512u);
    EXPECT_EQ(stat->cores[511].idle, 511u);
}

TEST(ProcStat, ATextWithoutCoresIsAFailedRead) {
    for (const char* text : {"", "\n\n", "cpu 1 2 3 4\n", "btime 5\n", "cpufreq 1\n", "cpuX 1\n"})
        EXPECT_FALSE(parseProcStat(text)) << text;
}

TEST(ProcStat, SurvivesEveryTruncation) {
    const std::string text = "cpu  10 2 3 4 5 6 7 8 9 10\ncpu0 1 2 3 4 5 6 7 8 9 10\nbtime 1700000000\n";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        const auto stat = parseProcStat(std::string_view(text).substr(0, length));
        EXPECT_EQ(stat.has_value(), length >= text.find("cpu0") + 4) << length;
    }
}

TEST(ProcStat, BoundsImplausibleNumbers) {
    const auto stat =
        parseProcStat("cpu0 99999999999999999999999 -5 18446744073709551615 x 18446744073709551615 "
                      "18446744073709551615 18446744073709551615 18446744073709551615\n");
    ASSERT_TRUE(stat);
    EXPECT_EQ(stat->cores[0].user, CoreTicks::maximumTicks);
    EXPECT_EQ(stat->cores[0].system, CoreTicks::maximumTicks);
    EXPECT_EQ(stat->cores[0].idle, CoreTicks::maximumTicks);
    EXPECT_EQ(stat->cores[0].nice, 0u);
}

TEST(ProcStat, AnImplausibleBootTimeIsNothing) {
    for (const char* time : {"-5", "9223372036854775807", "x"})
        EXPECT_EQ(parseProcStat(std::string("cpu0 1 1 1 1\nbtime ") + time + "\n")->bootTime, std::nullopt)
            << time;
}

TEST(LoadAverages, AreTheFirstThreeNumbers) {
    EXPECT_EQ(parseLoadAverages("1.50 1.25 1.00 3/977 4321\n"), (std::array<double, 3>{1.5, 1.25, 1}));
}

TEST(LoadAverages, AreNothingWhenOneIsMissingOrNoNumber) {
    for (const char* text :
         {"", "1.0 2.0", "1.0 x 2.0", "nan 1 1", "inf 1 1", "-1 0 0", "1e-400 0 0", "1e300 0 0"})
        EXPECT_FALSE(parseLoadAverages(text)) << text;
}

} // namespace
} // namespace orvelle::linux_platform
